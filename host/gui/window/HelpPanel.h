/// The dialog's help.
#ifndef IMAGEPOSITION_HOST_HELPPANEL_H
#define IMAGEPOSITION_HOST_HELPPANEL_H

#import <AppKit/AppKit.h>

namespace imageposition {

/// Shows it over `parent` until the person closes it. Main thread.
void showHelp(NSWindow *parent);

} // namespace imageposition

#endif
