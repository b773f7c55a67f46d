/// What the dialog says, however long it is.
#ifndef IMAGEPOSITION_HOST_MESSAGEVIEW_H
#define IMAGEPOSITION_HOST_MESSAGEVIEW_H

#import "KeyScrollView.h"

/// A text in lines; it scrolls when it is higher than the view.
@interface MessageView : KeyScrollView {
  NSTextField *label; ///< The view's.
}
- (void)setStringValue:(NSString *)text;
@end

#endif
