/// Labels in a window.
#ifndef IMAGEPOSITION_GUI_WIDGETS_LABELS_H
#define IMAGEPOSITION_GUI_WIDGETS_LABELS_H

#import <AppKit/AppKit.h>

#include <string>

namespace imageposition {

/// A label in one line, as large as its text. The caller does not own it.
NSTextField *makeLabel(const std::string &text, bool bold = false);

/// Makes a new field into such a label.
void makeIntoLabel(NSTextField *field, const std::string &text, bool bold);

/// The string; one with more than `most` characters loses its middle to an ellipsis, since AppKit
/// lays out all of a string, however little of it is visible.
NSString *cutTo(NSUInteger most, NSString *text);

/// A label in lines of that width, as high as its text; very long texts are cut. The caller does
/// not own it.
NSTextField *makeParagraph(const std::string &text, CGFloat width, bool bold = false);
/// The height that the text of such a field needs.
CGFloat paragraphHeight(NSString *text, NSFont *font, CGFloat width);

/// Shows a string on one line of that width. One that does not fit loses its middle to an ellipsis,
/// and a tooltip shows it whole, unless it is very long.
void showCut(NSTextField *label, const std::string &text, CGFloat width);

} // namespace imageposition

#endif
