/// Asks for a name.
#ifndef IMAGEPOSITION_HOST_NAMEPANEL_H
#define IMAGEPOSITION_HOST_NAMEPANEL_H

#import <AppKit/AppKit.h>

#include <optional>
#include <string>

namespace imageposition {

/// Waits for the person, over `parent`. None when they cancelled or left it empty. Main thread.
std::optional<std::string> askForName(NSWindow *parent, const std::string &question,
                                      const std::string &suggestion);

/// The same for the file of a ticket; whether one that is there may be replaced is asked, too. The
/// answer is a path.
std::optional<std::string> askForTicket(NSWindow *parent, const std::string &suggestion);

} // namespace imageposition

#endif
