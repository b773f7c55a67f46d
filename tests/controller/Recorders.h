/// Stand-ins for the objects in the controller's fields. Each records its calls in a journal as
/// "NAME.method", with the argument after the colon.
#ifndef IMAGEPOSITION_TESTS_CONTROLLER_RECORDERS_H
#define IMAGEPOSITION_TESTS_CONTROLLER_RECORDERS_H

#import "MorvaADPSettingsCollectorRV2.h"

#include "Journal.hpp"

#include <string>

/// The base class. Records `release` if `recordsReleases` is set.
@interface Recorder : NSObject {
@public
  imageposition::test::Journal *journal;
  std::string *name;
  BOOL recordsReleases;
}
- (id)initWithName:(const std::string &)name journal:(imageposition::test::Journal *)journal;
- (void)record:(const std::string &)operation;
@end

/// An entry field, stepper, label, checkbox or button. Colours are recorded as "black", "lightGray"
/// or their description.
@interface RecordingControl : Recorder {
@public
  NSInteger stateValue;
  NSString *text;
}
- (void)catchEventCall;
@end

/// A control that the user operates.
@interface RecordingActor : RecordingControl <ActionInterface>
@end

/// A setting. Print settings are recorded as "settings" or "null".
@interface RecordingSetting : Recorder {
@public
  std::string *value;
  NSArray *related;
  NSArray *targets;
}
@end

/// A bundle whose string for KEY is "[KEY]"; a look-up with a default value or a table returns a
/// complaint.
@interface RecordingStrings : Recorder
@end

/// A controller that records calls of its own methods as "self.grayUI". The journal belongs to the
/// class, because the initializer already calls some.
@interface RecordingController : MorvaADPSettingsCollectorRV2
+ (void)recordInto:(imageposition::test::Journal *)journal;
@end

#endif
