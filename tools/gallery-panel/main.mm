// gallery-panel BUNDLE PPD OUT.png [NAME=VALUE...]: draws a plug-in's panel for a printer into a
// picture, with these print settings. GNUstep's own arguments ("-NSLanguages (ja)") choose the
// language and the font.
#import "controller/MorvaADPPdeCallbackRV2.h"
#import "host/Theme.h"
#import "platform/PrintCore.h"

#include <cstdio>
#include <string>
#include <vector>

@interface GalleryHost : NSObject <MorvaADPPdeCallbackRV2> {
@public
  ppd_file_t *ppd;
  PMPrintSettings settings;
}
@end

@implementation GalleryHost
- (ppd_file_t *)ppdFile {
  return ppd;
}
- (PMPrintSettings)printSettings {
  return settings;
}
@end

namespace {

NSString *const kPrintDialog = @"BDB091F4-E57F-11D3-B5CC-0050E4603277";

int fail(const std::string &message) {
  std::fprintf(stderr, "gallery-panel: %s\n", message.c_str());
  return 1;
}

NSString *text(const std::string &utf8) { return [NSString stringWithUTF8String:utf8.c_str()]; }

// The arguments that are not GNUstep's, which come in pairs after the others.
std::vector<std::string> ownArguments(int argc, char **argv) {
  std::vector<std::string> arguments;
  for (int i = 1; i < argc && argv[i][0] != '-'; ++i)
    arguments.push_back(argv[i]);
  return arguments;
}

void store(const std::string &assignment, imageposition::PrintSettingsStore &settings) {
  const std::size_t sign = assignment.find('=');
  settings.set(assignment.substr(0, sign), assignment.substr(sign + 1));
}

id loadedPanel(NSString *bundlePath, GalleryHost *host) {
  NSBundle *bundle = [NSBundle bundleWithPath:bundlePath];
  id plugIn = [[bundle principalClass] alloc];
  if (![plugIn initWithBundle:bundle])
    return nil;
  NSArray *panels = [plugIn PDEPanelsForType:kPrintDialog withHostInfo:host];
  return [panels count] ? [[panels objectAtIndex:0] retain] : nil;
}

// The window must be on the screen: only then it has something to read the picture from.
NSData *picture(NSView *view) {
  NSWindow *window = [[NSWindow alloc] initWithContentRect:[view frame]
                                                 styleMask:NSBorderlessWindowMask
                                                   backing:NSBackingStoreBuffered
                                                     defer:NO];
  [window setContentView:view];
  [window orderFront:nil];
  [window display];
  [view lockFocus];
  NSBitmapImageRep *bitmap =
      [[[NSBitmapImageRep alloc] initWithFocusedViewRect:[view bounds]] autorelease];
  [view unlockFocus];
  return [bitmap representationUsingType:NSPNGFileType properties:nil];
}

} // namespace

int main(int argc, char **argv) {
  NSAutoreleasePool *pool = [[NSAutoreleasePool alloc] init];
  const std::vector<std::string> arguments = ownArguments(argc, argv);
  if (arguments.size() < 3)
    return fail("usage: gallery-panel BUNDLE PPD OUT.png [NAME=VALUE...]");
  [NSApplication sharedApplication];
  imageposition::installTheme(imageposition::chosenAppearance(imageposition::readSurroundings()));

  GalleryHost *host = [[GalleryHost alloc] init];
  host->ppd = ppdOpenFile(arguments[1].c_str());
  if (host->ppd == nullptr)
    return fail("cannot read the printer description " + arguments[1]);
  ppdMarkDefaults(host->ppd);
  imageposition::PrintSettingsStore settings;
  for (std::size_t i = 3; i < arguments.size(); ++i)
    store(arguments[i], settings);
  const imageposition::PrintSettingsHandle handle(settings);
  host->settings = handle.get();

  id panel = loadedPanel(text(arguments[0]), host);
  NSView *view = [panel panelView];
  if (view == nil)
    return fail(arguments[0] + " offers no panel for this printer");
  [panel willShow];
  if (![picture(view) writeToFile:text(arguments[2]) atomically:NO])
    return fail("cannot write " + arguments[2]);
  [pool drain];
  return 0;
}
