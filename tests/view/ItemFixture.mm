#import "ItemFixture.h"

#import "MorvaADPIntegerTextFieldItemRV2.h"

@implementation FixtureStrings
+ (FixtureStrings *)stringsReturning:(NSString *)text {
  FixtureStrings *strings = [[[FixtureStrings alloc] init] autorelease];
  strings->result = [text copy];
  return strings;
}
- (void)dealloc {
  [result release];
  [lastLookup release];
  [super dealloc];
}
- (NSString *)localizedStringForKey:(NSString *)key
                              value:(NSString *)value
                              table:(NSString *)table {
  [lastLookup release];
  lastLookup = [[NSString alloc] initWithFormat:@"%@|%@|%@", key, value, table];
  return result;
}
- (NSString *)lastLookup {
  return lastLookup;
}
@end

@implementation FixtureListener
+ (FixtureListener *)listenerFor:(NSString *)name object:(id)object {
  FixtureListener *listener = [[[FixtureListener alloc] init] autorelease];
  [[NSNotificationCenter defaultCenter] addObserver:listener
                                           selector:@selector(receive:)
                                               name:name
                                             object:object];
  return listener;
}
- (void)dealloc {
  [[NSNotificationCenter defaultCenter] removeObserver:self];
  [super dealloc];
}
- (void)receive:(NSNotification *)notification {
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
  // The control tracks the mouse from the press to the release, which must already be in the queue.
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
