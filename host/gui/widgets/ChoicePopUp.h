/// An option's choices in a pop-up.
#ifndef IMAGEPOSITION_HOST_CHOICEPOPUP_H
#define IMAGEPOSITION_HOST_CHOICEPOPUP_H

#import <AppKit/AppKit.h>

#include "PrinterOptions.hpp"

#include <string>
#include <vector>

namespace imageposition {

/// Shows the choices and which of them holds. Where a value can be entered one more item, the last,
/// leads to entering it. Answers the choices' keywords; an item beyond them is that one.
std::vector<std::string> showChoices(NSPopUpButton *popUp, const PrinterOption &option);

} // namespace imageposition

#endif
