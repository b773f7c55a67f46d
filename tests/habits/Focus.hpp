/// Finds out from the display's pixels whether a user can see where the keyboard's focus is.
#ifndef IMAGEPOSITION_TESTS_HABITS_FOCUS_HPP
#define IMAGEPOSITION_TESTS_HABITS_FOCUS_HPP

#include <functional>
#include <string>

namespace imageposition::test {

/// Calls `moveOn`, which moves the focus to another control, `times` times, and looks at the
/// display each time. A pixel's colour without the focus is the one that it has most of the time.
/// Returns which looks show no focus: too few pixels with a contrast of 3, as WCAG 2.1 asks
/// (https://www.w3.org/TR/WCAG21/#non-text-contrast), or the same pixels as before. Empty if all
/// do.
std::string looksWithoutFocus(int times, const std::function<void()> &moveOn);

} // namespace imageposition::test

#endif
