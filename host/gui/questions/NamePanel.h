/// Asks for a name.
#ifndef IMAGEPOSITION_GUI_QUESTIONS_NAMEPANEL_H
#define IMAGEPOSITION_GUI_QUESTIONS_NAMEPANEL_H

#import <AppKit/AppKit.h>

#include <optional>
#include <string>

namespace imageposition {

/// Waits for the user, over `parent`. None when the user cancelled or left the name empty. Main
/// thread.
std::optional<std::string> askForName(NSWindow *parent, const std::string &question,
                                      const std::string &suggestion);

/// The same for the file of a ticket; returns its path. Also asks before an existing file is
/// replaced.
std::optional<std::string> askForTicket(NSWindow *parent, const std::string &suggestion);

} // namespace imageposition

#endif
