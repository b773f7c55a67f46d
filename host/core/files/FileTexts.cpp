#include "FileTexts.hpp"

namespace imageposition::messages {

const Text kNotAnOrdinaryFile = text("it is not an ordinary file");
const Text kLinkOfAnotherUser = text("it is a link that belongs to another user");
const Text kNotWrittenByPrintDialog =
    text("what is there was not written by print-dialog for this user");

} // namespace imageposition::messages
