#import "SubmissionWait.h"

#include "CupsConnection.hpp"
#import "PasswordPanel.h"
#include "QuestionTexts.hpp"

namespace imageposition {

ShownProgress shownProgress(const JobSubmission &submission) {
  const JobProgress now = submission.progress();
  if (now.preparedPercent)
    return {*now.preparedPercent / 100.0, messages::layingOut(*now.preparedPercent)};
  const auto total = now.total.value_or(0);
  return {total == 0 ? 0 : static_cast<double>(now.sent) / static_cast<double>(total),
          submission.isCupsSilent()
              ? messages::stillWaiting(cupsServerName())
              : messages::sending(messages::byteCount(now.sent),
                                  total == 0 ? "" : messages::byteCount(total))};
}

SubmittedJob awaitSubmission(JobSubmission &submission, WaitPanel &panel, NSWindow *parent,
                             const std::string &printer) {
  while (!submission.isDone()) {
    const bool isOver =
        panel.await([&] { return submission.isDone() || submission.question().has_value(); },
                    parent, [&] { return shownProgress(submission).text; });
    if (!isOver) {
      submission.cancel();
    } else if (const auto question = submission.question()) {
      auto credentials = askForPassword(parent, printer, *question);
      if (!credentials)
        submission.cancel();
      submission.answer(std::move(credentials));
    }
  }
  return submission.result();
}

} // namespace imageposition
