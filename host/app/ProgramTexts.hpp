/// Messages about starting the program.
#ifndef IMAGEPOSITION_APP_PROGRAMTEXTS_HPP
#define IMAGEPOSITION_APP_PROGRAMTEXTS_HPP

#include "Text.hpp"

#include <string>

namespace imageposition::messages {

std::string documentUnreadable(const std::string &path, const std::string &reason);

/// `GNUSTEP_CONFIG_FILE` is ignored because another user could modify `part`.
std::string configurationUntrusted(const std::string &part);

// About alignment sheets and measurements.
std::string badReading(const std::string &reading);
std::string badCrease(const std::string &crease);
extern const Text kCreaseNeedsReading;
extern const Text kAlignNeedsQueue;
/// `command` is how to go on.
std::string readTheSheets(int sheets, const std::string &command);
/// `words` is how the creases are given.
std::string addCrease(const std::string &words);
extern const Text kNothingMeasured;
std::string alignmentsImported(int count);
std::string alignmentsNotImported(const std::string &path, const std::string &reason);
std::string alignmentsDeleted(int count, const std::string &queue);

// About the GNUstep module. `path` is the module's file.
std::string moduleMissing(const std::string &path);
std::string moduleUntrusted(const std::string &path);
/// `reason` comes from `dlerror`.
std::string moduleNotLoadable(const std::string &path, const std::string &reason);
extern const Text kCutShort;

} // namespace imageposition::messages

#endif
