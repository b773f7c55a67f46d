/// An option's choices in a pop-up.
#ifndef IMAGEPOSITION_GUI_LISTS_CHOICEPOPUP_H
#define IMAGEPOSITION_GUI_LISTS_CHOICEPOPUP_H

#import "ListPopUp.h"

#include "PrinterOptions.hpp"

#include <string>
#include <vector>

namespace imageposition {

/// Shows the choices and selects the current one. If the user can enter a custom value, adds a last
/// item for it. Returns the choices' keywords in the order of the items.
std::vector<std::string> showChoices(ListPopUp *popUp, const PrinterOption &option);

} // namespace imageposition

#endif
