#import "MorvaADPPdePluginRV2.h"

#import "MorvaADPPdePanelRV2.h"
#include "SharedKeys.h"

#include <cstring>

NSString *const IPA_PPD_AdjustDuplexPositionSupport = @IPA_ATTRIBUTE_SUPPORT;
NSString *const IPAPPDAdjustDuplexPositionSupportTrue = @"true";

// The type that print dialogs pass.
static NSString *const kPrintDialogType = @"BDB091F4-E57F-11D3-B5CC-0050E4603277";

@implementation MorvaADPPdePluginRV2

- (BOOL)initWithBundle:(NSBundle *)bundle {
  Bundle = [bundle retain];
  return YES;
}

- (void)dealloc {
  [Bundle release];
  [super dealloc];
}

- (NSArray *)PDEPanelsForType:(NSString *)type withHostInfo:(id)hostInfo {
  NSMutableArray *panels = [NSMutableArray array];
  if (![type isEqual:kPrintDialogType])
    return panels;
  if (![self isSupportAdjustImagePosition:[hostInfo ppdFile]])
    return panels;
  MorvaADPPdePanelRV2 *panel = [[MorvaADPPdePanelRV2 alloc] initWithCallback:hostInfo
                                                                      Bundle:Bundle];
  // An empty array would mean that there is no panel for this printer.
  if (panel == nil)
    return nil;
  [panels addObject:panel];
  [panel release];
  return panels;
}

- (BOOL)isSupportAdjustImagePosition:(ppd_file_t *)ppd {
  if (ppd == nullptr)
    return NO;
  const ppd_attr_t *attribute =
      ppdFindAttr(ppd, [IPA_PPD_AdjustDuplexPositionSupport UTF8String], nullptr);
  if (attribute == nullptr || attribute->value == nullptr)
    return NO;
  return std::strcmp(attribute->value, [IPAPPDAdjustDuplexPositionSupportTrue UTF8String]) == 0;
}

@end
