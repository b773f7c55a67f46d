#include "StartTexts.hpp"

#include "CommandTexts.hpp"
#include "ExitCode.hpp"
#include "Utf.hpp"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <sys/stat.h>
#include <unistd.h>

namespace imageposition {

namespace {

const char *const kConfiguration = "GNUSTEP_CONFIG_FILE";

/// The names of the environment variables that begin with `start`.
std::vector<std::string> variablesNamed(const std::string &start) {
  std::vector<std::string> names;
  for (char **variable = environ; *variable != nullptr; variable++) {
    const std::string entry = *variable;
    if (entry.compare(0, start.size(), start) == 0)
      names.push_back(entry.substr(0, entry.find('=')));
  }
  return names;
}

bool isNotAscii(char c) { return static_cast<unsigned char>(c) >= 0x80; }

} // namespace

void requireUtf8Arguments(const std::vector<std::string> &words,
                          const std::vector<std::string> &documents) {
  for (const std::string &word : words)
    if (!isWellFormedUtf8(word) &&
        std::find(documents.begin(), documents.end(), word) == documents.end())
      throw Failure(ExitCode::Usage, messages::argumentNotUtf8(wellFormedUtf8(word)));
}

void hideArgumentsThatAreNotUtf8(char **argv) {
  for (char **argument = argv; *argument != nullptr; argument++)
    if (!isWellFormedUtf8(*argument))
      std::replace_if(*argument, *argument + std::strlen(*argument), isNotAscii, '?');
}

void removeVariablesThatAreNotUtf8() {
  char **kept = environ;
  for (char **variable = environ; *variable != nullptr; variable++)
    if (isWellFormedUtf8(*variable))
      *kept++ = *variable;
  *kept = nullptr;
}

std::optional<UntrustedPart> removeGnustepVariables() {
  for (const std::string &name : variablesNamed("GNUSTEP_"))
    if (name != kConfiguration)
      unsetenv(name.c_str());
  const char *const configuration = std::getenv(kConfiguration);
  if (configuration == nullptr)
    return std::nullopt;
  std::optional<UntrustedPart> untrusted;
  if (*configuration == '/')
    untrusted = untrustedPartOfFolder(configuration, TrustedPeople::here());
  if (untrusted || *configuration != '/') // GNUstep would resolve it in the current folder
    unsetenv(kConfiguration);
  return untrusted;
}

void removeForgottenDefaultsLock() {
  const char *const home = std::getenv("HOME");
  const std::string lock =
      std::string(home != nullptr ? home : "") + "/GNUstep/Defaults/.lck/.GNUstepDefaults.lck";
  struct stat status {};
  if (stat(lock.c_str(), &status) != 0)
    return;
  constexpr std::time_t kLongest = 2; // seconds; a clock may have been set back meanwhile
  if (std::abs(std::difftime(std::time(nullptr), status.st_mtime)) > kLongest)
    rmdir(lock.c_str()); // a folder
}

} // namespace imageposition
