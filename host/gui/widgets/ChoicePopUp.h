/// An option's choices in a pop-up.
#ifndef IMAGEPOSITION_GUI_WIDGETS_CHOICEPOPUP_H
#define IMAGEPOSITION_GUI_WIDGETS_CHOICEPOPUP_H

#import <AppKit/AppKit.h>

#include "PrinterOptions.hpp"

#include <string>
#include <vector>

namespace imageposition {

/// Shows the choices and selects the one that holds. Where the user can enter a value, one more
/// item, the last, leads there. Returns the choices' keywords in the order of the items.
std::vector<std::string> showChoices(NSPopUpButton *popUp, const PrinterOption &option);

} // namespace imageposition

#endif
