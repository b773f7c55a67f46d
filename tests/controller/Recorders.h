/// Stand-ins for what the controller's fields hold. Each writes what is asked of it into a journal,
/// as "NAME.operation" with the argument behind the colon.
#ifndef IMAGEPOSITION_TESTS_CONTROLLER_RECORDERS_H
#define IMAGEPOSITION_TESTS_CONTROLLER_RECORDERS_H

#import "MorvaADPSettingsCollectorRV2.h"

#include "Journal.hpp"

#include <string>

/// What all of them share. `release` is written down when `recordsReleases` is set.
@interface Recorder : NSObject {
@public
  imageposition::test::Journal *journal;
  std::string *name;
  BOOL recordsReleases;
}
- (id)initWithName:(const std::string &)name journal:(imageposition::test::Journal *)journal;
- (void)record:(const std::string &)operation;
@end

/// An entry field, stepper, label, checkbox or button. Colours are written "black", "lightGray" or
/// by their description.
@interface RecordingControl : Recorder {
@public
  NSInteger stateValue;
  NSString *text;
}
- (void)catchEventCall;
@end

/// A control on which a person acts.
@interface RecordingActor : RecordingControl <ActionInterface>
@end

/// A setting. The print settings that it is handed are written "settings", or "null".
@interface RecordingSetting : Recorder {
@public
  std::string *value;
  NSArray *related;
  NSArray *targets;
}
@end

/// A bundle whose text for KEY is "[KEY]"; a look-up with a default value or a table says so.
@interface RecordingStrings : Recorder
@end

/// The controller, writing down its own operations as they are called, "self.grayUI". The journal
/// is the class's, because construction already calls some.
@interface RecordingController : MorvaADPSettingsCollectorRV2
+ (void)recordInto:(imageposition::test::Journal *)journal;
@end

#endif
