/// The part of macOS's ApplicationServices that the plug-in uses, for systems without it.
///
/// Print settings are values under string keys that travel with the job. The process that loads the
/// plug-in provides the two functions (`print-dialog` itself, or `libPrintCore.so`). The two
/// protocols declare the methods that a print dialog calls, on its main thread only. On macOS they
/// are informal: a plug-in implements them without declaring conformance.
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

/// Reads the value stored under `key` into `*value`; the store keeps owning it. Returns zero on
/// success. A missing entry and a null argument are errors, which leave `*value` unchanged.
OSStatus PMPrintSettingsGetValue(PMPrintSettings settings, CFStringRef key, CFTypeRef *value);

/// Stores `value` under `key`; `locked` keeps later calls from changing the entry. Returns zero on
/// success. A null argument and a locked entry are errors, which change nothing.
OSStatus PMPrintSettingsSetValue(PMPrintSettings settings, CFStringRef key, CFTypeRef value,
                                 Boolean locked);

} // extern "C"

/// What a print dialog requires of a plug-in bundle's principal class.
@protocol PDEPlugIn
/// Called once after the bundle is loaded, in place of an initializer. Returns whether it
/// succeeded.
- (BOOL)initWithBundle:(NSBundle *)bundle;
/// The panels for a kind of dialog; an empty array if there are none, null if building one failed.
- (NSArray *)PDEPanelsForType:(NSString *)type withHostInfo:(id)hostInfo;
@end

/// What a print dialog requires of a panel.
@protocol PDEPanel
- (NSView *)panelView;
- (NSString *)panelName;
- (NSString *)panelKind;
/// The keys of the PPD options that the panel handles, which the dialog therefore does not offer.
- (NSArray *)supportedPPDOptionKeys;
- (BOOL)shouldShowHelp;
- (BOOL)shouldHide;
/// Called when the user chooses Print; false stops the job.
- (BOOL)shouldPrint;
/// Called each time before the pane appears.
- (void)willShow;
- (BOOL)restoreValuesAndReturnError:(NSError **)error;
- (BOOL)saveValuesAndReturnError:(NSError **)error;
/// Titles and values for the dialog's summary, with the titles in order under
/// "Summary Display Order".
- (NSDictionary *)summaryInfo;
@end

#endif
