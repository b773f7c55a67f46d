/// Asks for a printer.
#ifndef IMAGEPOSITION_GUI_QUESTIONS_PRINTERPANEL_H
#define IMAGEPOSITION_GUI_QUESTIONS_PRINTERPANEL_H

#include "Destinations.hpp"

#import <AppKit/AppKit.h>

#include <optional>
#include <string>

namespace imageposition {

/// Shows what is wrong with the printer `queue`, which may be empty for the default, and lets
/// the user choose one of the printers, or try again if there is none; tries again itself once CUPS
/// has a printer. Returns the name of the chosen queue, `queue` to try again, or none if the user
/// cancelled. Main thread.
std::optional<std::string> askForPrinter(const std::string &problem,
                                         const DestinationList &printers, const std::string &queue);

} // namespace imageposition

#endif
