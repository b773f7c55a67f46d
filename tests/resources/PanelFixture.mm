#import "PanelFixture.h"

#import "Fields.h"
#import "Text.h"

#include <stdexcept>

@interface PanelFixtureHost : NSObject <MorvaADPPdeCallbackRV2> {
@public
  ppd_file_t *ppd;
  PMPrintSettings printSettings;
}
@end

@implementation PanelFixtureHost
- (ppd_file_t *)ppdFile {
  return ppd;
}
- (PMPrintSettings)printSettings {
  return printSettings;
}
@end

namespace imageposition::test {
namespace {

NSString *const kPrintDialog = @"BDB091F4-E57F-11D3-B5CC-0050E4603277";

NSBundle *loadedBundle() {
  NSBundle *bundle = [NSBundle bundleWithPath:nsString(IMAGEPOSITION_BUNDLE)];
  if (![bundle load])
    throw std::runtime_error("cannot load " IMAGEPOSITION_BUNDLE);
  return bundle;
}

// One for the whole process, as in a dialog; its code is never unloaded.
id<PDEPlugIn> plugIn() {
  static id instance = nil;
  if (instance == nil) {
    NSBundle *bundle = [loadedBundle() retain];
    instance = [[bundle principalClass] alloc];
    [instance initWithBundle:bundle];
  }
  return instance;
}

std::vector<std::string> supporting(std::vector<std::string> lines) {
  lines.insert(lines.begin(), "*AdjustDuplexPositionSupport: \"true\"");
  return lines;
}

} // namespace

const std::vector<std::string> kSettingNames = {"FrontLRM", "FrontTBM", "BackLRM", "BackTBM"};

PanelFixture::PanelFixture() { host_ = [[PanelFixtureHost alloc] init]; }

PanelFixture::~PanelFixture() {
  [window_ setContentView:nil];
  [window_ release];
  [panel_ release];
  [host_ release];
}

void PanelFixture::show(const std::vector<std::string> &ppdLines, bool backSideOn) {
  ppd_.emplace(supporting(ppdLines));
  settings_.put("com.morva.printsettings.19AImagePositionEnable", backSideOn ? "True" : "False");
  PanelFixtureHost *host = host_;
  host->ppd = *ppd_;
  host->printSettings = settings_.handle();
  NSArray *panels = [plugIn() PDEPanelsForType:kPrintDialog withHostInfo:host_];
  if ([panels count] != 1)
    throw std::runtime_error("the plug-in offers no panel");
  panel_ = [[panels objectAtIndex:0] retain];
  view_ = [panel_ panelView];
  window_ = [[NSWindow alloc] initWithContentRect:[view_ frame]
                                        styleMask:NSTitledWindowMask
                                          backing:NSBackingStoreBuffered
                                            defer:NO];
  [window_ setReleasedWhenClosed:NO];
  [[window_ contentView] addSubview:view_];
  [panel_ willShow];
}

id PanelFixture::control(const std::string &outlet) const {
  return test::field<id>(test::field<id>(panel_, "SettingItems"), outlet.c_str());
}

void PanelFixture::enter(const std::string &setting, const std::string &text) {
  NSTextField *entry = field(setting);
  [entry setStringValue:nsString(text)];
  [entry textDidChange:[NSNotification notificationWithName:NSTextDidChangeNotification
                                                     object:entry]];
  [entry sendAction:[entry action] to:[entry target]];
}

std::string PanelFixture::shown(NSTextField *field) const { return cxxString([field stringValue]); }

std::string PanelFixture::language() {
  return cxxString([[NSUserDefaults userLanguages] objectAtIndex:0]);
}

std::string PanelFixture::localized(const std::string &key) {
  return cxxString([loadedBundle() localizedStringForKey:nsString(key) value:nil table:nil]);
}

} // namespace imageposition::test
