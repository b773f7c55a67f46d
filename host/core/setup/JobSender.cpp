#include "JobSender.hpp"

#include "DocumentExaminer.hpp"
#include "DocumentNames.hpp"
#include "DocumentTexts.hpp"
#include "GivenSettings.hpp"
#include "JobSettings.hpp"
#include "PageRanges.hpp"
#include "Phrases.hpp"
#include "QueueName.hpp"
#include "SetupTexts.hpp"
#include "ShiftedJob.hpp"
#include "Strings.hpp"

#include <algorithm>
#include <iostream>
#include <utility>

namespace imageposition {

namespace {

/// Throws a `Failure` if the document has none of the chosen pages.
void requirePages(const DocumentFacts &facts, const PageChoice &choice, int pagesPerSide) {
  const int sides = (facts.pages + pagesPerSide - 1) / pagesPerSide;
  if (choice.ranges && !choice.ranges->hasPagesUpTo(sides))
    throw Failure(ExitCode::Usage, pagesPerSide > 1 ? messages::documentHasSides(sides)
                                                    : messages::documentHasPages(sides));
}

} // namespace

JobSender::JobSender(const Arguments &arguments, const OpenedPrinter &printer,
                     JobAlignment &alignment)
    : arguments_(arguments), printer_(printer), alignment_(alignment) {}

std::unique_ptr<JobSubmission> JobSender::submit(const PrintedContent &content,
                                                 const JobRequest &request,
                                                 JobSubmission::Changed changed) {
  const JobDocuments &documents = content.documents;
  const ShiftDecision decision = shiftOf(request, content.settings, *printer_.printer);
  std::shared_ptr<const ShiftedJob> shifted;
  if (decision.by == ShiftedBy::Dialog)
    shifted = shiftedJob(request, decision.plan, *printer_.printer);
  losses_ = shifted ? shifted->losses() : "";
  origin_ = alignment_.note();
  sentFiles_ = documents.size() -
               static_cast<std::size_t>(std::count(documents.begin(), documents.end(), "-"));
  warn(content, shifted != nullptr);
  if (arguments_.isDryRun) {
    showRequest(request, documents, shifted.get());
    return nullptr;
  }
  JobPreparation prepare;
  if (shifted)
    prepare = [shifted](const JobDocuments &sent, const ProgressCallback &progress) {
      return shifted->move(sent, progress);
    };
  return std::make_unique<JobSubmission>(request, documents, std::move(changed),
                                         std::move(prepare));
}

void JobSender::warn(const PrintedContent &content, bool isShifted) const {
  if (!arguments_.isBatch)
    return;
  if (isBackIgnored(arguments_, printer_.printer->ppd(), content.settings))
    std::cerr << messages::kBackIgnored.view() << '\n';
  if (isRaw(content.settings))
    return;
  const PageChoice choice = readPageChoice(content.settings);
  PrintSettingsStore settings = content.settings;
  const int pagesPerSide = JobSettings(*printer_.printer, settings).pagesPerSide();
  for (const std::string &document : content.documents) {
    if (document == "-" || (isShifted && !choice.ranges))
      continue;
    const DocumentReport report = examined(document);
    const bool isAlone = content.documents.size() == 1; // others may have the pages
    if (report.facts && isAlone && pagesPerSide > 0)
      requirePages(*report.facts, choice, pagesPerSide);
    if (report.defect && !isShifted && !arguments_.isSilent)
      std::cerr << messages::printsNothing(documentName(document), *report.defect) << '\n';
  }
}

/// `shifted` is null if the dialog does not move the image.
void JobSender::showRequest(const JobRequest &request, const JobDocuments &documents,
                            const ShiftedJob *shifted) const {
  totalSize(documents); // fails where a submission would; so does the next
  if (shifted != nullptr && arguments_.isBatch && !contains(documents, "-"))
    shifted->move(documents, [](const JobProgress &) { return true; });
  if (!origin_.empty())
    std::cerr << origin_ << '\n';
  if (shifted != nullptr)
    std::cerr << messages::sentences({shifted->description(), losses_}) << '\n';
  std::cout << writeRequestText(shifted != nullptr ? shifted->request() : request, documents);
}

void JobSender::report(const SubmittedJob &sent, std::ostream &output, std::ostream &notes) {
  const std::string printer = QueueName::parse(printer_.queue).printer;
  sentName_ = printer + "-" + std::to_string(sent.id);
  if (arguments_.isSilent || arguments_.isMailWanted)
    return;
  output << messages::jobSent(printer, sent.id, sentFiles_) << std::endl; // as lp counts them
  for (const std::string &note : {origin_, losses_})                      // the window shows both
    if (arguments_.isBatch && !note.empty())
      notes << note << std::endl;
  if (!sent.note.empty())
    notes << sent.note << std::endl;
}

} // namespace imageposition
