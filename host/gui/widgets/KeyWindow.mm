#import "KeyWindow.h"

#import "Checkbox.h"
#import "Guard.h"
#include "Mnemonic.hpp"

#include <algorithm>

using imageposition::ControlKey;
using imageposition::isCheckbox;

namespace {

constexpr CGFloat kFocusMargin = 6; // shown above and below what has the focus

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

/// While it is open the keys are the menu's.
BOOL hasOpenMenu(id responder) {
  return [responder isKindOfClass:[NSPopUpButton class]] &&
         [[[(NSPopUpButton *)responder menu] window] isVisible];
}

BOOL movesFocus(NSEvent *event) {
  NSString *const characters = [event charactersIgnoringModifiers];
  return [characters isEqualToString:@"\t"] || [characters isEqualToString:@"\x19"];
}

/// The view that a click is on, or that a key is for; null for other events.
NSView *actedOn(NSEvent *event, NSWindow *window) {
  if ([event type] == NSLeftMouseDown)
    return [[window contentView] hitTest:[event locationInWindow]];
  if ([event type] != NSKeyDown || movesFocus(event))
    return nil;
  id const focus = [window firstResponder];
  return [focus isKindOfClass:[NSView class]] ? focus : nil;
}

/// The letter of Alt and a letter, in lower case; null for other keys. What AltGr types into a
/// field is none: then the key has typed something else than its letter.
NSString *letterOf(NSEvent *event) {
  constexpr NSUInteger kAlt = NSAlternateKeyMask | NSCommandKeyMask; // either, by the platform
  if (([event modifierFlags] & kAlt) == 0 || ([event modifierFlags] & NSControlKeyMask) != 0)
    return nil;
  NSString *const letter = [[event charactersIgnoringModifiers] lowercaseString];
  const bool isTyped = [[[event characters] lowercaseString] isEqualToString:letter];
  return isTyped && [letter length] > 0 ? letter : nil;
}

bool canBeReached(NSView *control) {
  return ![control isHiddenOrHasHiddenAncestor] && [control window] != nil &&
         (![control isKindOfClass:[NSControl class]] || [(NSControl *)control isEnabled]);
}

} // namespace

@interface KeyWindow ()
/// Whether a control is reached so.
- (BOOL)reachControl:(NSEvent *)event;
/// The event in the way of every window, after the dialog's own keys; whether it was one of them.
- (BOOL)handleEvent:(NSEvent *)event;
/// Whether the key was the dialog's own.
- (BOOL)handleKey:(NSEvent *)event;
@end

@implementation KeyWindow

- (void)dealloc {
  delete controlKeys;
  [focusShown release];
  [super dealloc];
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

// What has the focus is seen, also in something that scrolls, and what had it shows it no longer: a
// text field by itself redraws only its text.
- (BOOL)makeFirstResponder:(NSResponder *)responder {
  const BOOL isTaken = [super makeFirstResponder:responder];
  NSView *const view = [self focusedView];
  [focusShown setNeedsDisplay:YES];
  [view setNeedsDisplay:YES];
  [focusShown release];
  focusShown = [view retain];
  if (isTaken && view != nil && [view window] == self)
    [view scrollRectToVisible:NSInsetRect([view bounds], 0, -kFocusMargin)];
  return isTaken;
}

- (NSView *)focusedView {
  id const responder = [self firstResponder];
  id const owner = [responder isKindOfClass:[NSText class]] ? [responder delegate] : responder;
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
  if (!isAlone || !isPushButton(control)) // a field that is left takes its text
    [self makeFirstResponder:control];
  if (isAlone && isButton(control))
    [(NSButton *)control performClick:self];
  return YES;
}

- (void)sendEvent:(NSEvent *)event {
  if ([event type] == NSApplicationDefined &&
      [[self delegate] respondsToSelector:@selector(wake)]) {
    [(id<KeyWindowDelegate>)[self delegate] wake];
    return;
  }
  KeyWindow *const window = self;
  id<KeyWindowDelegate> const person = (id<KeyWindowDelegate>)[self delegate];
  NSView *const view = actedOn(event, self);
  bool wasOurs = false;
  bool *const ours = &wasOurs;
  const auto raised = imageposition::whatIsRaisedBy([=] { *ours = [window handleEvent:event]; });
  NSString *const what = raised ? imageposition::toString(*raised) : nil;
  if ([what hasPrefix:NSPasteboardCommunicationException])
    [person pasteboardRaised:what];
  else if (raised)
    [person eventRaised:what];
  else if (!wasOurs && view != nil && [person respondsToSelector:@selector(personActedOn:)])
    [person personActedOn:view];
}

- (BOOL)handleEvent:(NSEvent *)event {
  if ([event type] == NSKeyDown && [self handleKey:event])
    return YES;
  [super sendEvent:event];
  return NO;
}

// The default button would otherwise take Return before the control that has the focus.
- (BOOL)performKeyEquivalent:(NSEvent *)event {
  if (keyOf(event) != Key::Other)
    return NO;
  return [super performKeyEquivalent:event] || ([self isKeyWindow] && [self reachControl:event]);
}

- (BOOL)handleKey:(NSEvent *)event {
  id const focus = [self firstResponder];
  if (hasOpenMenu(focus))
    return NO;
  const SEL editing = editingOperationOf(event);
  if (editing != nullptr && [focus isKindOfClass:[NSText class]]) {
    [focus performSelector:editing withObject:self];
    return YES;
  }
  switch (keyOf(event)) {
  case Key::Confirm:
    if (isPushButton(focus))
      [focus performClick:self];
    else
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
  return [self reachControl:event];
}

@end

namespace imageposition {

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
