/// The plug-in's principal class.
#ifndef IMAGEPOSITION_PLUGIN_MORVAADPPDEPLUGINRV2_H
#define IMAGEPOSITION_PLUGIN_MORVAADPPDEPLUGINRV2_H

#import <ApplicationServices/ApplicationServices.h>
#import <Foundation/Foundation.h>

#include <cups/ppd.h>

/// The PPD attribute that says whether a printer can shift the image, and the one value that says
/// yes.
extern NSString *const IPA_PPD_AdjustDuplexPositionSupport;
extern NSString *const IPAPPDAdjustDuplexPositionSupportTrue;

/// Offers one panel, to print dialogs, for printers that support it.
@interface MorvaADPPdePluginRV2 : NSObject {
  NSBundle *Bundle; ///< Retained.
}

/// Always true, a boolean and not the object, as the dialog expects; also for a null bundle, with
/// which every later panel fails.
- (BOOL)initWithBundle:(NSBundle *)bundle;

/// A new panel in an array for each call; an empty array for other dialogs and printers without
/// support; null when the panel could not be built.
- (NSArray *)PDEPanelsForType:(NSString *)type withHostInfo:(id)hostInfo;

/// Whether the description says exactly "true". Null is not supported.
- (BOOL)isSupportAdjustImagePosition:(ppd_file_t *)ppd;

@end

#endif
