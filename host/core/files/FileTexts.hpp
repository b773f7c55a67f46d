/// Why a file is neither read nor written.
#ifndef IMAGEPOSITION_HOST_FILETEXTS_HPP
#define IMAGEPOSITION_HOST_FILETEXTS_HPP

#include "Text.hpp"

#include <string>

namespace imageposition::messages {

// Why a file cannot be read or written, after its name.
extern const Text kNotAnOrdinaryFile;
extern const Text kLinkOfAnotherUser;
extern const Text kNotWrittenByPrintDialog;

} // namespace imageposition::messages

#endif
