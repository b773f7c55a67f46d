/// What the plug-in asks of the print dialog.
#ifndef IMAGEPOSITION_CONTROLLER_MORVAADPPDECALLBACKRV2_H
#define IMAGEPOSITION_CONTROLLER_MORVAADPPDECALLBACKRV2_H

#import <ApplicationServices/ApplicationServices.h>
#import <Foundation/Foundation.h>

#include <cups/ppd.h>

@protocol MorvaADPPdeCallbackRV2 <NSObject>
/// The description of the chosen printer, or null; the dialog's.
- (ppd_file_t *)ppdFile;
/// The job's print settings, or null; the dialog's, and never kept.
- (PMPrintSettings)printSettings;
@end

#endif
