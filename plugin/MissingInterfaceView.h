/// What the pane shows when its interface file cannot be loaded.
#ifndef IMAGEPOSITION_PLUGIN_MISSINGINTERFACEVIEW_H
#define IMAGEPOSITION_PLUGIN_MISSINGINTERFACEVIEW_H

#import <AppKit/AppKit.h>

namespace imageposition {

/// A text, in the bundle's words, that says so and what to do. A new view, not owned by the caller.
NSView *missingInterfaceView(NSBundle *bundle);

} // namespace imageposition

#endif
