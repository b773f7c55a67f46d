/// Plain texts in a window.
#ifndef IMAGEPOSITION_HOST_LABELS_H
#define IMAGEPOSITION_HOST_LABELS_H

#import <AppKit/AppKit.h>

#include <string>

namespace imageposition {

/// A text that nobody edits, as large as it needs to be. Not owned by the caller.
NSTextField *makeLabel(const std::string &text, bool bold = false);

} // namespace imageposition

#endif
