#import "Application.h"

#import "Daemons.h"
#include "ExitCode.hpp"
#import "Fonts.h"
#import "Guard.h"
#import "Pool.h"
#import "QueuedEvents.h"
#import "QuickStart.h"
#import "Replaced.h"
#include "StartupTexts.hpp"
#import "Theme.h"

#import <AppKit/AppKit.h>

#include <csignal>
#include <cstdlib>

namespace imageposition {

namespace {

id doNothing(id, SEL, ...) { return nil; }

/// Loading ImageMagick takes longer than showing the dialog, which shows no image that needs it.
/// GNUstep asks for the class as soon as it handles images.
void leaveOutImageLoaders() {
  const Class magick = NSClassFromString(@"GSImageMagickImageRep");
  if (magick == Nil)
    return;
  Replaced::classOperation(magick, @selector(initialize)).by(doNothing);
  [NSImageRep unregisterImageRepClass:magick];
}

/// GNUstep turns these signals into a request to terminate, which a modal dialog never handles.
/// Nothing needs saving: a ticket is written whole or not at all.
void letSignalsEndTheProgram() {
  for (const int signal : {SIGTERM, SIGINT, SIGHUP})
    std::signal(signal, SIG_DFL);
}

} // namespace

void setPlatformDefaults() {
  NSMutableDictionary *const defaults = [NSMutableDictionary dictionary];
  [defaults setObject:@"YES" forKey:@"GSLogSyslog"];
  [defaults setObject:@"YES" forKey:@"GSSuppressAppIcon"];
  [defaults setObject:@"NSWindows95InterfaceStyle"
               forKey:@"NSScrollViewInterfaceStyle"]; // scrollers on the right
  [[NSUserDefaults standardUserDefaults] registerDefaults:defaults];
}

void startApplication() {
  const Pool pool;
  const Surroundings surroundings = readSurroundings();
  setTextScale(chosenTextScale(surroundings));
  leaveOutImageLoaders();
  leaveOutNotificationDaemon();
  chooseFontsForLanguage();
  leaveOutIconAndServices();
  const auto raised = whatIsRaisedBy([] {
    const ShortWaits whileStarting;
    [NSApplication sharedApplication];
  });
  if (raised || NSApp == nil) {
    const char *const name = std::getenv("DISPLAY");
    throw Failure(ExitCode::Display, messages::displayUnreachable(name != nullptr ? name : ""));
  }
  deliverQueuedEvents();
  letSignalsEndTheProgram();
  installTheme(chosenAppearance(surroundings));
}

} // namespace imageposition
