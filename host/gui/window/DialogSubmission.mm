#import "DialogController.h"
#import "DialogState.h"
#import "PasswordPanel.h"
#import "TextBridge.h"
#include "WindowTexts.hpp"

#include <iostream>

using namespace imageposition;

@interface DialogController (SubmissionInside)
- (void)lookAfterSending;
- (void)showSending:(BOOL)sending;
@end

@implementation DialogController (Submission)

- (BOOL)isSending {
  return state->submission != nullptr;
}

- (void)showSending:(BOOL)sending {
  [views.progress setHidden:!sending];
  if (sending) {
    state->lock = std::make_unique<ControlLock>([views.window contentView], views.cancel);
    return;
  }
  state->lock.reset();
  [views.window makeFirstResponder:state->focusBefore];
}

- (JobRequest)request {
  JobRequest request = job->request();
  const Destination *const destination = state->destinations.list().find(job->queue());
  if (destination != nullptr && job->isSubmitted()) {
    request.defaults = destination->defaults;
    request.printerUri = destination->uri;
  }
  return request;
}

- (void)startSending {
  if (!job->hasDocument()) {
    [self say:messages::kNothingToPrint];
    return;
  }
  const JobRequest request = [self request];
  try {
    if (job->arguments().isDryRun) {
      std::cout << writeRequestText(request);
      [NSApp stopModalWithCode:NSOKButton];
      return;
    }
    state->submission = std::make_unique<JobSubmission>(request, job->documentsToSend());
  } catch (const Failure &failure) {
    [self say:failure.what()];
    return;
  }
  [views.message setStringValue:@""];
  [views.progress setDoubleValue:0];
  [self showSending:YES];
}

- (void)cancelSending {
  state->submission->cancel();
}

- (void)wake {
  if (!state->optionToEnter.empty())
    [self enterValue];
  if (![self isSending] || state->isAskingForPassword)
    return;
  const auto question = state->submission->question();
  if (!question)
    return;
  state->isAskingForPassword = true;
  auto answer = askForPassword(views.window, job->request().printer, *question);
  state->isAskingForPassword = false;
  if (!answer)
    [self cancelSending];
  state->submission->answer(std::move(answer));
}

/// Called by the window's timer.
- (void)lookAfterSending {
  if (![self isSending] || state->isAskingForPassword)
    return;
  if (state->submission->question()) {
    wakeModalLoop(views.window);
    return;
  }
  const JobProgress progress = state->submission->progress();
  const auto total = progress.total.value_or(0);
  [views.progress
      setDoubleValue:total == 0 ? 0
                                : static_cast<double>(progress.sent) / static_cast<double>(total)];
  [views.message
      setStringValue:toString(messages::sending(messages::byteCount(progress.sent),
                                                total == 0 ? "" : messages::byteCount(total)))];
  if (!state->submission->isDone())
    return;
  const auto submission = std::move(state->submission);
  [self showSending:NO];
  try {
    const SubmittedJob sent = submission->result();
    job->report(sent, std::cout, *errors);
    state->note = sent.note;
    [views.message setStringValue:@""]; // what was said of sending is over when the note is read
    [NSApp stopModalWithCode:NSOKButton];
    wakeModalLoop(views.window);
  } catch (const Failure &failure) {
    [self say:failure.what()];
  }
}

@end
