#import "host/Daemons.h"

#import <AppKit/AppKit.h>

#include <objc/runtime.h>

namespace imageposition {
namespace {

/// A class operation whose implementation is another for a while.
class Replaced {
public:
  Replaced(Class owner, SEL operation) : method_(class_getClassMethod(owner, operation)) {}

  void by(IMP other) {
    if (method_ != nullptr && before_ == nullptr)
      before_ = method_setImplementation(method_, other);
  }
  void restore() {
    if (before_ != nullptr)
      method_setImplementation(method_, before_);
    before_ = nullptr;
  }

private:
  Method method_;
  IMP before_ = nullptr;
};

struct Operations {
  Replaced defaultCentre { [NSDistributedNotificationCenter class], @selector(defaultCenter) };
  Replaced centreForType {
    [NSDistributedNotificationCenter class], @selector(notificationCenterForType:)
  };
  Replaced generalPasteboard { [NSPasteboard class], @selector(generalPasteboard) };
  Replaced namedPasteboard { [NSPasteboard class], @selector(pasteboardWithName:) };
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
  operations().namedPasteboard.restore();
  id const pasteboard = [owner pasteboardWithName:name];
  operations().namedPasteboard.by(reinterpret_cast<IMP>(namedPasteboardAtLast));
  (void)operation;
  return pasteboard;
}

} // namespace

void leaveOutNotificationDaemon() {
  operations().defaultCentre.by(reinterpret_cast<IMP>(answerNothing));
  operations().centreForType.by(reinterpret_cast<IMP>(answerNothing));
}

void leaveOutPasteboardDaemon() {
  operations().generalPasteboard.by(reinterpret_cast<IMP>(answerNothing));
  operations().namedPasteboard.by(reinterpret_cast<IMP>(answerNothing));
}

void startPasteboardOnDemand() {
  operations().generalPasteboard.by(reinterpret_cast<IMP>(generalPasteboardAtLast));
  operations().namedPasteboard.by(reinterpret_cast<IMP>(namedPasteboardAtLast));
}

} // namespace imageposition
