#import "KeyWindow.h"

#import "Checkbox.h"
#import "Guard.h"
#import "KeyScrollView.h"
#include "Mnemonic.hpp"

#include <algorithm>

using imageposition::ControlKey;
using imageposition::isCheckbox;

namespace {

constexpr CGFloat kFocusMargin = 6; // visible above and below the focused view

enum class Key { Other, Confirm, Dismiss, Help };

Key keyOf(NSEvent *event) {
  NSString *const characters = [event charactersIgnoringModifiers];
  if ([characters length] != 1)
    return Key::Other;
  switch ([characters characterAtIndex:0]) {
  case NSCarriageReturnCharacter:
  case NSNewlineCharacter:
  case NSEnterCharacter:
    return Key::Confirm;
  case 0x1B:
    return Key::Dismiss;
  case NSF1FunctionKey:
    return Key::Help;
  default:
    return Key::Other;
  }
}

/// The editing operation of Control and a letter, or null.
SEL editingOperationOf(NSEvent *event) {
  const NSUInteger modifiers =
      [event modifierFlags] & (NSControlKeyMask | NSAlternateKeyMask | NSCommandKeyMask);
  NSString *const characters = [event charactersIgnoringModifiers];
  if (modifiers != NSControlKeyMask || [characters length] != 1)
    return nullptr;
  switch ([characters characterAtIndex:0]) {
  case 'c':
    return @selector(copy:);
  case 'x':
    return @selector(cut:);
  case 'v':
    return @selector(paste:);
  case 'a':
    return @selector(selectAll:);
  case 'z':
    return @selector(undoEdit:);
  default:
    return nullptr;
  }
}

BOOL isButton(id responder) {
  return [responder isKindOfClass:[NSButton class]] &&
         ![responder isKindOfClass:[NSPopUpButton class]]; // the space bar opens it
}

BOOL isPushButton(id responder) {
  return isButton(responder) && !isCheckbox([(NSButton *)responder cell]);
}

/// An open menu handles the keys itself.
BOOL hasOpenMenu(id responder) {
  return [responder isKindOfClass:[NSPopUpButton class]] &&
         [[[(NSPopUpButton *)responder menu] window] isVisible];
}

BOOL movesFocus(NSEvent *event) {
  NSString *const characters = [event charactersIgnoringModifiers];
  return [characters isEqualToString:@"\t"] || [characters isEqualToString:@"\x19"];
}

/// GNUstep scrolls only the innermost of nested views.
void scrollIntoSight(NSView *view) {
  const NSRect shown = NSInsetRect([view bounds], 0, -kFocusMargin);
  [view scrollRectToVisible:shown];
  for (NSScrollView *outer = [view enclosingScrollView]; outer != nil;
       outer = [outer enclosingScrollView])
    [outer scrollRectToVisible:[outer convertRect:shown fromView:view]];
}

constexpr NSUInteger kMouseEvents =
    NSLeftMouseDownMask | NSLeftMouseUpMask | NSLeftMouseDraggedMask | NSRightMouseDownMask |
    NSRightMouseUpMask | NSRightMouseDraggedMask | NSOtherMouseDownMask | NSOtherMouseUpMask |
    NSOtherMouseDraggedMask | NSMouseMovedMask | NSScrollWheelMask;

/// How many pages down a key turns; 0 for other keys.
int pagesOf(NSEvent *event) {
  constexpr NSUInteger kModifiers =
      NSShiftKeyMask | NSControlKeyMask | NSAlternateKeyMask | NSCommandKeyMask;
  NSString *const characters = [event characters];
  if (([event modifierFlags] & kModifiers) != 0 || [characters length] != 1)
    return 0;
  switch ([characters characterAtIndex:0]) {
  case NSPageUpFunctionKey:
    return -1;
  case NSPageDownFunctionKey:
    return 1;
  default:
    return 0;
  }
}

/// The view that an event is for, or null.
NSView *targetOf(NSEvent *event, KeyWindow *window) {
  const NSUInteger mask = NSEventMaskFromType([event type]);
  if ((mask & kMouseEvents) != 0)
    return imageposition::viewUnder(event, window);
  return (mask & (NSKeyDownMask | NSKeyUpMask)) != 0 ? [window focusedView] : nil;
}

/// Whether the user may have changed something with the event.
bool isAct(NSEvent *event) {
  return [event type] == NSLeftMouseDown || ([event type] == NSKeyDown && !movesFocus(event));
}

/// The letter that was pressed with Alt, in lower case; null for other keys. A character typed with
/// AltGr does not count: it differs from the key's letter.
NSString *letterOf(NSEvent *event) {
  constexpr NSUInteger kAlt =
      NSAlternateKeyMask | NSCommandKeyMask; // GNUstep maps the key to either
  if (([event modifierFlags] & kAlt) == 0 || ([event modifierFlags] & NSControlKeyMask) != 0)
    return nil;
  NSString *const letter = [[event charactersIgnoringModifiers] lowercaseString];
  const bool isTyped = [[[event characters] lowercaseString] isEqualToString:letter];
  return isTyped && [letter length] > 0 ? letter : nil;
}

bool isPrintable(NSString *letter) {
  const unichar character = [letter length] == 1 ? [letter characterAtIndex:0] : 0;
  return character >= ' ' && (character < NSUpArrowFunctionKey || character > 0xF8FF);
}

bool canBeReached(NSView *control) {
  return ![control isHiddenOrHasHiddenAncestor] && [control window] != nil &&
         (![control isKindOfClass:[NSControl class]] || [(NSControl *)control isEnabled]);
}

} // namespace

