/// The image-position pane, as the print dialog calls it.
#ifndef IMAGEPOSITION_PLUGIN_MORVAADPPDEPANELRV2_H
#define IMAGEPOSITION_PLUGIN_MORVAADPPDEPANELRV2_H

#import "MorvaADPSettingsCollectorRV2.h"

/// Forwards the dialog's calls to its controller. Until the pane is first shown, the view has no
/// valid values: saving and restoring do nothing, and printing reads the print settings first.
/// Main thread only.
@interface MorvaADPPdePanelRV2 : NSObject {
  id<MorvaADPPdeCallbackRV2> PDEPluginCallbackObject; ///< Retained.
  NSString *PDEName;                                  ///< Looked up once; never deallocated.
  BOOL PanelShown;                                    ///< True from the first `willShow` on.
  ppd_file_t *ppd;                                    ///< As of the last `willShow`; the dialog's.
  NSBundle *PDEBundle;                                ///< Retained.
  MorvaADPSettingsCollectorRV2 *SettingItems;         ///< Owned; never null in a live panel.
  NSMutableArray *supportedOptions;                   ///< Owned.
}

/// Returns null without a callback or bundle, or if the controller cannot be built.
- (id)initWithCallback:(id<MorvaADPPdeCallbackRV2>)callback Bundle:(NSBundle *)bundle;

/// The panel's view; null if the interface file has none.
- (NSView *)panelView;
- (NSString *)panelName;
- (NSString *)panelKind;
- (NSArray *)supportedPPDOptionKeys;
- (BOOL)shouldShowHelp;
/// Always true, on purpose; dialogs offer the pane all the same.
- (BOOL)shouldHide;
- (BOOL)shouldPrint;
- (void)willShow;
- (BOOL)restoreValuesAndReturnError:(NSError **)error;
- (BOOL)saveValuesAndReturnError:(NSError **)error;
- (NSDictionary *)summaryInfo;

@end

#endif
