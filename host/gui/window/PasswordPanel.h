/// Asks for the name and password that CUPS wants.
#ifndef IMAGEPOSITION_HOST_PASSWORDPANEL_H
#define IMAGEPOSITION_HOST_PASSWORDPANEL_H

#import <AppKit/AppKit.h>

#include "PasswordQuestion.hpp"

#include <optional>
#include <string>

namespace imageposition {

/// Waits for the person, over `parent`. None when they cancelled. Main thread.
std::optional<Credentials> askForPassword(NSWindow *parent, const std::string &printer,
                                          const PasswordRequest &request);

} // namespace imageposition

#endif
