#import "DialogController.h"
#import "DialogState.h"
#import "NamePanel.h"
#import "PasswordPanel.h"
#import "TextBridge.h"
#include "TicketName.hpp"
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

- (void)startSending {
  PrintJob &job = session->job();
  if (job.isSubmitted() && !job.hasDocument()) {
    [self say:messages::kNothingToPrint];
    return;
  }
  try {
    std::string ticket = job.arguments().ticket;
    if (!job.isSubmitted() && ticket.empty()) {
      const auto named = askForTicket(views.window, suggestedTicket(job.documents()));
      if (!named)
        return;
      ticket = *named;
    }
    state->submission = job.print(state->destinations.list(), ticket, [] {}); // the timer looks
  } catch (const Failure &failure) {
    [self say:failure.what()];
    return;
  }
  if (![self isSending]) {
    [NSApp stopModalWithCode:NSOKButton];
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
  auto answer = askForPassword(views.window, session->job().printer().name(), *question);
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
    session->job().report(sent, std::cout, *errors);
    state->note = sent.note;
    [views.message setStringValue:@""]; // what was said of sending is over when the note is read
    [NSApp stopModalWithCode:NSOKButton];
    wakeModalLoop(views.window);
  } catch (const Failure &failure) {
    [self say:failure.what()];
  }
}

@end
