#include "host/SecretOptions.hpp"

#include <algorithm>
#include <iterator>
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

} // namespace

bool isSecretName(const std::string &name) {
  return std::any_of(std::begin(kSecretOptions), std::end(kSecretOptions),
                     [&](const SecretOption &option) {
                       return strcasecmp(option.name, name.c_str()) == 0; // as CUPS matches
                     });
}

} // namespace imageposition
