#import "OpenList.h"

#import "KeyWindow.h"
#import "ListKeyEvent.h"
#import "Theme.h"
#import "UnmanagedWindow.h"

#include <algorithm>
#include <cmath>

using imageposition::kListRowHeight;
using imageposition::ListKey;
using imageposition::TypeAhead;

namespace {

constexpr CGFloat kEdge = 1;
constexpr CGFloat kScroller = 18;
constexpr CGFloat kDragged = 6; // pixels; a shorter movement is part of a click
constexpr NSTimeInterval kScrollInterval = 0.05;

} // namespace

/// Never takes the focus from the window that it belongs to.
@interface ListWindow : NSPanel
@end

@implementation ListWindow

- (BOOL)canBecomeKeyWindow {
  return NO;
}

@end

/// An edge around the list, which has no window frame.
@interface ListFrame : NSView
@end

@implementation ListFrame

- (void)drawRect:(NSRect)dirty {
  (void)dirty;
  [imageposition::outlineColor() set];
  NSFrameRect([self bounds]);
}

@end

@interface OpenList ()
- (void)makeWindow;
- (void)readItems;
- (void)place;
- (void)itemsChanged:(NSNotification *)notification;
- (void)reload;
- (void)follow;
- (void)close:(NSNotification *)notification;
- (void)choose:(NSInteger)index;
- (void)show:(NSInteger)index;
- (NSInteger)itemUnderPointer;
- (void)highlightUnderPointer;
- (BOOL)isOnScroller:(NSEvent *)event;
- (void)handle:(NSEvent *)event;
- (void)press:(NSEvent *)event;
- (void)letGo:(NSEvent *)event;
- (void)key:(NSEvent *)event;
- (void)scrollTowardsPointer;
@end

@implementation OpenList

- (id)initWithPopUp:(NSPopUpButton *)thePopUp {
  if ((self = [super init]) == nil)
    return nil;
  popUp = [thePopUp retain];
  typeAhead = new TypeAhead;
  items = new std::vector<imageposition::ListItem>;
  chosen = -1;
  [self makeWindow];
  [self readItems];
  return self;
}

- (void)dealloc {
  [[NSNotificationCenter defaultCenter] removeObserver:self];
  [window orderOut:nil];
  [window release];
  [scroll release];
  [list release];
  [titles release];
  [popUp release];
  delete typeAhead;
  delete items;
  [super dealloc];
}

- (NSInteger)chosenIndex {
  return chosen;
}

- (void)makeWindow {
  window = [[ListWindow alloc] initWithContentRect:NSMakeRect(0, 0, 100, 100)
                                         styleMask:NSBorderlessWindowMask
                                           backing:NSBackingStoreBuffered
                                             defer:NO];
  [window setReleasedWhenClosed:NO];
  [window setLevel:NSPopUpMenuWindowLevel];
  imageposition::hideFromWindowManager(window);
  [window setAcceptsMouseMovedEvents:YES];
}

- (void)readItems {
  [titles release];
  titles = [[popUp itemTitles] copy];
  [list release];
  items->clear();
  list = [[ChoiceListView alloc] initWithPopUp:popUp];
  for (NSInteger i = 0; i < [list numberOfItems]; i++)
    items->push_back(
        imageposition::listItem([list itemTitleAtIndex:i], [list isItemEnabledAtIndex:i]));
}

