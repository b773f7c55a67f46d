/// Asks for a value of an option that is not among its choices.
#ifndef IMAGEPOSITION_GUI_QUESTIONS_VALUEPANEL_H
#define IMAGEPOSITION_GUI_QUESTIONS_VALUEPANEL_H

#import <AppKit/AppKit.h>

#include "CustomValue.hpp"

#include <optional>
#include <string>

namespace imageposition {

/// Waits for the user, over `parent`: a field for each parameter, with its range beside it. Each
/// key is checked, and the window can be confirmed only with a value that the printer takes. The
/// fields begin with `current` if that is a custom value, otherwise with the ranges' lower ends;
/// lengths are in the unit of `current`, or else in `unit`. Returns the option's new value; none
/// when the user cancelled. Main thread.
std::optional<std::string> askForValue(NSWindow *parent, const std::string &title,
                                       const CustomOption &option, const std::string &current,
                                       LengthUnit unit);

} // namespace imageposition

#endif
