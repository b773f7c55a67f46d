/// The help window.
#ifndef IMAGEPOSITION_GUI_QUESTIONS_HELPPANEL_H
#define IMAGEPOSITION_GUI_QUESTIONS_HELPPANEL_H

#import <AppKit/AppKit.h>

namespace imageposition {

/// Shows the help over `parent` until the user closes it. Main thread.
void showHelp(NSWindow *parent);

} // namespace imageposition

#endif
