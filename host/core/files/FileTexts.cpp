#include "FileTexts.hpp"

namespace imageposition::messages {

const Text kNotAnOrdinaryFile = text("it is not a regular file");
const Text kLinkOfAnotherUser = text("it is a symbolic link owned by another user");
const Text kNotWrittenByPrintDialog =
    text("the existing file was not written by print-dialog for this user");
std::string lockedBy(const std::string &process) {
  return process.empty() ? text("another program is using it").str()
                         : text("{1} is using it").with(process);
}

} // namespace imageposition::messages
