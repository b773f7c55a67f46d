#import "PanelWindow.h"

#include <unistd.h>

#include <cstdlib>
#include <iostream>
#include <stdexcept>

namespace imageposition::test {
namespace {

constexpr const char *kControls[] = {"FrontLRMText",
                                     "FrontLRMStepper",
                                     "FrontTBMText",
                                     "FrontTBMStepper",
                                     "BackLRMText",
                                     "BackLRMStepper",
                                     "BackTBMText",
                                     "BackTBMStepper",
                                     "FrontLRMLabel",
                                     "FrontTBMLabel",
                                     "BackLRMLabel",
                                     "BackTBMLabel",
                                     "chkEnableImagePositionAdjust",
                                     "btnRestore2Defalut"};

// The menu lets Command-V reach the field, as in any application.
void makeMenu() {
  if ([NSApp mainMenu] != nil)
    return;
  NSMenu *menu = [[[NSMenu alloc] initWithTitle:@"Panel"] autorelease];
  NSMenu *edit = [[[NSMenu alloc] initWithTitle:@"Edit"] autorelease];
  [edit addItemWithTitle:@"Paste" action:@selector(paste:) keyEquivalent:@"v"];
  id<NSMenuItem> item = [menu addItemWithTitle:@"Edit" action:nullptr keyEquivalent:@""];
  [menu setSubmenu:edit forItem:item];
  [NSApp setMainMenu:menu];
}

void launchOnce() {
  static bool launched = false;
  if (launched)
    return;
  launched = true;
  makeMenu();
  [NSApp finishLaunching];
}

} // namespace

NSBundle *pluginBundle() {
  NSBundle *bundle = [NSBundle bundleWithPath:nsString(IMAGEPOSITION_BUNDLE)];
  if (![bundle load])
    throw std::runtime_error("cannot load " IMAGEPOSITION_BUNDLE);
  return bundle;
}

id newPlugin() {
  id plugin = [[pluginBundle() principalClass] alloc];
  if (![(id<PDEPlugIn>)plugin initWithBundle:pluginBundle()])
    throw std::runtime_error("the plug-in does not accept its bundle");
  return plugin;
}

std::vector<std::string> supportingPrinter() {
  std::vector<std::string> lines = {"*AdjustDuplexPositionSupport: \"true\""};
  for (const auto &option : {TestPpd::option("Duplex", {"DuplexNoTumble", "DuplexTumble", "None"}),
                             TestPpd::option("MVBannerPagePrint", {"False", "True"})})
    lines.insert(lines.end(), option.begin(), option.end());
  return lines;
}

void PanelWindow::SetUp() {
  // A control that never stops tracking the mouse ends the whole program, not only the test.
  alarm(60);
  log = std::make_unique<LogCapture>();
  launchOnce();
  ppd = std::make_unique<TestPpd>(supportingPrinter());
  settings = std::make_unique<TestPrintSettings>();
  host = [[RecordingHost hostWithPpd:ppd->get() settings:settings->handle()] retain];
  plugin = newPlugin();
  NSArray *panels = [(id<PDEPlugIn>)plugin PDEPanelsForType:kPrintDialogType withHostInfo:host];
  ASSERT_EQ([panels count], 1U);
  panel = [[panels objectAtIndex:0] retain];
  view = [[panel panelView] retain];
  ASSERT_NE(view, nil);
  NSRect frame = [view frame];
  frame.origin = NSMakePoint(200, 400);
  window = [[NSWindow alloc] initWithContentRect:frame
                                       styleMask:NSTitledWindowMask
                                         backing:NSBackingStoreBuffered
                                           defer:NO];
  [window setReleasedWhenClosed:NO];
  [[window contentView] addSubview:view];
  [view setFrameOrigin:NSZeroPoint];
  [window setTitle:[panel panelName]];
  [panel willShow];
  [window makeKeyAndOrderFront:nil];
  user = std::make_unique<SimulatedUser>();
  ASSERT_TRUE(runUntil([this] { return [window isKeyWindow] && [window isVisible]; }));
}

void PanelWindow::TearDown() {
  alarm(0);
  if (HasFailure()) {
    const std::string name =
        testing::UnitTest::GetInstance()->current_test_info()->name() + std::string(".png");
    if (std::system(("import -window root " + name).c_str()) == 0)
      std::cout << "The display: " << name << std::endl;
  }
  [window close];
  [window release];
  [view release];
  [panel release];
  [plugin release];
  [host release];
}

NSControl *PanelWindow::control(const std::string &fieldName) {
  return static_cast<NSControl *>(field<id>(field<id>(panel, "SettingItems"), fieldName.c_str()));
}

std::string PanelWindow::shown(const std::string &name) {
  NSText *editor = [text(name) currentEditor];
  return cxxString(editor != nil ? [editor string] : [text(name) stringValue]);
}

std::string PanelWindow::label(const std::string &name) {
  return cxxString([control(name + "Label") stringValue]);
}

std::string PanelWindow::localized(const std::string &key) {
  return cxxString([pluginBundle() localizedStringForKey:nsString(key) value:nil table:nil]);
}

std::string PanelWindow::stored(const std::string &ticketKey) {
  return settings->text(ticketKey).value_or("(null)");
}

std::string PanelWindow::focused() {
  id responder = [window firstResponder];
  // While a field is edited, its field editor is the first responder.
  if ([responder isKindOfClass:[NSText class]])
    responder = [responder delegate];
  for (const char *name : kControls) {
    if (responder == control(name))
      return name;
  }
  return "";
}

void PanelWindow::select(const std::string &name) {
  user->click(text(name));
  expectSeen([&] { return [text(name) currentEditor] != nil; }, "the field has the keyboard");
  user->press("End");
  user->press("Home", "Shift_L");
  expectSeen(
      [&] {
        NSText *editor = [text(name) currentEditor];
        return editor != nil && [editor selectedRange].length == [[editor string] length] &&
               [[editor string] length] > 0;
      },
      "the field's text is selected");
}

void PanelWindow::expectSeen(const std::function<bool()> &condition, const char *what) {
  EXPECT_TRUE(runUntil(condition)) << what;
}

} // namespace imageposition::test
