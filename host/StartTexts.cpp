#include "host/StartTexts.hpp"

#include "host/ExitCode.hpp"
#include "host/Messages.hpp"
#include "platform/Utf.hpp"

#include <unistd.h>

namespace imageposition {

void refuseForeignArguments(const std::vector<std::string> &words) {
  for (const std::string &word : words)
    if (!isWellFormedUtf8(word))
      throw Failure(ExitCode::Usage, messages::argumentNotText(utf8FromUtf16(utf16FromUtf8(word))));
}

void leaveOutForeignVariables(char **arguments) {
  std::vector<char *> rest;
  bool isComplete = true;
  for (char **variable = environ; *variable != nullptr; variable++) {
    if (isWellFormedUtf8(*variable))
      rest.push_back(*variable);
    else
      isComplete = false;
  }
  rest.push_back(nullptr);
  // Unsetting them is too late: the platform has copied them before `main`.
  if (!isComplete)
    execve("/proc/self/exe", arguments, rest.data());
}

} // namespace imageposition
