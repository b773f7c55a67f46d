/// The fixture for tests of view items: an application with a window, and bundles with given
/// results.
#ifndef IMAGEPOSITION_TESTS_VIEW_ITEMFIXTURE_H
#define IMAGEPOSITION_TESTS_VIEW_ITEMFIXTURE_H

#import <AppKit/AppKit.h>

#import "Fields.h"
#import "Text.h"

#include <gtest/gtest.h>

@class MorvaADPIntegerTextFieldItemRV2;

/// Replaces a bundle; returns one string for every look-up, and records the last look-up.
@interface FixtureStrings : NSObject {
  NSString *result;
  NSString *lastLookup;
}
+ (FixtureStrings *)stringsReturning:(NSString *)result;
/// "key|value|table" of the last look-up.
- (NSString *)lastLookup;
@end

/// Counts the notifications with one name from one object.
@interface FixtureListener : NSObject {
  int count;
}
+ (FixtureListener *)listenerFor:(NSString *)name object:(id)object;
- (int)count;
@end

namespace imageposition::test {

bool isLightGray(NSColor *colour);

/// Presses and releases the left mouse button on the view, at a point of its window.
void clickInside(NSView *view, NSPoint pointInWindow);

/// The entry field in this folder's interface file.
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
