#import "Sending.h"

#include "CancelJob.hpp"
#import "ControlLock.h"
#include "CupsConnection.hpp"
#include "CupsTexts.hpp"
#include "DocumentMover.hpp"
#include "HelpTexts.hpp"
#include "JobSubmission.hpp"
#include "JobTexts.hpp"
#import "KeyWindow.h"
#import "NamePanel.h"
#import "NotePanel.h"
#include "OutputName.hpp"
#import "PasswordPanel.h"
#include "QuestionTexts.hpp"
#include "QueueName.hpp"
#import "RunLoopWake.h"
#import "SubmissionWait.h"
#import "WaitPanel.h"
#include "WindowTexts.hpp"

#include <chrono>
#include <iostream>
#include <memory>
#include <optional>

using namespace imageposition;

namespace {

constexpr std::chrono::seconds kCancelTimeout{15};

/// The file that the job is written to: the command line's, or the one that the user names; empty
/// for a printer. None if the user has cancelled.
std::optional<std::string> fileToWrite(NSWindow *window, const PrintJob &job) {
  if (job.target() == JobTarget::Printer || job.target() == JobTarget::Prepared)
    return "";
  const bool isPdf = job.target() == JobTarget::PdfFile;
  const std::string &given = isPdf ? job.arguments().pdf : job.arguments().ticket;
  if (!given.empty())
    return given;
  const char *const ending = isPdf ? kPdfEnding : kTicketEnding;
  return askForFile(window,
                    {isPdf ? messages::kSaveAsPdf : messages::kSaveAsTicket,
                     isPdf ? messages::kPdfQuestion : messages::kTicketQuestion,
                     suggestedOutput(job.documents(), ending)},
                    ending);
}

} // namespace

struct imageposition::SendingState {
  SendingState(const RunLoopWake &theWake, std::ostream &theErrors)
      : wake(theWake), errors(theErrors) {}

  const RunLoopWake &wake;
  std::ostream &errors;
  std::unique_ptr<JobSubmission> submission;
  std::unique_ptr<ControlLock> lock;     // while there is a submission
  NSView *focused = nil;                 // the window's
  bool isAsking = false;                 // for a password
  std::optional<ShiftFailure> unmovable; // about which the user is to be asked
  std::optional<SubmittedJob> sent;
};

@interface Sending ()
- (void)startWith:(OwnShift)shift;
- (void)showSending:(BOOL)sending;
- (void)showProgress;
- (void)finish;
@end

@implementation Sending

- (id)initWithDialog:(id<DialogServices>)theDialog
        cancelButton:(NSButton *)theButton
                wake:(const RunLoopWake &)wake
              errors:(std::ostream *)errors {
  if ((self = [super init]) == nil)
    return nil;
  dialog = theDialog;
  cancelButton = [theButton retain];
  progress = [[NSProgressIndicator alloc] initWithFrame:NSZeroRect];
  [progress setIndeterminate:NO];
  [progress setMaxValue:1];
  [progress setHidden:YES];
  state = new SendingState(wake, *errors);
  return self;
}

- (void)dealloc {
  delete state;
  [progress release];
  [cancelButton release];
  [super dealloc];
}

- (NSProgressIndicator *)progressView {
  return progress;
}

- (BOOL)isUnderWay {
  return state->submission != nullptr;
}

- (BOOL)keepWaitingJob {
  if (!state->sent || state->sent->note.empty())
    return YES;
  NSWindow *const window = [progress window];
  if (!isConfirmed(window, {messages::kJobWaits, state->sent->note, messages::kCancelJob,
                            messages::kClose, true}))
    return YES;
  const std::string printer = QueueName::parse([dialog session].job().queue()).printer;
  const int job = state->sent->id;
  WaitPanel panel;
  BackgroundCall<std::string> call([=] { return cancelJob(printer, job); }, kCancelTimeout,
                                   panel.signal());
  const bool isDone = panel.await(call, window, messages::waitingForCups(cupsServerName()));
  const std::string problem =
      isDone ? call.take() : messages::jobNotCancelled(printer, job, messages::kNoAnswer);
  if (problem.empty()) {
    state->errors << messages::waitingJobCancelled(printer, job) << std::endl;
    return NO;
  }
  state->errors << problem << std::endl;
  showNote(window, messages::kJobWaits, problem);
  return YES;
}

