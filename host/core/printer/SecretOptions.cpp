#include "SecretOptions.hpp"

#include "Strings.hpp"

#include <algorithm>
#include <iterator>
#include <string_view>

namespace imageposition {

namespace {

struct SecretOption {
  const char *name;
  const char *source; // the document that defines it as a secret, or part of one
};

constexpr SecretOption kSecretOptions[] = {
    {"auth-info", "CUPS Implementation of IPP: a user name and password for the printer"},
    {"auth-info-default", "the same, of a queue"},
    {"destination-accesses", "PWG 5100.17: \"access-password\", \"access-pin\", OAuth tokens"},
    {"document-access", "PWG 5100.18: the same, for fetching the document"},
    {"document-password", "PWG 5100.13: opens the document"},
    {"job-authorization-uri", "PWG 5100.16: grants the right to print the job"},
    {"job-password", "PWG 5100.11: releases the job at the printer"},
    {"job-password-encryption", "PWG 5100.11: how \"job-password\" is hashed"},
};

bool endsLike(std::string_view name, std::string_view end) {
  return name.size() >= end.size() && isSame(name.substr(name.size() - end.size()), end);
}

/// Whether the name ends in the word "pin", unlike "StapleSpin".
bool endsWithPin(const std::string &name) {
  constexpr std::string_view kPin = "pin";
  if (!endsLike(name, kPin))
    return false;
  const std::size_t start = name.size() - kPin.size();
  if (start == 0)
    return true;
  const char before = name[start - 1];
  const bool isAfterLowerCase = before >= 'a' && before <= 'z';
  return before == '-' || before == '_' || (isAfterLowerCase && name[start] == 'P');
}

/// Whether the name is one that printer makers use for secrets.
bool looksSecret(const std::string &name) {
  return endsLike(name, "password") || endsLike(name, "passcode") || endsWithPin(name);
}

} // namespace

bool isSecretName(const std::string &name) {
  return looksSecret(name) ||
         std::any_of(std::begin(kSecretOptions), std::end(kSecretOptions),
                     [&](const SecretOption &option) { return isSame(option.name, name); });
}

} // namespace imageposition
