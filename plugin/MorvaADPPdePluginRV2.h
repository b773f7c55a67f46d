/// The plug-in's principal class.
#ifndef IMAGEPOSITION_PLUGIN_MORVAADPPDEPLUGINRV2_H
#define IMAGEPOSITION_PLUGIN_MORVAADPPDEPLUGINRV2_H

#import <ApplicationServices/ApplicationServices.h>
#import <Foundation/Foundation.h>

#include <cups/ppd.h>

/// The PPD attribute that says whether a printer can shift the image, and its value for yes.
extern NSString *const IPA_PPD_AdjustDuplexPositionSupport;
extern NSString *const IPAPPDAdjustDuplexPositionSupportTrue;

/// Provides print dialogs with one panel for printers that support it.
@interface MorvaADPPdePluginRV2 : NSObject {
  NSBundle *Bundle; ///< Retained.
}

/// Returns a boolean, not the object, as the dialog expects: always true, even for a null bundle,
/// with which no panel can be built later.
- (BOOL)initWithBundle:(NSBundle *)bundle;

/// Returns an array with a new panel; an empty array for other dialogs and for printers without
/// support; null if the panel cannot be built.
- (NSArray *)PDEPanelsForType:(NSString *)type withHostInfo:(id)hostInfo;

/// Whether the PPD's attribute is exactly "true"; false for null.
- (BOOL)isSupportAdjustImagePosition:(ppd_file_t *)ppd;

@end

#endif
