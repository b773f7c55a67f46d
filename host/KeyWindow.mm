#import "host/KeyWindow.h"

#import "host/Guard.h"

namespace {

enum class Key { Other, Confirm, Dismiss };

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

BOOL isPushButton(id responder) {
  return [responder isKindOfClass:[NSButton class]] &&
         ![responder isKindOfClass:[NSPopUpButton class]] && // the space bar opens it
         ([[(NSButton *)responder cell] showsStateBy] & NSContentsCellMask) == 0;
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

} // namespace

@interface KeyWindow ()
/// The event in the way of every window, after the dialog's own keys; whether it was one of them.
- (BOOL)handleEvent:(NSEvent *)event;
/// Whether the key was the dialog's own.
- (BOOL)handleKey:(NSEvent *)event;
@end

@implementation KeyWindow

- (void)sendEvent:(NSEvent *)event {
  KeyWindow *const window = self;
  id<KeyWindowDelegate> const person = (id<KeyWindowDelegate>)[self delegate];
  NSView *const view = actedOn(event, self);
  bool wasOurs = false;
  bool *const ours = &wasOurs;
  const auto raised = imageposition::whatIsRaisedBy([=] { *ours = [window handleEvent:event]; });
  if (raised)
    [person eventRaised:imageposition::toString(*raised)];
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
  return keyOf(event) == Key::Other && [super performKeyEquivalent:event];
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
  case Key::Other:
    break;
  }
  return NO;
}

@end
