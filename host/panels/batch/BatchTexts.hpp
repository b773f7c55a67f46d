/// What is said about setting panels without a window.
#ifndef IMAGEPOSITION_HOST_BATCHTEXTS_HPP
#define IMAGEPOSITION_HOST_BATCHTEXTS_HPP

#include "Text.hpp"

#include <string>
#include <vector>

namespace imageposition::messages {

// The display.
/// `reason`: what Xvfb said; may be empty.
std::string noDisplay(const std::string &reason);

// Values.
std::string noSuchField(const std::string &name, const std::vector<std::string> &known);
std::string ambiguousField(const std::string &name, const std::vector<std::string> &matches);
/// `reason`: what stands in the way, in sentences with what to do; may be empty.
std::string fieldUnavailable(const std::string &name, const std::string &reason);
extern const Text kNoSwitch;
std::string switchUnavailable(const std::string &reason);

} // namespace imageposition::messages

#endif
