#import "ListKeyEvent.h"

#import "TextBridge.h"

namespace imageposition {

namespace {

/// Ignores case, accents and the width of East Asian letters.
std::string folded(NSString *text) {
  return toText([[text decomposedStringWithCompatibilityMapping] lowercaseString]);
}

bool isControlCharacter(unichar character) {
  return character < 0x20 || (character >= 0x7F && character < 0xA0) ||
         (character >= 0xF700 && character <= 0xF8FF); // AppKit's function keys
}

} // namespace

ListKey listKeyOf(NSEvent *event) {
  using Kind = ListKey::Kind;
  NSString *const characters = [event characters];
  const NSUInteger modifiers = [event modifierFlags];
  const bool isAlt = (modifiers & (NSAlternateKeyMask | NSCommandKeyMask)) != 0;
  if ([characters length] == 0 || (modifiers & NSControlKeyMask) != 0)
    return {};
  const unichar character = [characters characterAtIndex:0];
  if (isAlt)
    return {character == NSUpArrowFunctionKey || character == NSDownArrowFunctionKey ? Kind::Toggle
            : isControlCharacter(character)                                          ? Kind::Other
                                                                                     : Kind::Leave};
  switch (character) {
  case NSTabCharacter:
  case NSBackTabCharacter:
    return {Kind::Leave};
  case NSF4FunctionKey:
    return {Kind::Toggle};
  case NSCarriageReturnCharacter:
  case NSNewlineCharacter:
  case NSEnterCharacter:
    return {Kind::Choose};
  case 0x1B:
    return {Kind::Dismiss};
  case NSUpArrowFunctionKey:
    return {Kind::Move, ListMove::Up};
  case NSDownArrowFunctionKey:
    return {Kind::Move, ListMove::Down};
  case NSPageUpFunctionKey:
    return {Kind::Move, ListMove::PageUp};
  case NSPageDownFunctionKey:
    return {Kind::Move, ListMove::PageDown};
  case NSHomeFunctionKey:
    return {Kind::Move, ListMove::Home};
  case NSEndFunctionKey:
    return {Kind::Move, ListMove::End};
  case ' ':
    return {Kind::Blank, ListMove::Down, " "};
  default:
    return isControlCharacter(character)
               ? ListKey{}
               : ListKey{Kind::Letters, ListMove::Down, folded(characters)};
  }
}

ListItem listItem(NSString *title, bool isEnabled) { return {folded(title), isEnabled}; }

} // namespace imageposition
