#import "Daemons.h"

#import "DragPasteboard.h"
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

id returnNil(id, SEL, ...) { return nil; }

/// GNUstep's name for the selection that the middle button pastes into other programs.
bool isSelection(NSString *name) { return [name isEqualToString:@"Selection"]; }

void allowDaemons() {
  operations().defaultCentre.restore();
  operations().centreForType.restore();
  operations().generalPasteboard.restore();
}

id generalPasteboardOnDemand(id owner, SEL) {
  allowDaemons();
  return [owner generalPasteboard];
}

id namedPasteboardOnDemand(id owner, SEL operation, NSString *name) {
  if ([name isEqualToString:NSDragPboard])
    return [[[DragPasteboard alloc] init] autorelease];
  if (isSelection(name))
    return nil;
  allowDaemons();
  id const pasteboard =
      operations().namedPasteboard.before<id(id, SEL, NSString *)>()(owner, operation, name);
  if (pasteboard == nil) // no daemon could be started; cutting would lose the text
    [NSException raise:NSPasteboardCommunicationException format:@"no pasteboard server"];
  return pasteboard;
}

} // namespace

void leaveOutNotificationDaemon() {
  operations().defaultCentre.by(returnNil);
  operations().centreForType.by(returnNil);
}

void leaveOutPasteboardDaemon() {
  operations().generalPasteboard.by(returnNil);
  operations().namedPasteboard.by(returnNil);
}

void startPasteboardOnDemand() {
  operations().generalPasteboard.by(generalPasteboardOnDemand);
  operations().namedPasteboard.by(namedPasteboardOnDemand);
}

} // namespace imageposition
