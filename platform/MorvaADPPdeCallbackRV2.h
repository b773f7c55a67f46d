/// What the plug-in requires of the print dialog.
#ifndef IMAGEPOSITION_PLATFORM_MORVAADPPDECALLBACKRV2_H
#define IMAGEPOSITION_PLATFORM_MORVAADPPDECALLBACKRV2_H

#import <ApplicationServices/ApplicationServices.h>
#import <Foundation/Foundation.h>

#include <cups/ppd.h>

@protocol MorvaADPPdeCallbackRV2 <NSObject>
/// The PPD of the chosen printer, or null. The dialog owns it.
- (ppd_file_t *)ppdFile;
/// The job's print settings, or null. The dialog owns them; the plug-in does not keep them.
- (PMPrintSettings)printSettings;
@end

#endif