/// Below the pop-up or above it, where more of the list has room; within the screen.
- (void)place {
  NSWindow *const owner = [popUp window];
  const NSRect button = [popUp convertRect:[popUp bounds] toView:nil];
  const CGFloat scale = [owner userSpaceScaleFactor];
  const NSRect screen = [[owner screen] visibleFrame];
  const NSPoint low = [owner convertBaseToScreen:button.origin];
  const NSPoint high = [owner convertBaseToScreen:NSMakePoint(NSMinX(button), NSMaxY(button))];
  const CGFloat below = (low.y - NSMinY(screen)) / scale;
  const CGFloat above = (NSMaxY(screen) - high.y) / scale;
  const NSSize wanted = [list wantedSize];
  const bool isBelow = wanted.height + 2 * kEdge <= below || below >= above;
  const CGFloat room = std::floor(isBelow ? below : above) - 2 * kEdge;
  const bool scrolls = wanted.height > room;
  const CGFloat height =
      scrolls ? std::max(kListRowHeight, std::floor(room / kListRowHeight) * kListRowHeight)
              : wanted.height;
  const CGFloat most = NSWidth(screen) / scale - 2 * kEdge;
  const CGFloat width = std::min(
      most, std::max(NSWidth(button) - 2 * kEdge, wanted.width + (scrolls ? kScroller : 0)));
  [window setContentSize:NSMakeSize(width + 2 * kEdge, height + 2 * kEdge)];
  NSView *const frame = [[[ListFrame alloc]
      initWithFrame:NSMakeRect(0, 0, width + 2 * kEdge, height + 2 * kEdge)] autorelease];
  [window setContentView:frame];
  [scroll release];
  scroll = [[KeyScrollView alloc] initWithFrame:NSMakeRect(kEdge, kEdge, width, height)];
  [list setFrameSize:NSMakeSize(width - (scrolls ? kScroller : 0), wanted.height)];
  [scroll showRows:list];
  [frame addSubview:scroll];
  const NSSize size = [window frame].size;
  const CGFloat left = std::max(NSMinX(screen), std::min(low.x, NSMaxX(screen) - size.width));
  [window setFrameOrigin:NSMakePoint(left, isBelow ? low.y - size.height : high.y)];
}

- (void)close:(NSNotification *)notification {
  (void)notification;
  isOpen = NO;
}

/// One change after another; once the last is made, the list follows.
- (void)itemsChanged:(NSNotification *)notification {
  (void)notification;
  if (!isStale)
    [self performSelector:@selector(reload)
               withObject:nil
               afterDelay:0
                  inModes:[NSArray arrayWithObject:NSEventTrackingRunLoopMode]];
  isStale = YES;
}

- (void)reload {
  isStale = NO;
  const NSInteger before = [list highlightedItemIndex];
  NSString *const title =
      before < 0 ? nil
                 : [[[titles objectAtIndex:static_cast<NSUInteger>(before)] retain] autorelease];
  [self readItems];
  [self place];
  const auto none = static_cast<NSUInteger>(NSNotFound);
  const NSUInteger now = title == nil ? none : [titles indexOfObject:title];
  if (now != none)
    [self show:static_cast<NSInteger>(now)];
}

- (NSString *)titleChosenFrom:(NSEvent *)event {
  [self place];
  NSNotificationCenter *const center = [NSNotificationCenter defaultCenter];
  for (NSString *name : {NSWindowDidResignKeyNotification, NSWindowDidMoveNotification,
                         NSWindowDidResizeNotification, NSWindowWillCloseNotification})
    [center addObserver:self selector:@selector(close:) name:name object:[popUp window]];
  [center addObserver:self
             selector:@selector(close:)
                 name:NSApplicationDidResignActiveNotification
               object:NSApp];
  for (NSString *name : {NSMenuDidAddItemNotification, NSMenuDidRemoveItemNotification,
                         NSMenuDidChangeItemNotification})
    [center addObserver:self selector:@selector(itemsChanged:) name:name object:[popUp menu]];
  isOpen = YES;
  isPressed = event != nil && [event type] == NSLeftMouseDown;
  pressed = [NSEvent mouseLocation];
  [self show:[popUp indexOfSelectedItem]];
  [window orderFront:nil];
  if (event != nil && [event type] == NSKeyDown)
    [self key:event];
  [self follow];
  [center removeObserver:self];
  [NSObject cancelPreviousPerformRequestsWithTarget:self];
  [window orderOut:nil];
  return chosen < 0 ? nil : [titles objectAtIndex:static_cast<NSUInteger>(chosen)];
}

/// Leaves the events that the dialog posts to itself until the list is closed: they may open
/// another window.
- (void)follow {
  while (isOpen) {
    NSAutoreleasePool *const pool = [[NSAutoreleasePool alloc] init];
    NSEvent *const event = [NSApp
        nextEventMatchingMask:NSAnyEventMask & ~NSApplicationDefinedMask
                    untilDate:isPressed ? [NSDate dateWithTimeIntervalSinceNow:kScrollInterval]
                                        : [NSDate distantFuture]
                       inMode:NSEventTrackingRunLoopMode
                      dequeue:YES];
    if (event != nil)
      [self handle:event];
    else
      [self scrollTowardsPointer];
    [pool release];
  }
}

