#import "ItemFixture.h"

#import "MorvaADPIntegerTextFieldItemRV2.h"

@implementation FixtureStrings
+ (FixtureStrings *)stringsAnswering:(NSString *)text {
  FixtureStrings *strings = [[[FixtureStrings alloc] init] autorelease];
  strings->answer = [text copy];
  return strings;
}
- (void)dealloc {
  [answer release];
  [asked release];
  [super dealloc];
}
- (NSString *)localizedStringForKey:(NSString *)key
                              value:(NSString *)value
                              table:(NSString *)table {
  [asked release];
  asked = [[NSString alloc] initWithFormat:@"%@|%@|%@", key, value, table];
  return answer;
}
- (NSString *)asked {
  return asked;
}
@end

@implementation FixtureListener
+ (FixtureListener *)listenerFor:(NSString *)name object:(id)object {
  FixtureListener *listener = [[[FixtureListener alloc] init] autorelease];
  [[NSNotificationCenter defaultCenter] addObserver:listener
                                           selector:@selector(hear:)
                                               name:name
                                             object:object];
  return listener;
}
- (void)dealloc {
  [[NSNotificationCenter defaultCenter] removeObserver:self];
  [super dealloc];
}
- (void)hear:(NSNotification *)notification {
  (void)notification;
  ++count;
}
- (int)count {
  return count;
}
@end

namespace imageposition::test {

bool isLightGray(NSColor *colour) { return [colour isEqual:[NSColor lightGrayColor]] != NO; }

static NSEvent *mouseEvent(NSEventType type, NSWindow *window, NSPoint point) {
  return [NSEvent mouseEventWithType:type
                            location:point
                       modifierFlags:0
                           timestamp:[NSDate timeIntervalSinceReferenceDate]
                        windowNumber:[window windowNumber]
                             context:[NSGraphicsContext currentContext]
                         eventNumber:0
                          clickCount:1
                            pressure:1];
}

void clickInside(NSView *view, NSPoint point) {
  NSWindow *window = [view window];
  // The press follows the pointer until it meets the release, which therefore waits in the queue.
  [NSApp postEvent:mouseEvent(NSLeftMouseUp, window, point) atStart:YES];
  [view mouseDown:mouseEvent(NSLeftMouseDown, window, point)];
  [NSApp discardEventsMatchingMask:NSAnyEventMask beforeEvent:nil];
}

MorvaADPIntegerTextFieldItemRV2 *entryFieldFromInterfaceFile() {
  NSString *file = [NSString stringWithUTF8String:TEST_DATA_DIR "/EntryField.xib"];
  NSMutableArray *objects = [NSMutableArray array];
  NSDictionary *names = [NSDictionary
      dictionaryWithObjectsAndKeys:objects, NSNibTopLevelObjects,
                                   [[[NSObject alloc] init] autorelease], NSNibOwner, nil];
  if (![NSBundle loadNibFile:file externalNameTable:names withZone:NULL]) {
    return nil;
  }
  for (NSUInteger i = 0; i < [objects count]; ++i) {
    id object = [objects objectAtIndex:i];
    if (![object isKindOfClass:[NSView class]]) {
      continue;
    }
    NSArray *views = [object subviews];
    for (NSUInteger j = 0; j < [views count]; ++j) {
      if ([[views objectAtIndex:j] isKindOfClass:[MorvaADPIntegerTextFieldItemRV2 class]]) {
        return [views objectAtIndex:j];
      }
    }
  }
  return nil;
}

void ItemFixture::SetUp() {
  window = [[NSWindow alloc] initWithContentRect:NSMakeRect(50, 50, 200, 100)
                                       styleMask:NSTitledWindowMask
                                         backing:NSBackingStoreBuffered
                                           defer:NO];
  [window setReleasedWhenClosed:NO];
}

void ItemFixture::TearDown() {
  [window close];
  [window release];
}

} // namespace imageposition::test
