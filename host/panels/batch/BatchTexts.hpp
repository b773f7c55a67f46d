/// Messages about setting panels without a window.
#ifndef IMAGEPOSITION_PANELS_BATCH_BATCHTEXTS_HPP
#define IMAGEPOSITION_PANELS_BATCH_BATCHTEXTS_HPP

#include "Text.hpp"

#include <string>
#include <vector>

namespace imageposition::messages {

// The display.
/// `reason`: Xvfb's own message; may be empty.
std::string noDisplay(const std::string &reason);

// Values.
std::string noSuchField(const std::string &name, const std::vector<std::string> &known);
std::string ambiguousField(const std::string &name, const std::vector<std::string> &matches);
/// `reason`: why, in sentences that say what to do; may be empty.
std::string fieldUnavailable(const std::string &name, const std::string &reason);
extern const Text kNoSwitch;
std::string switchUnavailable(const std::string &reason);

} // namespace imageposition::messages

#endif
