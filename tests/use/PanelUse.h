/// One use of the plug-in from its first call to its last: calls of the host, actions of the user,
/// and changes of the print settings and the printer. Compares everything visible with the model
/// after each step.
#ifndef IMAGEPOSITION_TESTS_USE_PANELUSE_H
#define IMAGEPOSITION_TESTS_USE_PANELUSE_H

#include <cstddef>
#include <cstdint>
#include <string>

namespace imageposition::test {

/// The maximum number of steps of a use.
constexpr int kLongestUse = 120;

/// Takes each decision from the bytes, until they are used up. Returns the steps and the first
/// difference, or an empty string. Needs an application with the interface file in its Resources.
std::string usePanel(const std::uint8_t *bytes, std::size_t count);

} // namespace imageposition::test

#endif
