/// One use of the plug-in from its first call to its last: what the host asks, what a person does,
/// what the print settings and the printer become. After each step everything that can be seen is
/// compared with the model.
#ifndef IMAGEPOSITION_TESTS_USE_PANELUSE_H
#define IMAGEPOSITION_TESTS_USE_PANELUSE_H

#include <cstddef>
#include <cstdint>
#include <string>

namespace imageposition::test {

/// How many steps a use has at most.
constexpr int kLongestUse = 120;

/// Takes each decision from the bytes, up to their end. Answers what differs first, after the steps
/// that led there, or nothing. Needs an application and, in its folder's Resources, the interface
/// file.
std::string usePanel(const std::uint8_t *bytes, std::size_t count);

} // namespace imageposition::test

#endif
