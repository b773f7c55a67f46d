/// Asks for the user name and password that CUPS requires.
#ifndef IMAGEPOSITION_GUI_QUESTIONS_PASSWORDPANEL_H
#define IMAGEPOSITION_GUI_QUESTIONS_PASSWORDPANEL_H

#import <AppKit/AppKit.h>

#include "PasswordQuestion.hpp"

#include <optional>
#include <string>

namespace imageposition {

/// Waits for the user, over `parent`. None when the user cancelled. Main thread.
std::optional<Credentials> askForPassword(NSWindow *parent, const std::string &printer,
                                          const PasswordRequest &request);

} // namespace imageposition

#endif
