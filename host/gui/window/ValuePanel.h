/// Asks for a value of an option that is not among its choices.
#ifndef IMAGEPOSITION_HOST_VALUEPANEL_H
#define IMAGEPOSITION_HOST_VALUEPANEL_H

#import <AppKit/AppKit.h>

#include "CustomValue.hpp"

#include <optional>
#include <string>

namespace imageposition {

/// Waits for the person, over `parent`: a field for each parameter, its range beside it. What is
/// typed is checked at each key, and the window can be confirmed only with a value that the printer
/// takes. The fields begin with `current`, an entered value, or with the ranges' lower ends where
/// it is none; lengths in the unit of `current`, or else in `unit`. Answers the option's new value;
/// none when the person cancelled. Main thread.
std::optional<std::string> askForValue(NSWindow *parent, const std::string &title,
                                       const CustomOption &option, const std::string &current,
                                       LengthUnit unit);

} // namespace imageposition

#endif
