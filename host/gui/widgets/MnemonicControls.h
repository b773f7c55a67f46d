/// Texts and buttons that show which letter reaches a control.
#ifndef IMAGEPOSITION_HOST_MNEMONICCONTROLS_H
#define IMAGEPOSITION_HOST_MNEMONICCONTROLS_H

#import "KeyWindow.h"

#include <string>

namespace imageposition {

// Nothing that is made here is the caller's. Texts have the markers of host/Mnemonic.hpp.

/// A control's title, as large as it needs to be, with its letter underlined.
NSTextField *makeTitle(const std::string &marked);

/// A push button, as wide as buttons are or its title needs; `kButtonHeight` high.
NSButton *makeButton(const std::string &marked, id target, SEL action);

/// A checkbox.
NSButton *makeSwitch(const std::string &marked, id target, SEL action);

constexpr CGFloat kButtonHeight = 24;
constexpr CGFloat kButtonWidth = 96;

} // namespace imageposition

#endif
