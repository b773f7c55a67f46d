#import "PlatformProcess.h"

#include "Phrases.hpp"
#include "PluginTexts.hpp"
#include "PluginTrust.hpp"
#import "Pool.h"
#import "Replaced.h"
#import "TextBridge.h"

#import <Foundation/Foundation.h>

#include <iostream>
#include <string>
#include <unistd.h>

namespace imageposition {

namespace {

Replaced &loading() {
  static Replaced it = Replaced::objectOperation([NSBundle class], @selector(load));
  return it;
}

BOOL loadIfTrusted(NSBundle *bundle, SEL operation) {
  if (bundle != [NSBundle mainBundle] && ![bundle isLoaded]) {
    const std::string path = toText([bundle bundlePath]);
    if (const auto part = untrustedPart(path, TrustedPeople::here())) {
      std::cerr << messages::kProgram << messages::pluginUntrusted(path, *part) << '\n';
      return NO;
    }
  }
  return loading().before<BOOL(NSBundle *, SEL)>()(bundle, operation);
}

} // namespace

void hideArgumentsFromPlatform() {
  const Pool pool;
  std::string name = "print-dialog"; // also names the program's user defaults
  char *arguments[] = {name.data(), nullptr};
  [NSProcessInfo initializeWithArguments:arguments count:1 environment:environ];
  // GNUstep filled it from the arguments while it was loaded.
  [[[NSProcessInfo processInfo] debugSet] removeAllObjects];
}

void refuseUntrustedBundles() { loading().by(loadIfTrusted); }

} // namespace imageposition
