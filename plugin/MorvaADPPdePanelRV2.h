/// The image-position pane as the print dialog drives it.
#ifndef IMAGEPOSITION_PLUGIN_MORVAADPPDEPANELRV2_H
#define IMAGEPOSITION_PLUGIN_MORVAADPPDEPANELRV2_H

#import "MorvaADPSettingsCollectorRV2.h"

/// Forwards the dialog's requests to its controller, in fixed orders. Until the pane is first shown
/// the view's values are not trusted: saving and restoring do nothing, printing reads first.
/// Main thread only.
@interface MorvaADPPdePanelRV2 : NSObject {
  id<MorvaADPPdeCallbackRV2> PDEPluginCallbackObject; ///< Retained.
  NSString *PDEName;                                  ///< Looked up once; not owned, and stays.
  BOOL PanelShown;                                    ///< True from the first `willShow` on.
  ppd_file_t *ppd;                                    ///< As of the last `willShow`; the host's.
  NSBundle *PDEBundle;                                ///< Retained.
  MorvaADPSettingsCollectorRV2 *SettingItems;         ///< Owned; never null in a live panel.
  NSMutableArray *supportedOptions;                   ///< Owned.
}

/// Null without a callback or bundle, or when the controller cannot be built.
- (id)initWithCallback:(id<MorvaADPPdeCallbackRV2>)callback Bundle:(NSBundle *)bundle;

/// The panel's view; null when the interface file gives none.
- (NSView *)panelView;
- (NSString *)panelName;
- (NSString *)panelKind;
- (NSArray *)supportedPPDOptionKeys;
- (BOOL)shouldShowHelp;
/// True as well, on purpose; dialogs offer the pane all the same.
- (BOOL)shouldHide;
- (BOOL)shouldPrint;
- (void)willShow;
- (BOOL)restoreValuesAndReturnError:(NSError **)error;
- (BOOL)saveValuesAndReturnError:(NSError **)error;
- (NSDictionary *)summaryInfo;

@end

#endif
