/// The controller of the image-position panel.
#ifndef IMAGEPOSITION_CONTROLLER_MORVAADPSETTINGSCOLLECTORRV2_H
#define IMAGEPOSITION_CONTROLLER_MORVAADPSETTINGSCOLLECTORRV2_H

#import "MorvaADPIntegerSettingRV2.h"
#import "MorvaADPIntegerTextFieldItemRV2.h"
#import "MorvaADPLabelItemRV2.h"
#import "MorvaADPPdeCallbackRV2.h"
#import "MorvaADPStepperItemRV2.h"

/// Keys of an entry in the setting registry: the address of the field that receives the setting,
/// and the setting's name.
extern NSString *const CBSCKeyInstancePointer;
extern NSString *const CBSCKeySettingName;

/// Each panel owns one. It builds the four settings from the bundle's definitions, loads and binds
/// the view, moves values between print settings, settings and view, decides which controls are
/// usable, handles the user's actions and makes the summary. Main thread only.
///
/// The outlets are null until `prepareView` has loaded the interface file, which connects them by
/// these names (misspellings included).
@interface MorvaADPSettingsCollectorRV2 : NSObject {
  id<MorvaADPPdeCallbackRV2> PDECallback; ///< Retained.
  IBOutlet MorvaADPIntegerTextFieldItemRV2 *FrontLRMText;
  IBOutlet MorvaADPIntegerTextFieldItemRV2 *FrontTBMText;
  IBOutlet MorvaADPIntegerTextFieldItemRV2 *BackLRMText;
  IBOutlet MorvaADPIntegerTextFieldItemRV2 *BackTBMText;
  IBOutlet MorvaADPStepperItemRV2 *FrontLRMStepper;
  IBOutlet MorvaADPStepperItemRV2 *FrontTBMStepper;
  IBOutlet MorvaADPStepperItemRV2 *BackLRMStepper;
  IBOutlet MorvaADPStepperItemRV2 *BackTBMStepper;
  IBOutlet MorvaADPLabelItemRV2 *FrontLRMLabel;
  IBOutlet MorvaADPLabelItemRV2 *FrontLRMRangeLabel;
  IBOutlet MorvaADPLabelItemRV2 *FrontTBMLabel;
  IBOutlet MorvaADPLabelItemRV2 *FrontTBMRangeLabel;
  IBOutlet MorvaADPLabelItemRV2 *BackLRMLabel;
  IBOutlet MorvaADPLabelItemRV2 *BackLRMRangeLabel;
  IBOutlet MorvaADPLabelItemRV2 *BackTBMLabel;
  IBOutlet MorvaADPLabelItemRV2 *BackTBMRangeLabel;
  MorvaADPIntegerSettingRV2 *FrontLRMSettings; ///< Owned, as the next three.
  MorvaADPIntegerSettingRV2 *FrontTBMSettings;
  MorvaADPIntegerSettingRV2 *BackLRMSettings;
  MorvaADPIntegerSettingRV2 *BackTBMSettings;
  IBOutlet NSView *ImagePositionPrintView;
  IBOutlet NSButton *chkEnableImagePositionAdjust;
  IBOutlet NSButton *btnRestore2Defalut;
  NSArray *SettingsList; ///< The settings in the order above, up to the first missing one. Owned.
  NSDictionary *ConstraintInfoDictionary; ///< Owned.
  NSDictionary *SettingInfoDictionary;    ///< Owned.
  NSBundle *Bundle;                       ///< Retained.
  ppd_file_t *ppd;                        ///< Read once, at construction; the dialog's.
  NSView *LoadedView;                     ///< The view, once it is loaded; owned.
}

/// Returns null without a callback or bundle, without either definition file, or if a setting that
/// they define cannot be built.
- (id)initWithCallback:(id<MorvaADPPdeCallbackRV2>)callback Bundle:(NSBundle *)bundle;

/// The panel's view, loaded on the first call; null if the interface file has none.
- (NSView *)prepareView;

/// Binds each setting to its four items and to all settings.
- (void)CBSCInitializeView;

@end

/// Moves values between the job's print settings and the panel.
@interface MorvaADPSettingsCollectorRV2 (PrintSettingsExchange)

/// Applies each setting's rules and reads its value, in the order of the definitions, then
/// refreshes.
- (void)prepareForShow;

/// Titles and values for the dialog's summary, read from the print settings, with the titles in
/// order under "Summary Display Order". Empty if the adjustment is not available.
- (NSDictionary *)getSummaryInfo;

/// Reads the enable flag into the checkbox; anything but "True" unchecks it.
- (void)getEnableImgPstAdjTicket:(PMPrintSettings)printSettings;
/// Reads the flag and the four values. Returns false without print settings.
- (BOOL)getTicket;
/// Writes the checkbox's state as "True" or "False".
- (void)setEnableImgPstAdjTicket:(PMPrintSettings)printSettings;
/// Writes the four values and the flag. Returns false without print settings, but true even if a
/// write fails.
- (BOOL)saveTicket;

@end

/// Refreshes the panel, decides which controls are usable, and handles the user's actions.
@interface MorvaADPSettingsCollectorRV2 (Availability)

/// The action of every entry field and stepper; the sender may be null. Refreshes the whole panel.
- (IBAction)UIItemActionListener:(id)sender;

/// Refreshes the panel: the settings take their values from the view and write them, all rules are
/// applied, and the usable controls are enabled. Without print settings, refreshes only the titles
/// and which controls are enabled.
- (void)notifyUI;
/// Clamps the four values to their ranges.
- (void)checkSettingsValue;

/// Whether the marked choices allow the adjustment: two-sided printing is not off, and banner pages
/// are not on. An option that the printer lacks does not forbid it.
- (BOOL)checkImagePositionAdjustValid;
/// Does nothing; part of the plug-in's interface.
- (IBAction)clickRestore2Default:(id)sender;
/// Enables or disables the controls according to the marked choices and the checkbox.
- (void)grayUI;
/// Labels the two front offsets as the front's, or without a side while they apply to both.
- (void)setFrontName;
- (void)setFrontTBMState:(BOOL)usable;
- (void)setFrontLRMState:(BOOL)usable;
- (void)setBackLRMState:(BOOL)usable;
- (void)setBackTBMState:(BOOL)usable;
/// The action of the checkbox. The next `saveTicket` writes its state to the print settings.
- (IBAction)clickEnableImgPositionAdjust:(id)sender;
/// Unchecks the checkbox and sets all offsets to zero, whatever the definitions' defaults. Does not
/// write the print settings.
- (void)restoreDefaults;
/// The action of the restore-defaults button.
- (IBAction)clickbtnReasto2Default:(id)sender;

@end

#endif
