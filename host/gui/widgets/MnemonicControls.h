/// Titles and buttons with an underlined letter for the keyboard.
#ifndef IMAGEPOSITION_GUI_WIDGETS_MNEMONICCONTROLS_H
#define IMAGEPOSITION_GUI_WIDGETS_MNEMONICCONTROLS_H

#import "KeyWindow.h"

#include <string>

namespace imageposition {

// The caller owns nothing that these functions return. Mnemonic.hpp documents how strings are
// marked.

/// A control's title, as large as needed, with its letter underlined.
NSTextField *makeTitle(const std::string &marked);

/// A push button, at least `kButtonWidth` wide, and `kButtonHeight` high.
NSButton *makeButton(const std::string &marked, id target, SEL action);

/// Gives such a button another title, and the width that it needs.
void retitle(NSButton *button, const std::string &marked);

/// A checkbox.
NSButton *makeSwitch(const std::string &marked, id target, SEL action);

constexpr CGFloat kButtonHeight = 24;
constexpr CGFloat kButtonWidth = 96;

} // namespace imageposition

#endif
