#import "host/NamePanel.h"

#import "host/KeyWindow.h"
#import "host/Labels.h"
#include "host/WindowTexts.hpp"
#import "platform/TextBridge.h"

using namespace imageposition;

@interface NamePanelController : NSObject <KeyWindowDelegate>
@end

@implementation NamePanelController

- (void)confirm {
  [NSApp stopModalWithCode:NSOKButton];
}

- (void)dismiss {
  [NSApp stopModalWithCode:NSCancelButton];
}

- (BOOL)windowShouldClose:(id)sender {
  (void)sender;
  [self dismiss];
  return NO;
}

- (void)eventRaised:(NSString *)what {
  (void)what; // nothing of a plug-in runs here
}

@end

namespace imageposition {

namespace {

constexpr NSSize kSize = {340, 130};

NSButton *addButton(NSWindow *window, std::string_view title, CGFloat left, id target, SEL action) {
  const NSRect frame = NSMakeRect(left, 20, 96, 24);
  NSButton *const button = [[[NSButton alloc] initWithFrame:frame] autorelease];
  [button setTitle:toString(title)];
  [button setBezelStyle:NSRoundedBezelStyle];
  [button setTarget:target];
  [button setAction:action];
  [[window contentView] addSubview:button];
  return button;
}

} // namespace

std::optional<std::string> askForName(NSWindow *parent, const std::string &question,
                                      const std::string &suggestion) {
  NamePanelController *const controller = [[[NamePanelController alloc] init] autorelease];
  KeyWindow *const window =
      [[[KeyWindow alloc] initWithContentRect:NSMakeRect(0, 0, kSize.width, kSize.height)
                                    styleMask:NSTitledWindowMask | NSClosableWindowMask
                                      backing:NSBackingStoreBuffered
                                        defer:NO] autorelease];
  [window setReleasedWhenClosed:NO];
  [window setTitle:toString(question)];
  [window setDelegate:(id)controller];
  NSTextField *const label = makeLabel(question);
  [label setFrameOrigin:NSMakePoint(20, 96)];
  [[window contentView] addSubview:label];
  NSTextField *const field =
      [[[NSTextField alloc] initWithFrame:NSMakeRect(20, 62, kSize.width - 40, 24)] autorelease];
  [field setStringValue:toString(suggestion)];
  [[window contentView] addSubview:field];
  NSButton *const cancel =
      addButton(window, messages::kCancel, kSize.width - 222, controller, @selector(dismiss));
  NSButton *const ok =
      addButton(window, messages::kOk, kSize.width - 116, controller, @selector(confirm));
  [window setDefaultButtonCell:[ok cell]];
  [field setNextKeyView:cancel];
  [cancel setNextKeyView:ok];
  [ok setNextKeyView:field];
  [window setInitialFirstResponder:field];
  const NSRect frame = [parent frame];
  [window setFrameOrigin:NSMakePoint(NSMidX(frame) - kSize.width / 2, NSMidY(frame))];
  [window makeKeyAndOrderFront:nil];
  [window makeFirstResponder:field];
  const NSInteger answer = [NSApp runModalForWindow:window];
  [window makeFirstResponder:nil];
  const std::string name = toText([field stringValue]);
  [window setDelegate:nil];
  [window close];
  [parent makeKeyAndOrderFront:nil];
  if (answer != NSOKButton || name.empty())
    return std::nullopt;
  return name;
}

} // namespace imageposition
