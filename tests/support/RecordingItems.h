/// View items for tests that are no views: they record what is asked of them.
#ifndef IMAGEPOSITION_TESTS_SUPPORT_RECORDINGITEMS_H
#define IMAGEPOSITION_TESTS_SUPPORT_RECORDINGITEMS_H

#import "MorvaADPItemProtocols.h"

#include "Journal.hpp"

#include <functional>
#include <string>

namespace imageposition::test {

/// The capability protocols that an item conforms to; combine with `|`.
enum Capability : unsigned {
  kNone = 0,
  kViewAvailable = 1,
  kLocalizable = 2,
  kAction = 4,
  kTextField = 8,
  kInteger = 16,
  kStepper = 32,
  /// What the items on the panel have.
  kEntryField = kAction | kViewAvailable | kTextField | kInteger,
  kStepperItem = kAction | kViewAvailable | kStepper,
  kLabel = kViewAvailable | kLocalizable,
};

} // namespace imageposition::test

/// Answers every operation that a setting could send, whatever protocols it conforms to, so that
/// one which should not have been sent stands in the journal: "NAME.getInt", "NAME.getSteps",
/// "NAME.getString", "NAME.tag", "NAME.setString:TEXT", "NAME.setStringValue:TEXT",
/// "NAME.setRange:MAX Min:MIN", "NAME.setViewAvailable:1", "NAME.setRangeStrings:TEXT",
/// "NAME.applyLocalizableStrings:KEY BundleInfo:PATH", "NAME.catchEventCall".
@interface RecordingItem : NSObject {
@public
  /// `getInt` answers this; `setStringValue:` does not change it.
  int32_t number;
  /// The steps that the next `getSteps` answers; 0 afterwards.
  int32_t steps;
  NSInteger tagValue;
  void *state; ///< Used by the functions below.
}
/// An item of a class that conforms to exactly these protocols, or of the receiver when that is a
/// subclass; the caller does not own it.
+ (RecordingItem *)itemNamed:(const char *)name
                capabilities:(unsigned)capabilities
                     journal:(imageposition::test::Journal *)journal;
@end

namespace imageposition::test {

/// What `setString:` or `setStringValue:` gave the item last.
std::string shownBy(RecordingItem *item);

/// `action` is called in every operation of the item, with its line in the journal without the
/// item's name, after it was recorded and before it answers.
void onEachOperationOf(RecordingItem *item, std::function<void(const std::string &)> action);

} // namespace imageposition::test

#endif
