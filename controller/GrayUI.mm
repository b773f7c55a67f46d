#import "MorvaADPSettingsCollectorRV2.h"

#import "Keys.h"
#import "LocalizedText.h"

#include <cstring>

using imageposition::localizedText;

namespace {

// The keyword of the option's marked choice if it is `keyword`, otherwise null.
const char *markedAs(ppd_file_t *ppd, const char *option, const char *keyword) {
  const ppd_choice_t *choice = ppdFindMarkedChoice(ppd, option);
  return choice != nullptr && std::strcmp(choice->choice, keyword) == 0 ? choice->choice : nullptr;
}

// Not through the items' setViewAvailable:, which would overwrite the state that the settings last
// set. The entry field's text keeps its colour, on purpose.
void setUsable(bool usable, NSControl *entryField, NSControl *stepper, NSTextField *nameLabel,
               NSTextField *rangeLabel) {
  [entryField setEnabled:usable];
  [stepper setEnabled:usable];
  [nameLabel setEnabled:usable];
  [rangeLabel setEnabled:usable];
  NSColor *colour = usable ? [NSColor blackColor] : [NSColor lightGrayColor];
  [nameLabel setTextColor:colour];
  [rangeLabel setTextColor:colour];
}

} // namespace

@implementation MorvaADPSettingsCollectorRV2 (Availability)

- (IBAction)UIItemActionListener:(id)sender {
  if ([sender conformsToProtocol:@protocol(ActionInterface)])
    [sender catchEventCall];
  [self notifyUI];
  [self checkSettingsValue];
}

- (void)notifyUI {
  PMPrintSettings printSettings = [PDECallback printSettings];
  [chkEnableImagePositionAdjust setTitle:localizedText(Bundle, kTextEnable)];
  [btnRestore2Defalut setTitle:localizedText(Bundle, kTextRestoreDefaults)];
  if (printSettings != nullptr) {
    [FrontLRMSettings checkUI:printSettings];
    [FrontTBMSettings checkUI:printSettings];
    [BackLRMSettings checkUI:printSettings];
    [BackTBMSettings checkUI:printSettings];
    [FrontLRMSettings applyUIConstraint:printSettings];
    [FrontTBMSettings applyUIConstraint:printSettings];
    [BackLRMSettings applyUIConstraint:printSettings];
    [BackTBMSettings applyUIConstraint:printSettings];
  }
  // Last, because checkUI: has just set the labels, and the front ones have two kinds of names.
  [self grayUI];
}

- (void)checkSettingsValue {
  [FrontLRMSettings checkValue];
  [FrontTBMSettings checkValue];
  [BackLRMSettings checkValue];
  [BackTBMSettings checkValue];
}

- (BOOL)checkImagePositionAdjustValid {
  BOOL valid = YES;
  if (const char *duplex = markedAs(ppd, IPA_OPTION_TWO_SIDED, IPA_CHOICE_ONE_SIDED)) {
    NSLog(@"@@@Get duplex setting Duplex = %s !", duplex);
    valid = NO;
  }
  if (const char *banner = markedAs(ppd, IPA_OPTION_BANNER_PAGES, IPA_CHOICE_BANNER_PAGES_ON)) {
    NSLog(@"@@@Get MVBannerPagePrint setting  True= %s !", banner);
    valid = NO;
  }
  NSLog(@"@@@Check on checkbox Enable Image Position Adjust!");
  return valid;
}

- (IBAction)clickRestore2Default:(id)sender {
  (void)sender;
}

- (void)grayUI {
  if ([self checkImagePositionAdjustValid]) {
    [chkEnableImagePositionAdjust setEnabled:YES];
    [btnRestore2Defalut setEnabled:YES];
    [self setFrontName];
    const BOOL separateBack = [chkEnableImagePositionAdjust state] != 0;
    [self setFrontLRMState:YES];
    [self setFrontTBMState:YES];
    [self setBackLRMState:separateBack];
    [self setBackTBMState:separateBack];
  } else {
    [chkEnableImagePositionAdjust setEnabled:NO];
    [self setFrontLRMState:NO];
    [self setFrontTBMState:NO];
    [self setBackLRMState:NO];
    [self setBackTBMState:NO];
    [self setFrontName];
    [btnRestore2Defalut setEnabled:NO];
  }
}

- (void)setFrontName {
  const bool separateBack = [chkEnableImagePositionAdjust state] != 0;
  [FrontLRMLabel setStringValue:localizedText(Bundle, separateBack ? kSettingFrontLRM : kTextLRM)];
  [FrontTBMLabel setStringValue:localizedText(Bundle, separateBack ? kSettingFrontTBM : kTextTBM)];
}

- (void)setFrontTBMState:(BOOL)usable {
  setUsable(usable, FrontTBMText, FrontTBMStepper, FrontTBMLabel, FrontTBMRangeLabel);
}

- (void)setFrontLRMState:(BOOL)usable {
  setUsable(usable, FrontLRMText, FrontLRMStepper, FrontLRMLabel, FrontLRMRangeLabel);
}

- (void)setBackLRMState:(BOOL)usable {
  setUsable(usable, BackLRMText, BackLRMStepper, BackLRMLabel, BackLRMRangeLabel);
}

- (void)setBackTBMState:(BOOL)usable {
  setUsable(usable, BackTBMText, BackTBMStepper, BackTBMLabel, BackTBMRangeLabel);
}

- (IBAction)clickEnableImgPositionAdjust:(id)sender {
  (void)sender;
  [self grayUI];
}

- (void)restoreDefaults {
  [chkEnableImagePositionAdjust setState:0];
  [FrontLRMText setStringValue:@"0"];
  [FrontTBMText setStringValue:@"0"];
  [BackLRMText setStringValue:@"0"];
  [BackTBMText setStringValue:@"0"];
  [FrontLRMSettings setIntValue:0];
  [FrontTBMSettings setIntValue:0];
  [BackLRMSettings setIntValue:0];
  [BackTBMSettings setIntValue:0];
  // A second time through the string, on purpose; null reads as 0.
  [FrontLRMSettings setStringValue:nil];
  [FrontTBMSettings setStringValue:nil];
  [BackLRMSettings setStringValue:nil];
  [BackTBMSettings setStringValue:nil];
  [self grayUI];
}

- (IBAction)clickbtnReasto2Default:(id)sender {
  (void)sender;
  [self restoreDefaults];
}

@end
