#import "StartMessage.h"

#include "JobSubmission.hpp"
#include "Phrases.hpp"
#include "QueueName.hpp"
#include "UnknownValues.hpp"
#include "WindowTexts.hpp"

namespace imageposition {

namespace {

/// Why the documents cannot be printed; empty if they can.
std::string problemWith(const JobDocuments &documents) {
  try {
    totalSize(documents);
    return {};
  } catch (const SubmissionFailure &failure) {
    return failure.what();
  }
}

/// In what the job begins otherwise than a first one would; may be empty.
std::string differenceAtStart(const PrintJob &job) {
  const std::string printer = QueueName::parse(job.queue()).printer;
  const std::string &missing = job.start().missingPrinter();
  return messages::sentences(
      {missing.empty() ? "" : messages::otherThanLastPrinter(missing, printer),
       job.start().isFromLastJob() ? messages::numbersNow(NumbersNow::Remembered, printer) : ""});
}

} // namespace

std::string startTroubles(PrintSession &session) {
  PanelSession &panels = session.panels();
  PrintJob &job = session.job();
  std::string troubles = panels.troubleText();
  if (const std::string problem = problemWith(job.documents()); !problem.empty())
    troubles = problem;
  return messages::sentences({troubles, messages::sentences(unknownValues(
                                            job.printer(), job.settings(), panels.optionKeys()))});
}

std::string startNotes(PrintJob &job) {
  return messages::sentences(
      {messages::sentences(job.start().misfits()), differenceAtStart(job), job.alignment().note()});
}

} // namespace imageposition
