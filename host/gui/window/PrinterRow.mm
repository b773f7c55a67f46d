#import "PrinterRow.h"

#include "CupsTexts.hpp"
#import "Labels.h"
#include "PrinterChanges.hpp"
#include "QuestionTexts.hpp"
#import "RunLoopWake.h"
#import "TextBridge.h"
#include "WindowTexts.hpp"

#include <algorithm>
#include <atomic>
#include <memory>
#include <string>

using namespace imageposition;

struct imageposition::PrinterRowState {
  const RunLoopWake &wake;
  std::vector<std::string> names; // full names, in the order of the pop-up
  std::unique_ptr<PrinterChanges> changes = nullptr;
  const std::shared_ptr<std::atomic<bool>> isChanged = std::make_shared<std::atomic<bool>>(false);
};

namespace {

bool isForPrinter(JobTarget target) {
  return target == JobTarget::Printer || target == JobTarget::Prepared;
}

} // namespace

@interface PrinterRow ()
- (void)printerChosen:(id)sender;
@end

@implementation PrinterRow

- (id)initWithDialog:(id<DialogServices>)theDialog wake:(const RunLoopWake &)wake {
  if ((self = [super init]) == nil)
    return nil;
  dialog = theDialog;
  state = new PrinterRowState{wake, {}};
  popUp = [makePopUp(self, @selector(printerChosen:)) retain];
  stateLabel = [makeLabel("") retain];
  return self;
}

- (void)dealloc {
  [popUp setTarget:nil];
  [popUp release];
  [stateLabel release];
  delete state;
  [super dealloc];
}

- (std::vector<DialogRow>)rows {
  return {{messages::kPrinterRow, {{popUp}}}, {"", {{stateLabel, true}}}};
}

- (void)startAsking {
  const auto signal = state->wake.signal();
  const std::shared_ptr<std::atomic<bool>> isChanged = state->isChanged;
  state->changes = std::make_unique<PrinterChanges>([=] {
    *isChanged = true;
    signal();
  });
  [dialog session].destinations().refresh(signal);
}

- (void)stopAsking {
  state->changes.reset();
}

- (BOOL)takeAnswer {
  Destinations &destinations = [dialog session].destinations();
  const bool isChanged = destinations.takeAnswer();
  if (isChanged)
    [self refresh];
  if (!destinations.isRefreshing() && state->isChanged->exchange(false))
    destinations.refresh(state->wake.signal());
  return isChanged;
}

- (void)refresh {
  PrintJob &job = [dialog session].job();
  std::vector<std::string> &names = state->names;
  names.clear();
  [popUp removeAllItems];
  for (const Destination &destination : [dialog session].destinations().list().destinations) {
    if (!destination.instance.empty() && destination.fullName() != job.queue())
      continue; // presets have their own pop-up
    names.push_back(destination.fullName());
    addItem(popUp, destination.title());
  }
  auto current = std::find(names.begin(), names.end(), job.queue());
  if (!job.queue().empty() && current == names.end()) {
    current = names.insert(names.end(), job.queue());
    addItem(popUp, job.queue());
  }
  if (!job.isPreparing()) // there is no document to save yet
    for (const Text *const command : {&messages::kSaveAsTicket, &messages::kSaveAsPdf})
      addCommand(popUp, *command);
  const NSInteger afterNames = static_cast<NSInteger>(names.size());
  const NSInteger item = isForPrinter(job.target())          ? current - names.begin()
                         : job.target() == JobTarget::Ticket ? afterNames
                                                             : afterNames + 1;
  [popUp selectItemAtIndex:item];
  [self showState];
}

- (void)showState {
  PrintJob &job = [dialog session].job();
  const DestinationList &list = [dialog session].destinations().list();
  const Destination *const destination = list.find(job.queue());
  std::string text;
  if (!isForPrinter(job.target()))
    text = job.printer().name();
  else if (!list.reason.empty())
    text = list.reason;
  else
    text = destination != nullptr ? messages::besides({destination->stateText, destination->remarks,
                                                       destination->location})
                                  : messages::kStateUnknown.str();
  showCut(stateLabel, text, NSWidth([stateLabel frame]));
}

- (void)printerChosen:(id)sender {
  [(KeyWindow *)[sender window] focus:popUp];
  PrintJob &job = [dialog session].job();
  const auto chosen = static_cast<std::size_t>([popUp indexOfSelectedItem]);
  const std::size_t printers = state->names.size();
  const JobTarget target = chosen < printers    ? JobTarget::Printer
                           : chosen == printers ? JobTarget::Ticket
                                                : JobTarget::PdfFile;
  const std::string queue = target == JobTarget::Printer ? state->names.at(chosen) : job.queue();
  if (queue != job.queue())
    [dialog chooseQueue:queue];
  if (queue == job.queue()) // a printer that cannot be used changes nothing
    job.setTarget(target);
  [self refresh];
  [dialog refreshOptions];
}

@end
