/// Plain texts in a window.
#ifndef IMAGEPOSITION_HOST_LABELS_H
#define IMAGEPOSITION_HOST_LABELS_H

#import <AppKit/AppKit.h>

#include <string>

namespace imageposition {

/// A text that nobody edits, as large as it needs to be. Not owned by the caller.
NSTextField *makeLabel(const std::string &text, bool bold = false);

/// Makes a new field into such a text.
void makeIntoLabel(NSTextField *field, const std::string &text, bool bold);

/// The text, or of one that is longer its beginning and its end with an ellipsis between: the
/// platform lays a text out whole, however little of it is seen.
NSString *cutTo(NSUInteger most, NSString *text);

/// In lines of that width, as high as they need to be; very long texts are cut.
NSTextField *makeParagraph(const std::string &text, CGFloat width, bool bold = false);
/// The height that the text of such a field needs.
CGFloat paragraphHeight(NSString *text, NSFont *font, CGFloat width);

/// Shows a text of one line in a label of that width: what does not fit is left out of its middle,
/// with an ellipsis, and the whole of it, unless it is very long, in a tooltip.
void showCut(NSTextField *label, const std::string &text, CGFloat width);

} // namespace imageposition

#endif
