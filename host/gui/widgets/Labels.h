/// Labels in a window.
#ifndef IMAGEPOSITION_GUI_WIDGETS_LABELS_H
#define IMAGEPOSITION_GUI_WIDGETS_LABELS_H

#import <AppKit/AppKit.h>

#include <string>

namespace imageposition {

/// A label on one line, as large as its text. The caller does not own it.
NSTextField *makeLabel(const std::string &text, bool bold = false);

/// Turns a new field into such a label.
void makeIntoLabel(NSTextField *field, const std::string &text, bool bold);

/// The string, with an ellipsis in place of its middle if it has more than `most` characters:
/// AppKit lays out all of a string, however little of it is visible.
NSString *cutTo(NSUInteger most, NSString *text);

/// `font`, or a font of its size that has the characters of the string, for names that users gave.
NSFont *fontThatShows(NSString *text, NSFont *font);

/// A label wrapped to that width, as high as its text; a very long string is cut. The caller does
/// not own it.
NSTextField *makeParagraph(const std::string &text, CGFloat width, bool bold = false);
/// The height that `text` needs in such a field.
CGFloat paragraphHeight(NSString *text, NSFont *font, CGFloat width);

/// Shows a string on one line of that width. If it does not fit, an ellipsis replaces its middle,
/// and a tooltip shows the full string unless it is very long. `ending` follows the string, and is
/// kept whole if there is room for it and for some of the string.
void showCut(NSTextField *label, const std::string &text, CGFloat width,
             const std::string &ending = {});

} // namespace imageposition

#endif
