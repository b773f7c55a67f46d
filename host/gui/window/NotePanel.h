/// Something to be read before the dialog goes on.
#ifndef IMAGEPOSITION_HOST_NOTEPANEL_H
#define IMAGEPOSITION_HOST_NOTEPANEL_H

#import <AppKit/AppKit.h>

#include <string>

namespace imageposition {

/// Shows it over `parent` until the person closes it. Main thread.
void showNote(NSWindow *parent, const std::string &title, const std::string &note);

} // namespace imageposition

#endif
