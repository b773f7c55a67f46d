// The whole plug-in: each input is one use of a panel, compared with the model after every step.
#include "Check.hpp"
#import "PanelUse.h"
#import "TestPool.h"

#import <AppKit/AppKit.h>

extern "C" int LLVMFuzzerInitialize(int *, char ***) {
  const imageposition::test::Pool pool;
  [NSApplication sharedApplication];
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size) {
  const imageposition::test::Pool pool;
  const std::string difference = imageposition::test::usePanel(data, size);
  imageposition::fuzz::check(difference.empty(), "the panel matches its model\n" + difference);
  return 0;
}
