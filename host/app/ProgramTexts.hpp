/// What the program says as a whole.
#ifndef IMAGEPOSITION_HOST_PROGRAMTEXTS_HPP
#define IMAGEPOSITION_HOST_PROGRAMTEXTS_HPP

#include "Text.hpp"

#include <string>
#include <vector>

namespace imageposition::messages {

// Mistakes on the command line.
std::string documentUnreadable(const std::string &path, const std::string &reason);

// Plug-ins.
/// GNUstep's configuration, as the environment names it, is not used because of `part`.
std::string configurationUntrusted(const std::string &part);
std::string noPanel(const std::string &printer, const std::vector<std::string> &plugins);

// What came out.
std::string jobSentUnsaid(const std::string &job);
extern const Text kCancelled;

} // namespace imageposition::messages

#endif
