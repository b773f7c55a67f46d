/// Measures from the display's pixels how well a text can be read.
#ifndef IMAGEPOSITION_TESTS_HABITS_CONTRAST_HPP
#define IMAGEPOSITION_TESTS_HABITS_CONTRAST_HPP

#include "Screen.hpp"

namespace imageposition::test {

/// The contrast ratio, from 1 to 21, of two colours, as WCAG 2.1 defines it. Colours are 0xRRGGBB.
double contrastOf(unsigned long one, unsigned long other);

/// The contrast ratio, from 1 to 21, of the control's text against its background, as WCAG 2.1
/// defines it: https://www.w3.org/TR/WCAG21/#dfn-contrast-ratio. The background is the colour of
/// most pixels; the text's colour is the one that differs most from it. 0 if it is not on screen.
double contrastOf(const Control &control);

} // namespace imageposition::test

#endif
