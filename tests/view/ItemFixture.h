/// What the tests of the view items share: an application with a window, and bundles that answer as
/// told.
#ifndef IMAGEPOSITION_TESTS_VIEW_ITEMFIXTURE_H
#define IMAGEPOSITION_TESTS_VIEW_ITEMFIXTURE_H

#import <AppKit/AppKit.h>

#import "Fields.h"
#import "Text.h"

#include <gtest/gtest.h>

@class MorvaADPIntegerTextFieldItemRV2;

/// Stands for a bundle with one answer to every look-up, and remembers what was asked last.
@interface FixtureStrings : NSObject {
  NSString *answer;
  NSString *asked;
}
+ (FixtureStrings *)stringsAnswering:(NSString *)answer;
/// "key|value|table" of the last look-up.
- (NSString *)asked;
@end

/// Counts the notifications of one name from one object, as long as it lives.
@interface FixtureListener : NSObject {
  int count;
}
+ (FixtureListener *)listenerFor:(NSString *)name object:(id)object;
- (int)count;
@end

namespace imageposition::test {

bool isLightGray(NSColor *colour);

/// Presses and releases the left button on the view, at a point of its window.
void clickInside(NSView *view, NSPoint pointInWindow);

/// The one entry field of this folder's interface file.
MorvaADPIntegerTextFieldItemRV2 *entryFieldFromInterfaceFile();

class ItemFixture : public testing::Test {
protected:
  void SetUp() override;
  void TearDown() override;

  template <class T> static T &field(id object, const char *name) {
    return imageposition::test::field<T>(object, name);
  }
  static std::string text(id string) { return cxxString(string); }

  NSWindow *window = nil;
};

} // namespace imageposition::test

#endif
