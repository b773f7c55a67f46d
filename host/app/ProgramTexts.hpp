/// Messages about the start of the program.
#ifndef IMAGEPOSITION_APP_PROGRAMTEXTS_HPP
#define IMAGEPOSITION_APP_PROGRAMTEXTS_HPP

#include "Text.hpp"

#include <string>

namespace imageposition::messages {

std::string documentUnreadable(const std::string &path, const std::string &reason);

/// GNUstep's configuration, as the environment names it, is not used because of `part`.
std::string configurationUntrusted(const std::string &part);

// The module that has the window and the panels. `path` is its file.
std::string moduleMissing(const std::string &path);
std::string moduleUntrusted(const std::string &path);
/// `reason` is the loader's.
std::string moduleNotLoadable(const std::string &path, const std::string &reason);
extern const Text kCutShort;

} // namespace imageposition::messages

#endif
