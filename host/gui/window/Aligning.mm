#import "Aligning.h"

#import "AlignPanel.h"
#include "ExitCode.hpp"
#include "FileContent.hpp"
#include "JobSplit.hpp"
#import "MnemonicControls.h"
#include "Phrases.hpp"
#include "PrinterOptions.hpp"
#include "QuestionTexts.hpp"
#include "QueueName.hpp"
#import "SubmissionWait.h"
#import "TextBridge.h"
#include "WindowTexts.hpp"

#include <chrono>
#include <memory>
#include <sstream>

using namespace imageposition;

namespace {

constexpr std::chrono::minutes kLongestDrawing{2};

/// Why the job cannot be aligned; empty if it can.
std::string reasonAgainst(PrintJob &job) {
  if (job.target() != JobTarget::Printer && job.target() != JobTarget::Prepared)
    return messages::kNoPrinterToAlign;
  const auto obstacle = obstacleToAlignment(job);
  return obstacle ? obstacle->reason : "";
}

/// Draws on another thread: the first drawing after a login looks at all fonts.
Descriptor drawnSheets(const SheetTask &task, NSWindow *window) {
  WaitPanel panel;
  using Drawing = std::shared_ptr<Descriptor>;
  BackgroundCall<Drawing> call([task] { return std::make_shared<Descriptor>(drawSheets(task)); },
                               kLongestDrawing, panel.signal());
  if (!panel.await(call, window, messages::kDrawingSheets))
    throw Failure(ExitCode::Cancelled, messages::kCancelled);
  return std::move(*call.take());
}

/// Prints the sheets, as any job is printed; returns its name, and why it waits if it does.
std::string printSheets(const Aligner &aligner, PrintSession &session, NSWindow *window) {
  PrintJob &job = session.job();
  const Descriptor sheets = drawnSheets(aligner.task(), window);
  WaitPanel panel;
  const auto submission = aligner.print(sheets, session.destinations().list(), panel.signal());
  if (submission == nullptr)
    throw Failure(ExitCode::Done, messages::kDryRunPrintsNothing);
  const SubmittedJob sent = awaitSubmission(*submission, panel, window, job.printer().name());
  const std::string queue = QueueName::parse(job.queue()).printer;
  return messages::sentences(
      {messages::sheetsSent(queue + "-" + std::to_string(sent.id)), sent.note});
}

} // namespace

@interface Aligning ()
- (void)align:(id)sender;
@end

@implementation Aligning

- (id)initWithDialog:(id<DialogServices>)theDialog {
  if ((self = [super init]) == nil)
    return nil;
  dialog = theDialog;
  button = [makeButton(messages::kAlign, self, @selector(align:)) retain];
  return self;
}

- (void)dealloc {
  [button setTarget:nil];
  [button release];
  [super dealloc];
}

- (void)setArea:(PictureArea *)theArea {
  area = theArea;
}

- (NSButton *)button {
  return button;
}

- (void)refresh {
  PrintJob &job = [dialog session].job();
  ppd_file_t *const ppd = job.printer().ppd();
  const bool isMovable = ppdFindOption(ppd, offsetOptions().front().c_str()) != nullptr;
  const bool isTwoSided = PrinterOptions(job.printer(), job.settings()).twoSided().has_value();
  const std::string reason = reasonAgainst(job);
  [button setHidden:!isMovable || !isTwoSided];
  [button setEnabled:reason.empty()];
  [area showNote:reason];
}

- (void)align:(id)sender {
  NSWindow *const window = [sender window];
  [window makeFirstResponder:button]; // a click leaves it in the field
  if (![dialog savePanels])
    return;
  PrintSession &session = [dialog session];
  id<DialogServices> const services = dialog;
  std::ostringstream errors;
  try {
    AlignmentSteps steps(session.job(), errors);
    AlignActions actions;
    actions.print = [&](NSWindow *over) { return printSheets(steps.aligner(), session, over); };
    actions.taken = [&] {
      [services show:session.readMeasuredOffsets()];
      [services refreshOptions];
      return errors.str();
    };
    imageposition::align(window, steps, actions);
  } catch (const Failure &failure) {
    [dialog say:failure.what()];
  }
  if (!errors.str().empty())
    [dialog write:errors.str()];
  [window makeFirstResponder:button];
}

@end