- (void)startWithFocus:(NSView *)focused {
  state->focused = focused;
  [self startWith:OwnShift::Apply];
}

- (void)startWith:(OwnShift)shift {
  state->unmovable.reset();
  PrintJob &job = [dialog session].job();
  if (!job.isPreparing() && job.target() != JobTarget::Ticket && !job.hasDocument()) {
    [dialog say:messages::kNothingToPrint];
    return;
  }
  try {
    const auto path = fileToWrite([progress window], job);
    if (!path)
      return;
    state->submission =
        job.print([dialog session].destinations().list(), *path, state->wake.signal(), shift);
  } catch (const ShiftFailure &failure) {
    state->unmovable = failure;
  } catch (const Failure &failure) {
    [dialog say:failure.what()];
    return;
  }
  if (state->unmovable) {
    [self askToPrintUnmoved];
    return;
  }
  if (![self isUnderWay]) {
    [NSApp stopModalWithCode:NSOKButton];
    return;
  }
  [dialog show:""];
  [progress setDoubleValue:0];
  [self showSending:YES];
}

- (void)showSending:(BOOL)sending {
  [progress setHidden:!sending];
  if (sending) {
    state->lock = std::make_unique<ControlLock>([[progress window] contentView], cancelButton);
    return;
  }
  state->lock.reset();
  [[progress window] makeFirstResponder:state->focused];
}

- (void)cancel {
  if ([self isUnderWay])
    state->submission->cancel();
}

- (void)look {
  if (![self isUnderWay] || state->isAsking)
    return;
  if (state->submission->question()) {
    wakeModalLoop([progress window]);
    return;
  }
  [self showProgress];
  if (state->submission->isDone())
    [self finish];
}

- (void)showProgress {
  const ShownProgress now = shownProgress(*state->submission);
  [progress setDoubleValue:now.part];
  [dialog show:now.text];
}

- (void)finish {
  const auto submission = std::move(state->submission);
  [self showSending:NO];
  try {
    const SubmittedJob sent = submission->result();
    [dialog session].job().report(sent, std::cout, state->errors);
    state->sent = sent;
    [dialog show:""]; // "Sending" is over when the user reads the note
    [NSApp stopModalWithCode:NSOKButton];
    wakeModalLoop([progress window]);
  } catch (const ShiftFailure &failure) {
    [dialog show:""];
    state->unmovable = failure;
    wakeModalLoop([progress window]);
  } catch (const Failure &failure) {
    [dialog say:failure.what()];
  }
}

- (void)askToPrintUnmoved {
  if (!state->unmovable || [self isUnderWay])
    return;
  const ShiftFailure failure = *state->unmovable;
  state->unmovable.reset();
  const bool isMovedBefore = failure.problem() == MoveProblem::MovedBefore;
  const Proposal proposal{
      isMovedBefore ? messages::kPrintAsItIsWindow : messages::kPrintUnmovedWindow,
      failure.reason(), isMovedBefore ? messages::kPrintAsItIs : messages::kPrintUnmovedButton,
      messages::kGoBack, true};
  const bool isPrintable = failure.isPrintable();
  if (isPrintable && isConfirmed([progress window], proposal)) {
    [self startWith:OwnShift::Skip];
    return;
  }
  [dialog say:failure.reason()];
  [[progress window] makeFirstResponder:state->focused];
}

- (void)askForPassword {
  if (![self isUnderWay] || state->isAsking)
    return;
  const auto question = state->submission->question();
  if (!question)
    return;
  state->isAsking = true;
  auto answer = imageposition::askForPassword([progress window],
                                              [dialog session].job().printer().name(), *question);
  state->isAsking = false;
  if (!answer)
    [self cancel];
  state->submission->answer(std::move(answer));
  [self look]; // what came meanwhile
}

@end
