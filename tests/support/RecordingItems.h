/// View items for tests. They are not views, but record the calls that they receive.
#ifndef IMAGEPOSITION_TESTS_SUPPORT_RECORDINGITEMS_H
#define IMAGEPOSITION_TESTS_SUPPORT_RECORDINGITEMS_H

#import "MorvaADPItemProtocols.h"

#include "Journal.hpp"

#include <functional>
#include <string>

namespace imageposition::test {

/// The protocols that an item conforms to; combine with `|`.
enum Capability : unsigned {
  kNone = 0,
  kViewAvailable = 1,
  kLocalizable = 2,
  kAction = 4,
  kTextField = 8,
  kInteger = 16,
  kStepper = 32,
  /// The protocols of the panel's items.
  kEntryField = kAction | kViewAvailable | kTextField | kInteger,
  kStepperItem = kAction | kViewAvailable | kStepper,
  kLabel = kViewAvailable | kLocalizable,
};

} // namespace imageposition::test

/// Implements every method that a setting could call, whatever protocols it conforms to, so that
/// the journal shows calls that should not have been made: "NAME.getInt", "NAME.getSteps",
/// "NAME.getString", "NAME.tag", "NAME.setString:TEXT", "NAME.setStringValue:TEXT",
/// "NAME.setRange:MAX Min:MIN", "NAME.setViewAvailable:1", "NAME.setRangeStrings:TEXT",
/// "NAME.applyLocalizableStrings:KEY BundleInfo:PATH", "NAME.catchEventCall".
@interface RecordingItem : NSObject {
@public
  /// `getInt` returns this; `setStringValue:` does not change it.
  int32_t number;
  /// The steps that the next `getSteps` returns; 0 afterwards.
  int32_t steps;
  NSInteger tagValue;
  void *state; ///< Used by the functions below.
}
/// An autoreleased item of a class that conforms to exactly these protocols, or of the receiver if
/// that is a subclass.
+ (RecordingItem *)itemNamed:(const char *)name
                capabilities:(unsigned)capabilities
                     journal:(imageposition::test::Journal *)journal;
@end

namespace imageposition::test {

/// The last argument of `setString:` or `setStringValue:`.
std::string shownBy(RecordingItem *item);

/// Calls `action` in every method of the item, after recording it and before returning, with its
/// line in the journal without the item's name.
void onEachOperationOf(RecordingItem *item, std::function<void(const std::string &)> action);

} // namespace imageposition::test

#endif
