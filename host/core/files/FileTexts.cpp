#include "FileTexts.hpp"

namespace imageposition::messages {

const Text kNotAnOrdinaryFile = text("it is not a regular file");
const Text kLinkOfAnotherUser = text("it is a symbolic link owned by another user");
const Text kNotWrittenByPrintDialog =
    text("the existing file was not written by print-dialog for this user");

} // namespace imageposition::messages
