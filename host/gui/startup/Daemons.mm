#import "Daemons.h"

#import "Replaced.h"

#import <AppKit/AppKit.h>

namespace imageposition {
namespace {

struct Operations {
  Replaced defaultCentre =
      Replaced::classOperation([NSDistributedNotificationCenter class], @selector(defaultCenter));
  Replaced centreForType = Replaced::classOperation([NSDistributedNotificationCenter class],
                                                    @selector(notificationCenterForType:));
  Replaced generalPasteboard =
      Replaced::classOperation([NSPasteboard class], @selector(generalPasteboard));
  Replaced namedPasteboard =
      Replaced::classOperation([NSPasteboard class], @selector(pasteboardWithName:));
};

Operations &operations() {
  static Operations those;
  return those;
}

id answerNothing(id, SEL, ...) { return nil; }

/// The platform's name for what is selected, as other programs' middle button pastes it.
bool isSelection(NSString *name) { return [name isEqualToString:@"Selection"]; }

void letDaemonsIn() {
  operations().defaultCentre.restore();
  operations().centreForType.restore();
  operations().generalPasteboard.restore();
}

id generalPasteboardAtLast(id owner, SEL) {
  letDaemonsIn();
  return [owner generalPasteboard];
}

id namedPasteboardAtLast(id owner, SEL operation, NSString *name) {
  if (isSelection(name))
    return nil;
  letDaemonsIn();
  id const pasteboard =
      operations().namedPasteboard.before<id(id, SEL, NSString *)>()(owner, operation, name);
  if (pasteboard == nil) // where there is no server to start; cutting to it would lose the text
    [NSException raise:NSPasteboardCommunicationException format:@"no pasteboard server"];
  return pasteboard;
}

} // namespace

void leaveOutNotificationDaemon() {
  operations().defaultCentre.by(answerNothing);
  operations().centreForType.by(answerNothing);
}

void leaveOutPasteboardDaemon() {
  operations().generalPasteboard.by(answerNothing);
  operations().namedPasteboard.by(answerNothing);
}

void startPasteboardOnDemand() {
  operations().generalPasteboard.by(generalPasteboardAtLast);
  operations().namedPasteboard.by(namedPasteboardAtLast);
}

} // namespace imageposition
