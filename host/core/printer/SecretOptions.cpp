#include "SecretOptions.hpp"

#include <algorithm>
#include <iterator>
#include <string_view>
#include <strings.h>

namespace imageposition {

namespace {

struct SecretOption {
  const char *name;
  const char *source; // which says that it is a secret, or part of one
};

constexpr SecretOption kSecretOptions[] = {
    {"auth-info", "CUPS Implementation of IPP: a user name and password for the printer"},
    {"auth-info-default", "the same, of a queue"},
    {"destination-accesses", "PWG 5100.17: \"access-password\", \"access-pin\", OAuth tokens"},
    {"document-access", "PWG 5100.18: the same, for fetching the document"},
    {"document-password", "PWG 5100.13: opens the document"},
    {"job-authorization-uri", "PWG 5100.16: stands for the right to print the job"},
    {"job-password", "PWG 5100.11: releases the job at the printer"},
    {"job-password-encryption", "PWG 5100.11: how \"job-password\" is hashed"},
};

bool endsWith(const std::string &name, std::string_view end) {
  return name.size() >= end.size() &&
         strncasecmp(name.c_str() + name.size() - end.size(), end.data(), end.size()) == 0;
}

/// "pin" as a word: not that of "StapleSpin".
bool endsWithPin(const std::string &name) {
  constexpr std::string_view kPin = "pin";
  if (!endsWith(name, kPin))
    return false;
  const std::size_t start = name.size() - kPin.size();
  if (start == 0)
    return true;
  const char before = name[start - 1];
  const bool isAfterLowerCase = before >= 'a' && before <= 'z';
  return before == '-' || before == '_' || (isAfterLowerCase && name[start] == 'P');
}

/// As printer makers name them.
bool soundsSecret(const std::string &name) {
  return endsWith(name, "password") || endsWith(name, "passcode") || endsWithPin(name);
}

} // namespace

bool isSecretName(const std::string &name) {
  return soundsSecret(name) ||
         std::any_of(std::begin(kSecretOptions), std::end(kSecretOptions),
                     [&](const SecretOption &option) {
                       return strcasecmp(option.name, name.c_str()) == 0; // as CUPS matches
                     });
}

} // namespace imageposition
