/// The part of macOS's ApplicationServices that the plug-in uses, for systems without it.
///
/// Print settings are a store of values under string keys that travels with the job; the process
/// that loads the plug-in provides the two functions (`print-dialog` itself, or `libPrintCore.so`).
/// The two protocols are the print dialog's side of a plug-in: the dialog calls their operations on
/// its main thread only. On macOS they are informal, so that a plug-in implements them without
/// naming them.
#ifndef IMAGEPOSITION_APPLICATIONSERVICES_H
#define IMAGEPOSITION_APPLICATIONSERVICES_H

#import <AppKit/AppKit.h>

#include <cstdint>
#include <cups/ppd.h>

extern "C" {

typedef int32_t OSStatus;
typedef unsigned char Boolean;
typedef const void *CFTypeRef;
/// An `NSString *` in disguise, as on macOS.
typedef const struct OpaqueCFString *CFStringRef;
typedef struct OpaquePMPrintSettings *PMPrintSettings;

/// Reads the value stored under `key` into `*value`, which stays the store's.
/// Zero is success; a missing key, a null store, key or output is not, and leaves `*value` alone.
OSStatus PMPrintSettingsGetValue(PMPrintSettings settings, CFStringRef key, CFTypeRef *value);

/// Stores `value` under `key`; `locked` keeps later calls from changing the entry.
/// Zero is success; a null store, key or value, and a locked entry, are not, and change nothing.
OSStatus PMPrintSettingsSetValue(PMPrintSettings settings, CFStringRef key, CFTypeRef value,
                                 Boolean locked);

} // extern "C"

/// What a print dialog asks of a plug-in bundle's principal class.
@protocol PDEPlugIn
/// Called once after the bundle was loaded, in place of an initializer; answers whether it
/// succeeded.
- (BOOL)initWithBundle:(NSBundle *)bundle;
/// The panels for a kind of dialog: an array, empty for none, or null when a panel failed to build.
- (NSArray *)PDEPanelsForType:(NSString *)type withHostInfo:(id)hostInfo;
@end

/// What a print dialog asks of a panel.
@protocol PDEPanel
- (NSView *)panelView;
- (NSString *)panelName;
- (NSString *)panelKind;
/// The PPD option keys that the panel handles, so that the dialog does not offer them a second
/// time.
- (NSArray *)supportedPPDOptionKeys;
- (BOOL)shouldShowHelp;
- (BOOL)shouldHide;
/// Called on Print; false vetoes the job.
- (BOOL)shouldPrint;
/// Called each time the pane is about to appear.
- (void)willShow;
- (BOOL)restoreValuesAndReturnError:(NSError **)error;
- (BOOL)saveValuesAndReturnError:(NSError **)error;
/// Titles and values for the dialog's summary, their order under "Summary Display Order".
- (NSDictionary *)summaryInfo;
@end

#endif
