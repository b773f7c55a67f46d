#import "ItemList.h"

#import "ListKeyEvent.h"

using imageposition::kListRowHeight;
using imageposition::ListKey;
using imageposition::TypeAhead;

namespace {

bool isBackspace(NSEvent *event) {
  NSString *const characters = [event charactersIgnoringModifiers];
  const unichar key = [characters length] == 1 ? [characters characterAtIndex:0] : 0;
  return key == NSBackspaceCharacter || key == NSDeleteCharacter; // GNUstep's name of Backspace
}

} // namespace

@interface ItemList ()
- (void)move:(NSInteger)index;
/// Whether the key moves the highlight; if so, moves it.
- (BOOL)movesBy:(const ListKey &)key;
@end

@implementation ItemList

- (id)initWithTitles:(NSArray *)theTitles font:(NSFont *)font owner:(id<ItemListOwner>)theOwner {
  if ((self = [super initWithTitles:theTitles font:font]) == nil)
    return nil;
  owner = theOwner;
  typeAhead = new TypeAhead;
  items = new std::vector<imageposition::ListItem>;
  for (NSInteger i = 0; i < [self numberOfItems]; i++)
    items->push_back(imageposition::listItem([self itemTitleAtIndex:i], true));
  return self;
}

- (void)dealloc {
  delete typeAhead;
  delete items;
  [super dealloc];
}

- (BOOL)acceptsFirstResponder {
  return YES;
}

- (BOOL)becomeFirstResponder {
  [self setNeedsDisplay:YES];
  return YES;
}

- (BOOL)resignFirstResponder {
  [self setNeedsDisplay:YES];
  return YES;
}

- (NSColor *)highlightColor {
  return [[self window] firstResponder] == self ? [super highlightColor]
                                                : [NSColor secondarySelectedControlColor];
}

- (NSColor *)highlightedTextColor {
  return [[self window] firstResponder] == self ? [super highlightedTextColor]
                                                : [NSColor controlTextColor];
}

- (void)show:(NSInteger)index {
  [self highlight:index];
  if (index >= 0)
    [self scrollRectToVisible:[self rectOfItemAtIndex:index]];
}

- (void)move:(NSInteger)index {
  [self show:index];
  [owner itemList:self highlighted:index];
}

- (BOOL)movesBy:(const ListKey &)key {
  using Kind = ListKey::Kind;
  const auto now = TypeAhead::Time::clock::now();
  const int current = static_cast<int>([self highlightedItemIndex]);
  const int page = static_cast<int>(NSHeight([self visibleRect]) / kListRowHeight);
  int found = -1;
  if (key.kind == Kind::Move)
    found = imageposition::movedInList(*items, current, key.move, page);
  else if (key.kind == Kind::Letters || (key.kind == Kind::Blank && typeAhead->isTyping(now)))
    found = typeAhead->type(*items, current, key.letters, now);
  else
    return NO;
  if (found >= 0)
    [self move:found];
  return YES;
}

- (void)keyDown:(NSEvent *)event {
  if (isBackspace(event))
    [owner itemListLeft:self];
  else if (![self movesBy:imageposition::listKeyOf(event)])
    [super keyDown:event];
}

- (void)mouseDown:(NSEvent *)event {
  const NSInteger item = [self itemAt:[self convertPoint:[event locationInWindow] fromView:nil]];
  [[self window] makeFirstResponder:self];
  if (item < 0)
    return;
  const BOOL isSame = item == [self highlightedItemIndex];
  [self move:item];
  if ([event clickCount] == 2 && isSame)
    [owner itemListChosen:self];
}

@end
