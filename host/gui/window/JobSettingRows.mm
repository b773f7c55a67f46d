#import "JobSettingRows.h"

#import "KeyWindow.h"
#import "MnemonicControls.h"
#include "PrinterTexts.hpp"
#include "QueueName.hpp"
#import "ValuePanel.h"

#include <utility>

using namespace imageposition;

JobSettings imageposition::jobSettingsOf(PrintSession &session) {
  PrintJob &job = session.job();
  const Destination *const destination = session.destinations().list().find(job.queue());
  JobSettingsContext context;
  if (destination != nullptr)
    context.coverPages = destination->coverPages;
  if (!job.documents().empty())
    context.title = job.title();
  return JobSettings(job.printer(), job.settings(), std::move(context));
}

@interface JobSettingRows ()
- (BOOL)panelsAreSavedBefore:(NSView *)sender;
- (void)set:(const std::string &)keyword to:(const std::string &)choice;
@end

@implementation JobSettingRows

- (id)initWithDialog:(id<DialogServices>)theDialog {
  if ((self = [super init]) == nil)
    return nil;
  dialog = theDialog;
  toEnter = new std::string;
  return self;
}

- (void)dealloc {
  delete toEnter;
  [super dealloc];
}

/// A click leaves the focus, and what is being typed, in another field.
- (BOOL)panelsAreSavedBefore:(NSView *)sender {
  [(KeyWindow *)[sender window] focus:sender];
  return [dialog savePanels];
}

- (void)set:(const std::string &)keyword to:(const std::string &)choice {
  JobSettings settings = jobSettingsOf([dialog session]);
  const auto note = settings.choose(keyword, choice);
  if (note)
    [dialog show:*note];
  else if (const auto option = settings.find(keyword))
    [dialog say:messages::entryUnusable(option->text)];
  [dialog refreshOptions];
}

- (void)option:(const std::string &)keyword
     wasChosen:(const std::string &)choice
            by:(NSView *)sender {
  if ([self panelsAreSavedBefore:sender])
    [self set:keyword to:choice];
}

- (void)option:(const std::string &)keyword
        choice:(const std::string &)choice
     wasTicked:(bool)on
            by:(NSView *)sender {
  (void)keyword, (void)choice, (void)on, (void)sender; // no setting has several choices at once
}

- (void)option:(const std::string &)keyword wantsValueBy:(NSView *)sender {
  if (![self panelsAreSavedBefore:sender])
    return;
  *toEnter = keyword;
  wakeModalLoop([sender window]);
}

/// Also refreshes after Cancel: the pop-up still shows the item that leads here.
- (void)askForChosenValueOver:(NSWindow *)parent {
  const std::string keyword = std::exchange(*toEnter, {});
  const JobSettings settings = jobSettingsOf([dialog session]);
  const auto option = keyword.empty() ? std::nullopt : settings.find(keyword);
  if (!option || !option->custom)
    return;
  const auto value = askForValue(parent, option->text, *option->custom,
                                 settings.firstValue(keyword), LengthUnit::Millimetre);
  if (value)
    [self set:keyword to:*value];
  else
    [dialog refreshOptions];
}

@end
