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

} // namespace

@interface KeyWindow ()
/// The event in the way of every window, after the dialog's own keys.
- (void)handleEvent:(NSEvent *)event;
/// Whether the key was the dialog's own.
- (BOOL)handleKey:(NSEvent *)event;
@end

@implementation KeyWindow

- (void)sendEvent:(NSEvent *)event {
  KeyWindow *const window = self;
  const auto raised = imageposition::whatIsRaisedBy([=] { [window handleEvent:event]; });
  id<KeyWindowDelegate> const person = (id<KeyWindowDelegate>)[self delegate];
  if (raised)
    [person eventRaised:imageposition::toString(*raised)];
  const bool isAct = [event type] == NSLeftMouseDown || [event type] == NSKeyDown;
  if (isAct && [person respondsToSelector:@selector(personActed)])
    [person personActed];
}

- (void)handleEvent:(NSEvent *)event {
  if ([event type] != NSKeyDown || ![self handleKey:event])
    [super sendEvent:event];
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
