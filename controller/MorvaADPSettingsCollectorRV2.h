/// The controller of the image-position panel.
#ifndef IMAGEPOSITION_CONTROLLER_MORVAADPSETTINGSCOLLECTORRV2_H
#define IMAGEPOSITION_CONTROLLER_MORVAADPSETTINGSCOLLECTORRV2_H

#import "MorvaADPIntegerSettingRV2.h"
#import "MorvaADPIntegerTextFieldItemRV2.h"
#import "MorvaADPLabelItemRV2.h"
#import "MorvaADPPdeCallbackRV2.h"
#import "MorvaADPStepperItemRV2.h"

/// Keys of an entry of the setting registry: the name of a setting, and the location of the field
/// that receives the setting of that name.
extern NSString *const CBSCKeyInstancePointer;
extern NSString *const CBSCKeySettingName;

/// One per panel and owned by it: builds the four settings from the bundle's definitions, loads and
/// binds the view, moves values between print settings, settings and view, decides which controls
/// are usable, answers the person's actions and makes the summary. Main thread only.
///
/// The outlets are null until `prepareView` has loaded the interface file, which connects them by
/// these names (misspelt as they are).
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
  NSArray
      *SettingsList; ///< The settings in the order of their fields, cut at the first missing one.
  NSDictionary *ConstraintInfoDictionary; ///< Owned.
  NSDictionary *SettingInfoDictionary;    ///< Owned.
  NSBundle *Bundle;                       ///< Retained.
  ppd_file_t *ppd;                        ///< Taken once, at construction; the host's.
  NSView *LoadedView; ///< The view again, once the interface file is loaded; owned.
}

/// Null without a callback or bundle, without one of the two definition files, or when a
/// setting that they define cannot be built.
- (id)initWithCallback:(id<MorvaADPPdeCallbackRV2>)callback Bundle:(NSBundle *)bundle;

/// The panel's view, loaded on the first call; null when the interface file gave none.
- (NSView *)prepareView;

/// Binds each setting to its four items and to all settings.
- (void)CBSCInitializeView;

@end

/// Between the job's print settings and the panel.
@interface MorvaADPSettingsCollectorRV2 (PrintSettingsExchange)

/// Applies each setting's rules and reads its value, in the order of the definitions, then
/// refreshes.
- (void)prepareForShow;

/// Titles and values for the dialog's summary as the print settings hold them, their order under
/// "Summary Display Order"; empty when the adjustment is not available.
- (NSDictionary *)getSummaryInfo;

/// Reads the enable flag into the checkbox; anything but "True" unchecks it.
- (void)getEnableImgPstAdjTicket:(PMPrintSettings)printSettings;
/// Reads the flag and the four values; false without print settings.
- (BOOL)getTicket;
/// Writes the checkbox's state as "True" or "False".
- (void)setEnableImgPstAdjTicket:(PMPrintSettings)printSettings;
/// Writes the four values and the flag; false without print settings, whatever single writes did.
- (BOOL)saveTicket;

@end

/// Which controls are usable, the refresh of the whole panel, and what a person does with it.
@interface MorvaADPSettingsCollectorRV2 (Availability)

/// Action of every entry field and stepper; the sender may be null. Refreshes the whole panel.
- (IBAction)UIItemActionListener:(id)sender;

/// Lets the settings take what the view shows and write it, applies all rules, recomputes which
/// controls are usable. Without print settings only titles and usability are refreshed.
- (void)notifyUI;
/// Brings the four values into their ranges.
- (void)checkSettingsValue;

/// Whether the printer's marked choices allow the adjustment: two-sided printing is not off,
/// banner pages are not on. What the printer does not have forbids nothing.
- (BOOL)checkImagePositionAdjustValid;
/// Empty; part of the plug-in's interface.
- (IBAction)clickRestore2Default:(id)sender;
/// Makes the controls usable or not, after the printer's choices and the checkbox.
- (void)grayUI;
/// Names the two front offsets as such, or plainly while the back side has none of its own.
- (void)setFrontName;
- (void)setFrontTBMState:(BOOL)usable;
- (void)setFrontLRMState:(BOOL)usable;
- (void)setBackLRMState:(BOOL)usable;
- (void)setBackTBMState:(BOOL)usable;
/// Action of the checkbox. The print settings learn of it at the next save.
- (IBAction)clickEnableImgPositionAdjust:(id)sender;
/// Checkbox off and all offsets zero, whatever the definitions' defaults; print settings
/// untouched.
- (void)restoreDefaults;
/// Action of the restore-defaults button.
- (IBAction)clickbtnReasto2Default:(id)sender;

@end

#endif
