#import "ListPopUp.h"

#import "Labels.h"
#import "ListKeyEvent.h"
#import "OpenList.h"

using imageposition::ListItem;
using imageposition::ListKey;

namespace {

constexpr NSInteger kCommandTag = 1;
constexpr int kPage = 10; // items, for Page Up and Page Down in a closed list

} // namespace

@interface ListPopUp ()
/// Opens the list and returns when it is closed. `event` is the mouse press that opens it, or the
/// first letter of an item; null for other keys.
- (void)openList:(NSEvent *)event;
- (void)choose:(NSInteger)index;
/// What the keys can choose while the list is closed.
- (std::vector<ListItem>)itemsForKeys;
@end

@implementation ListPopUp

- (id)initWithFrame:(NSRect)frame pullsDown:(BOOL)pullsDown {
  if ((self = [super initWithFrame:frame pullsDown:pullsDown]) != nil)
    [self setAutoenablesItems:NO];
  return self;
}

- (void)markLastItemAsCommand {
  [[self lastItem] setTag:kCommandTag];
}

/// GNUstep draws the title in one font, which may lack its characters.
- (void)drawRect:(NSRect)dirty {
  NSFont *const font = [[[self font] retain] autorelease];
  NSString *const title = [[[self cell] menuItem] title];
  if (title != nil)
    [[self cell] setFont:imageposition::fontThatShows(title, font)];
  [super drawRect:dirty];
  [[self cell] setFont:font];
}

- (void)openList:(NSEvent *)event {
  if (![self isEnabled] || [self numberOfItems] == 0)
    return;
  OpenList *const list = [[[OpenList alloc] initWithPopUp:self] autorelease];
  NSString *const title = [list titleChosenFrom:event];
  if (title == nil)
    return;
  // The items may have changed while the list was open.
  const NSInteger index = [list chosenIndex];
  const BOOL isSame = index < [self numberOfItems] && [[self itemTitleAtIndex:index]
                                                          isEqualToString:title];
  [self choose:isSame ? index : [self indexOfItemWithTitle:title]];
}

- (void)choose:(NSInteger)index {
  if (index < 0)
    return;
  [self selectItemAtIndex:index];
  [self sendAction:[self action] to:[self target]];
}

- (void)mouseDown:(NSEvent *)event {
  [[self window] makeFirstResponder:self];
  [self openList:event];
}

- (void)performClick:(id)sender {
  (void)sender;
  [self openList:nil];
}

- (std::vector<ListItem>)itemsForKeys {
  std::vector<ListItem> items;
  for (NSInteger i = 0; i < [self numberOfItems]; i++) {
    id<NSMenuItem> const item = [self itemAtIndex:i];
    items.push_back(
        imageposition::listItem([item title], [item isEnabled] && [item tag] != kCommandTag));
  }
  return items;
}

- (void)keyDown:(NSEvent *)event {
  using Kind = ListKey::Kind;
  const ListKey key = imageposition::listKeyOf(event);
  const int current = static_cast<int>([self indexOfSelectedItem]);
  if (key.kind == Kind::Toggle || key.kind == Kind::Blank) {
    [self openList:nil];
  } else if (key.kind == Kind::Letters) {
    [self openList:event]; // Return then chooses, instead of printing
  } else if (key.kind == Kind::Move && [self isEnabled]) {
    const int next = imageposition::movedInList([self itemsForKeys], current, key.move, kPage);
    if (next != current)
      [self choose:next];
  } else {
    [super keyDown:event];
  }
}

@end