@interface KeyWindow ()
/// Activates the control of an Alt key; false if there is none.
- (BOOL)reachControl:(NSEvent *)event;
/// Handles the dialog's own keys, and passes other events to NSWindow.
- (void)handleEvent:(NSEvent *)event;
/// Whether the key was the dialog's own.
- (BOOL)handleKey:(NSEvent *)event;
/// Whether the delegate takes the key to turn pages.
- (BOOL)turnPagesBy:(NSEvent *)event;
/// Reports an exception to the delegate.
- (void)report:(NSString *)what in:(NSView *)view;
@end

@implementation KeyWindow

- (void)dealloc {
  delete controlKeys;
  [focusShown release];
  [fieldEditor release];
  fieldEditor = nil;
  [super dealloc];
}

- (NSText *)fieldEditor:(BOOL)isMade forObject:(id)field {
  (void)field;
  if (fieldEditor == nil && isMade)
    fieldEditor = [[FieldEditor alloc] initForWindow:self];
  return fieldEditor;
}

- (void)reach:(NSView *)control by:(const std::string &)marked {
  const std::string letter = imageposition::readMnemonic(marked).key;
  if (letter.empty())
    return;
  if (controlKeys == nullptr)
    controlKeys = new std::vector<ControlKey>;
  NSString *const lower = [imageposition::toString(letter) lowercaseString];
  controlKeys->push_back({imageposition::toText(lower), control});
}

// Scrolls to the newly focused view. Redraws both views completely: a text field redraws only its
// text. The view that loses the focus may send its action here, so its code may run.
- (BOOL)makeFirstResponder:(NSResponder *)responder {
  NSView *const before = running;
  NSView *const leaving = [[[self focusedView] retain] autorelease];
  if (leaving != nil)
    running = leaving;
  [fieldEditor finishEdits];
  const BOOL isTaken = [super makeFirstResponder:responder];
  running = before;
  NSView *const view = [self focusedView];
  if (view != leaving)
    [fieldEditor endEdits];
  [focusShown setNeedsDisplay:YES];
  [view setNeedsDisplay:YES];
  [focusShown release];
  focusShown = [view retain];
  if (isTaken && view != nil && [view window] == self)
    scrollIntoSight(view);
  return isTaken;
}

- (void)keepFocusInSight {
  if (NSView *const view = [self focusedView])
    scrollIntoSight(view);
}

- (void)focus:(NSView *)view {
  if ([self firstResponder] != view)
    [self makeFirstResponder:view];
}

- (NSView *)focusedView {
  id const responder = [self firstResponder];
  const bool isFieldEditor =
      [responder isKindOfClass:[NSText class]] && [(NSText *)responder isFieldEditor];
  id const owner = isFieldEditor ? [responder delegate] : responder;
  return [owner isKindOfClass:[NSView class]] ? owner : nil;
}

- (BOOL)reachControl:(NSEvent *)event {
  NSString *const letter = letterOf(event);
  if (letter == nil || controlKeys == nullptr)
    return NO;
  std::vector<NSView *> reached;
  for (const ControlKey &key : *controlKeys)
    if (key.letter == imageposition::toText(letter) && canBeReached(key.control))
      reached.push_back(key.control);
  if (reached.empty())
    return NO;
  const auto current = std::find(reached.begin(), reached.end(), [self focusedView]);
  const bool isLast = current == reached.end() || current + 1 == reached.end();
  NSView *const control = isLast ? reached.front() : *(current + 1);
  const bool isAlone = reached.size() == 1;
  if (!isAlone || !isPushButton(control)) // the field that loses the focus commits its text
    [self makeFirstResponder:control];
  if (isAlone && isButton(control))
    [(NSButton *)control performClick:self];
  return YES;
}

