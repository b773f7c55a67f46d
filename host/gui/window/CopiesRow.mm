#import "CopiesRow.h"

#include "Collation.hpp"
#include "Copies.hpp"
#include "JobTexts.hpp"
#import "MnemonicControls.h"
#import "TextBridge.h"
#include "WindowTexts.hpp"

#include <algorithm>

using namespace imageposition;

@interface CopiesRow ()
- (void)copiesChanged:(id)sender;
- (void)copiesStepped:(id)sender;
- (void)collateChanged:(id)sender;
- (void)take:(int)copies;
- (void)store:(int)copies;
- (void)showError:(const std::string &)text;
@end

@implementation CopiesRow

- (id)initWithDialog:(id<DialogServices>)theDialog {
  if ((self = [super init]) == nil)
    return nil;
  dialog = theDialog;
  field = [makeField(56, self, @selector(copiesChanged:)) retain];
  stepper = [[NSStepper alloc] initWithFrame:NSMakeRect(0, 0, 19, 27)];
  [stepper setMinValue:1];
  [stepper setMaxValue:kMostCopies];
  [stepper setValueWraps:NO];
  [stepper setTarget:self];
  [stepper setAction:@selector(copiesStepped:)];
  error = [[ErrorLabel alloc] initWithFrame:NSZeroRect];
  collate = [makeSwitch(messages::kCollate, self, @selector(collateChanged:)) retain];
  return self;
}

- (void)dealloc {
  [field setDelegate:nil];
  [error release];
  for (NSControl *control : {(NSControl *)field, (NSControl *)stepper, (NSControl *)collate}) {
    [control setTarget:nil];
    [control release];
  }
  [super dealloc];
}

- (std::vector<DialogRow>)rows {
  return {{messages::kCopiesRow,
           {{field, false, 2}, {stepper}, {collate, false, 0, messages::kCollate}}},
          {"", {{error, true}}}};
}

- (void)showError:(const std::string &)text {
  if ([error showError:text width:kPopUpWidth])
    [dialog layOut];
}

- (void)refresh {
  PrintJob &job = [dialog session].job();
  const char *const copies = job.settings().get("copies");
  [field setStringValue:toString(copies != nullptr ? copies : "1")];
  [self showError:""];
  [stepper setIntValue:copies != nullptr ? nearestCopies(copies) : 1];
  [collate setState:isCollated(job.printer(), job.settings()) ? NSOnState : NSOffState];
}

- (BOOL)takeEntry {
  const std::string typed = toText([field stringValue]);
  const auto copies = readCopies(typed);
  if (copies) {
    [self take:*copies];
    return YES;
  }
  [self showError:messages::copiesNotUnderstood()];
  [dialog write:messages::copiesNotUnderstood()];
  [[field window] makeFirstResponder:field];
  return NO;
}

/// Shows the number as it counts: "7" for "007".
- (void)take:(int)copies {
  [self showError:""];
  [field setIntValue:copies];
  [stepper setIntValue:copies];
  [self store:copies];
}

/// One copy is what CUPS prints without the setting.
- (void)store:(int)copies {
  PrintSettingsStore &settings = [dialog session].job().settings();
  if (copies != 1 || settings.get("copies") != nullptr)
    settings.set("copies", std::to_string(copies));
}

- (void)controlTextDidChange:(NSNotification *)notification {
  (void)notification;
  if (readCopies(toText([[field currentEditor] string])))
    [self showError:""];
}

- (void)controlTextDidEndEditing:(NSNotification *)notification {
  [self copiesChanged:[notification object]];
}

/// The arrow keys do what the stepper's arrows do.
- (BOOL)control:(NSControl *)control
               textView:(NSTextView *)editor
    doCommandBySelector:(SEL)command {
  (void)control;
  const int step = sel_isEqual(command, @selector(moveUp:))     ? 1
                   : sel_isEqual(command, @selector(moveDown:)) ? -1
                                                                : 0;
  const auto copies = readCopies(toText([editor string]));
  if (step == 0 || !copies)
    return NO;
  const int stepped = std::clamp(*copies + step, 1, kMostCopies);
  [editor setString:[NSString stringWithFormat:@"%d", stepped]];
  [editor selectAll:self];
  [stepper setIntValue:stepped];
  [self store:stepped];
  return YES;
}

- (void)copiesChanged:(id)sender {
  (void)sender;
  const std::string typed = toText([field stringValue]);
  const auto copies = readCopies(typed);
  if (!copies) {
    [self showError:messages::copiesNotUnderstood()];
    return;
  }
  [self take:*copies];
}

- (void)copiesStepped:(id)sender {
  [(KeyWindow *)[sender window] focus:field];
  [self showError:""];
  const int copies = [stepper intValue];
  [field setIntValue:copies];
  [dialog session].job().settings().set("copies", std::to_string(copies));
}

- (void)collateChanged:(id)sender {
  PrintJob &job = [dialog session].job();
  setCollated([sender state] == NSOnState, job.printer(), job.settings());
}

@end
