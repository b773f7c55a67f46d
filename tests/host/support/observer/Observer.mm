// Reports to the tests what a window of print-dialog shows, and where on the display. GNUstep loads
// this bundle into the program, as it does any bundle that the user default GSAppKitUserBundles
// names.
#import <AppKit/AppKit.h>

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <sstream>
#include <string>

/// Atomically replaces the file that OBSERVER_FILE names whenever the window's content changes.
@interface Observer : NSObject {
  std::string *shown; ///< Owned.
}
- (void)look:(NSTimer *)timer;
@end

/// What the program's open list has.
@protocol ListOfItems
- (NSInteger)numberOfItems;
- (NSString *)itemTitleAtIndex:(NSInteger)index;
- (BOOL)isItemEnabledAtIndex:(NSInteger)index;
- (NSRect)rectOfItemAtIndex:(NSInteger)index;
- (NSInteger)highlightedItemIndex;
@end

namespace {

constexpr NSTimeInterval kInterval = 0.02;

std::string oneLine(NSString *text) {
  std::string line = text == nil ? "" : [text UTF8String];
  for (char &character : line)
    if (character == '\n' || character == '\t')
      character = ' ';
  return line;
}

const char *kindOf(NSView *view) {
  if ([view isKindOfClass:[NSPopUpButton class]])
    return "popup";
  if ([view isKindOfClass:[NSButton class]])
    return "button";
  if ([view isKindOfClass:[NSStepper class]])
    return "stepper";
  if ([view isKindOfClass:[NSProgressIndicator class]])
    return "progress";
  if ([view isKindOfClass:[NSTextField class]])
    return [(NSTextField *)view isEditable] ? "field" : "label";
  if ([view isKindOfClass:NSClassFromString(@"PreviewView")])
    return "picture";
  if ([view isKindOfClass:NSClassFromString(@"ScaleView")])
    return "drawing";
  if ([view isKindOfClass:NSClassFromString(@"SheetView")])
    return "sheet";
  if ([view isKindOfClass:[NSScroller class]])
    return "scroller";
  if ([view isKindOfClass:[NSClipView class]])
    return "viewport";
  return nullptr;
}

std::string textOf(NSView *view) {
  if ([view isKindOfClass:[NSPopUpButton class]]) // the title that is drawn
    return oneLine([[[(NSPopUpButton *)view cell] menuItem] title]);
  if ([view isKindOfClass:[NSButton class]])
    return oneLine([(NSButton *)view title]);
  if ([view isKindOfClass:[NSScroller class]])
    return NSWidth([view frame]) > NSHeight([view frame]) ? "sideways" : "upright";
  if ([view isKindOfClass:[NSProgressIndicator class]])
    return std::to_string([(NSProgressIndicator *)view doubleValue]);
  if (![view isKindOfClass:[NSTextField class]])
    return "";
  // Asking the field itself would end editing.
  NSText *const editor = [(NSTextField *)view currentEditor];
  return oneLine(editor != nil ? [editor string] : [[(NSTextField *)view cell] stringValue]);
}

int stateOf(NSView *view) {
  return [view isKindOfClass:[NSButton class]] && [(NSButton *)view state] == NSOnState ? 1 : 0;
}

/// From the display's upper left corner.
void writePlace(std::ostream &out, NSView *view, NSRect inView) {
  NSWindow *const window = [view window];
  const NSRect inWindow = [view convertRect:inView toView:nil];
  const NSPoint corner = [window convertBaseToScreen:inWindow.origin];
  const CGFloat top = NSHeight([[window screen] frame]) - corner.y - NSHeight(inWindow);
  out << '\t' << std::lround(corner.x) << '\t' << std::lround(top) << '\t'
      << std::lround(NSWidth(inWindow)) << '\t' << std::lround(NSHeight(inWindow));
}

void writeMenu(std::ostream &out, NSMenuView *view) {
  NSMenu *const menu = [view menu];
  for (NSInteger i = 0; i < [menu numberOfItems]; i++) {
    id<NSMenuItem> item = [menu itemAtIndex:i];
    out << "item";
    writePlace(out, view, [view rectOfItemAtIndex:i]);
    out << '\t' << ([item isEnabled] ? 1 : 0) << '\t' << ([view highlightedItemIndex] == i ? 1 : 0)
        << '\t' << oneLine([item title]) << '\n';
  }
}

/// Only the items in sight.
void writeList(std::ostream &out, NSView<ListOfItems> *list) {
  for (NSInteger i = 0; i < [list numberOfItems]; i++) {
    const NSRect place = [list rectOfItemAtIndex:i];
    if (!NSContainsRect(NSInsetRect([list visibleRect], -0.5, -0.5), place))
      continue;
    out << "item";
    writePlace(out, list, place);
    out << '\t' << ([list isItemEnabledAtIndex:i] ? 1 : 0) << '\t'
        << ([list highlightedItemIndex] == i ? 1 : 0) << '\t' << oneLine([list itemTitleAtIndex:i])
        << '\n';
  }
}

void writeView(std::ostream &out, NSView *view) {
  if ([view isHidden])
    return;
  if ([view isKindOfClass:[NSMenuView class]])
    return writeMenu(out, (NSMenuView *)view);
  if ([view isKindOfClass:NSClassFromString(@"ChoiceListView")])
    return writeList(out, (NSView<ListOfItems> *)view);
  if (const char *const kind = kindOf(view)) {
    const bool enabled =
        ![view respondsToSelector:@selector(isEnabled)] || [(NSControl *)view isEnabled];
    out << kind;
    writePlace(out, view, [view bounds]);
    out << '\t' << (enabled ? 1 : 0) << '\t' << stateOf(view) << '\t' << textOf(view) << '\n';
  }
  for (NSUInteger i = 0; i < [[view subviews] count]; i++)
    writeView(out, [[view subviews] objectAtIndex:i]);
}

std::string listing() {
  std::ostringstream out;
  NSWindow *const key = [NSApp isActive] ? [NSApp keyWindow] : nil;
  out << oneLine([[NSRunLoop currentRunLoop] currentMode]);
  if (key != nil) // on 32-bit systems, a message to nil that returns a rectangle corrupts the stack
    writePlace(out, [key contentView], [[key contentView] bounds]);
  else
    out << "\t0\t0\t0\t0";
  out << '\t' << oneLine([key title]) << '\n';
  if (key != nil && [key isVisible])
    writeView(out, [[key contentView] superview]);
  for (NSUInteger i = 0; i < [[NSApp windows] count]; i++) { // in no order
    NSWindow *const window = [[NSApp windows] objectAtIndex:i];
    if (window != key && [window isVisible])
      writeView(out, [[window contentView] superview]);
  }
  return out.str();
}

} // namespace

@implementation Observer

+ (void)load {
  NSAutoreleasePool *const pool = [[NSAutoreleasePool alloc] init];
  NSTimer *const timer = [NSTimer timerWithTimeInterval:kInterval
                                                 target:[[self alloc] init]
                                               selector:@selector(look:)
                                               userInfo:nil
                                                repeats:YES];
  for (NSString *mode : {NSDefaultRunLoopMode, NSModalPanelRunLoopMode, NSEventTrackingRunLoopMode})
    [[NSRunLoop currentRunLoop] addTimer:timer forMode:mode];
  [pool release];
}

- (id)init {
  if ((self = [super init]) != nil)
    shown = new std::string;
  return self;
}

- (void)dealloc {
  delete shown;
  [super dealloc];
}

- (void)look:(NSTimer *)timer {
  (void)timer;
  const char *const path = std::getenv("OBSERVER_FILE");
  const std::string now = listing();
  if (path == nullptr || now == *shown)
    return;
  *shown = now;
  const std::string part = std::string(path) + ".part";
  std::ofstream(part, std::ios::binary) << now;
  std::rename(part.c_str(), path);
}

@end