- (void)handle:(NSEvent *)event {
  switch ([event type]) {
  case NSKeyDown:
    return [self key:event];
  case NSLeftMouseDown:
    return [self press:event];
  case NSLeftMouseUp:
    return [self letGo:event];
  case NSMouseMoved:
  case NSLeftMouseDragged:
    return [self highlightUnderPointer];
  case NSScrollWheel:
    [scroll scrollWheel:event];
    return [self highlightUnderPointer];
  case NSRightMouseDown:
  case NSOtherMouseDown:
    return [self close:nil];
  case NSKeyUp:
  case NSRightMouseUp:
  case NSOtherMouseUp:
    return;
  default:
    [NSApp sendEvent:event];
  }
}

- (NSInteger)itemUnderPointer {
  const NSPoint inWindow = [window convertScreenToBase:[NSEvent mouseLocation]];
  if (!NSMouseInRect([scroll convertPoint:inWindow fromView:nil], [scroll bounds],
                     [scroll isFlipped]))
    return -1;
  return [list itemAt:[list convertPoint:inWindow fromView:nil]];
}

- (void)highlightUnderPointer {
  const NSInteger item = [self itemUnderPointer];
  if (item < 0)
    return;
  hasEntered = YES;
  [list highlight:[list isItemEnabledAtIndex:item] ? item : -1];
}

- (BOOL)isOnScroller:(NSEvent *)event {
  if ([event window] != window)
    return NO;
  NSView *const hit = imageposition::viewUnder(event, window);
  return [hit isKindOfClass:[NSScroller class]];
}

- (void)press:(NSEvent *)event {
  if ([self isOnScroller:event]) {
    [window sendEvent:event];
    return;
  }
  isPressed = YES;
  pressed = [NSEvent mouseLocation];
  if ([event window] != window)
    [self close:nil];
  else
    [self highlightUnderPointer];
}

/// The release of the click that opened the list leaves it open.
- (void)letGo:(NSEvent *)event {
  const NSPoint now = [NSEvent mouseLocation];
  const bool isDragged = std::hypot(now.x - pressed.x, now.y - pressed.y) > kDragged;
  const bool isInList = [event window] == window || isDragged;
  isPressed = NO;
  if (isInList)
    [self choose:[self itemUnderPointer]];
}

- (void)choose:(NSInteger)index {
  if (index < 0 || ![list isItemEnabledAtIndex:index])
    return;
  chosen = index;
  isOpen = NO;
}

/// Typing goes on in the next control, not in the list.
- (void)leave:(NSEvent *)event {
  [self choose:[list highlightedItemIndex]];
  [self close:nil];
  [NSApp postEvent:event atStart:YES];
}

- (void)show:(NSInteger)index {
  [list highlight:index];
  if (index >= 0)
    [list scrollRectToVisible:[list rectOfItemAtIndex:index]];
}

- (void)key:(NSEvent *)event {
  using Kind = ListKey::Kind;
  const ListKey key = imageposition::listKeyOf(event);
  const auto now = TypeAhead::Time::clock::now();
  const int current = static_cast<int>([list highlightedItemIndex]);
  const int page = static_cast<int>([scroll contentSize].height / kListRowHeight);
  if (key.kind == Kind::Toggle || key.kind == Kind::Dismiss)
    [self close:nil];
  else if (key.kind == Kind::Leave)
    [self leave:event];
  else if (key.kind == Kind::Move)
    [self show:imageposition::movedInList(*items, current, key.move, page)];
  else if (key.kind == Kind::Letters || (key.kind == Kind::Blank && typeAhead->isTyping(now))) {
    const int found = typeAhead->type(*items, current, key.letters, now);
    if (found >= 0)
      [self show:found];
  } else if (key.kind == Kind::Choose || key.kind == Kind::Blank)
    [self choose:current];
}

/// While the mouse button is down beyond the list's end.
- (void)scrollTowardsPointer {
  if (!hasEntered) // the pointer is still on the pop-up
    return;
  const NSPoint pointer = [list convertPoint:[window convertScreenToBase:[NSEvent mouseLocation]]
                                    fromView:nil];
  const NSRect visible = [scroll documentVisibleRect];
  const NSInteger first = [list itemAt:NSMakePoint(1, NSMinY(visible) + 1)];
  const NSInteger last = [list itemAt:NSMakePoint(1, NSMaxY(visible) - 1)];
  if (pointer.y < NSMinY(visible) && first > 0)
    [self show:first - 1];
  else if (pointer.y > NSMaxY(visible) && last >= 0 && last + 1 < [list numberOfItems])
    [self show:last + 1];
}

@end