- (BOOL)protect:(const std::function<void()> &)code {
  NSView *const before = running;
  running = nil;
  const auto raised = imageposition::whatIsRaisedBy(code);
  NSView *const culprit = [[running retain] autorelease];
  running = before;
  if (raised)
    [self report:imageposition::toString(*raised) in:culprit];
  return !raised;
}

- (void)report:(NSString *)what in:(NSView *)view {
  id<KeyWindowDelegate> const owner = (id<KeyWindowDelegate>)[self delegate];
  const auto raised = imageposition::whatIsRaisedBy([=] {
    if ([what hasPrefix:NSPasteboardCommunicationException])
      [owner pasteboardFailed:what];
    else
      [owner exception:what in:view];
  });
  if (raised) // the delegate failed, too
    NSLog(@"%@; then %@", what, imageposition::toString(*raised));
}

- (void)sendEvent:(NSEvent *)event {
  KeyWindow *const window = self;
  [self protect:[=] { [window handleEvent:event]; }];
}

- (void)handleEvent:(NSEvent *)event {
  id<KeyWindowDelegate> const owner = (id<KeyWindowDelegate>)[self delegate];
  if ([event type] == NSApplicationDefined && [owner respondsToSelector:@selector(wake)]) {
    [owner wake];
    return;
  }
  NSView *const target = [[targetOf(event, self) retain] autorelease]; // the event may release it
  if ([event type] == NSKeyDown && [self handleKey:event])
    return;
  running = target;
  [super sendEvent:event];
  running = nil;
  if (target != nil && isAct(event) && [owner respondsToSelector:@selector(userActedOn:)])
    [owner userActedOn:target];
}

// The default button would otherwise handle Return before the focused control.
- (BOOL)performKeyEquivalent:(NSEvent *)event {
  if (keyOf(event) != Key::Other)
    return NO;
  if ([super performKeyEquivalent:event])
    return YES;
  if (![self isKeyWindow])
    return NO;
  KeyWindow *const window = self; // AppKit may ask before it sends the event
  BOOL isReached = NO;
  return ![self protect:[&] { isReached = [window reachControl:event]; }] || isReached;
}

- (BOOL)handleKey:(NSEvent *)event {
  id const focus = [self firstResponder];
  if (hasOpenMenu(focus))
    return NO;
  const SEL editing = editingOperationOf(event);
  if (editing != nullptr && [focus isKindOfClass:[NSText class]]) {
    running = [self focusedView];
    if ([focus respondsToSelector:editing]) // a password is not undone
      [focus performSelector:editing withObject:self];
    return YES;
  }
  switch (keyOf(event)) {
  case Key::Confirm:
    if (isPushButton(focus)) {
      running = focus;
      [focus performClick:self];
    } else
      [(id<KeyWindowDelegate>)[self delegate] confirm];
    return YES;
  case Key::Dismiss:
    [(id<KeyWindowDelegate>)[self delegate] dismiss];
    return YES;
  case Key::Help:
    if ([[self delegate] respondsToSelector:@selector(help)])
      [(id<KeyWindowDelegate>)[self delegate] help];
    return YES;
  case Key::Other:
    break;
  }
  if ([focus isKindOfClass:[NSText class]] && [(NSText *)focus isFieldEditor] &&
      !imageposition::isScrollable([self focusedView]) && [self turnPagesBy:event])
    return YES;
  // A letter with Alt is not meant for a field, even if it is not a shortcut.
  return [self reachControl:event] ||
         ([focus isKindOfClass:[NSText class]] && isPrintable(letterOf(event)));
}

- (BOOL)turnPagesBy:(NSEvent *)event {
  const int direction = pagesOf(event);
  id<KeyWindowDelegate> const owner = (id<KeyWindowDelegate>)[self delegate];
  if (direction == 0 || ![owner respondsToSelector:@selector(turnPages:)])
    return NO;
  running = nil;
  [owner turnPages:direction];
  return YES;
}

/// Receives the keys that no view has used.
- (void)keyDown:(NSEvent *)event {
  if (![self turnPagesBy:event])
    [super keyDown:event];
}

@end

namespace imageposition {

NSView *viewUnder(NSEvent *event, NSWindow *window) {
  NSView *const content = [window contentView];
  return [content hitTest:[[content superview] convertPoint:[event locationInWindow] fromView:nil]];
}

void wakeModalLoop(NSWindow *window) {
  NSEvent *const event = [NSEvent otherEventWithType:NSApplicationDefined
                                            location:NSZeroPoint
                                       modifierFlags:0
                                           timestamp:0
                                        windowNumber:[window windowNumber]
                                             context:nil
                                             subtype:0
                                               data1:0
                                               data2:0];
  [NSApp postEvent:event atStart:NO];
}

} // namespace imageposition
