#include "JobFiles.hpp"

#include "CustomValue.hpp"
#include "ExitCode.hpp"
#include "Measurement.hpp"
#include "OptionText.hpp"
#include "PdfFile.hpp"
#include "Phrases.hpp"
#include "PreparedJob.hpp"
#include "SetupTexts.hpp"
#include "ShiftedJob.hpp"

#include <cstdio>
#include <filesystem>
#include <iostream>
#include <unistd.h>
#include <utility>

namespace imageposition {

namespace {

void writeToOutput(const std::string &settings) {
  if (isatty(STDOUT_FILENO) != 0) {
    std::cout << settings;
    return;
  }
  // Bypass `std::cout`, which escapes control characters.
  std::cout.flush();
  if (std::fwrite(settings.data(), 1, settings.size(), stdout) != settings.size() ||
      std::fflush(stdout) != 0)
    throw Failure(ExitCode::Ticket, messages::outputUnwritable({}));
}

} // namespace

JobFiles::JobFiles(const Arguments &arguments, const OpenedPrinter &printer)
    : arguments_(arguments), printer_(printer) {}

void JobFiles::writeTicket(const Ticket &ticket, const std::string &path) {
  if (path.empty()) {
    writeToOutput(writeOptionText(ticket.settings));
    return;
  }
  const bool isSecret = !hiddenSettings(printer_.printer->ppd(), ticket.settings).empty();
  imageposition::writeTicket(ticket, path, isSecret ? Readers::OwnerAlone : Readers::Same);
  done_ = messages::ticketWritten(path, optionTextPath(path));
  if (!arguments_.isSilent)
    std::cerr << done_ << '\n';
}

void JobFiles::writePrepared(Ticket ticket, const JobRequest &request, OwnShift ownShift) {
  PrinterDescription &printer = *printer_.printer;
  if (ownShift == OwnShift::Skip || arguments_.isUnshifted)
    setSideOffsets(ticket.settings, {});
  else if (const ShiftDecision decision = shiftOf(request, ticket.settings, printer);
           decision.by == ShiftedBy::Dialog)
    shiftedJob(request, decision.plan, printer); // throws if the image of no document can be moved
  ticket.printer = printer_.queue;
  ticket.documents.clear();
  ticket.paper = paperOf(printer, ticket.settings);
  writePreparedTicket(ticket, arguments_.prepare);
}

std::unique_ptr<JobSubmission> JobFiles::startPdf(const PrintedContent &content,
                                                  const JobRequest &request,
                                                  const std::string &path,
                                                  JobSubmission::Changed changed) {
  if (content.documents.size() > 1)
    throw Failure(ExitCode::Usage, messages::kOneDocumentForPdf);
  std::error_code ignored;
  if (std::filesystem::equivalent(path, content.documents.front(), ignored))
    throw Failure(ExitCode::Usage, messages::pdfIsDocument(path));
  const ShiftPlan plan = shiftOf(request, content.settings, *printer_.printer).plan;
  const std::shared_ptr<const ShiftedJob> laidOut = shiftedJob(request, plan, *printer_.printer);
  pdfNote_ = messages::pdfWritten(path);
  if (plan.isMoving())
    pdfNote_ = messages::sentences({pdfNote_, messages::kPdfIsMoved});
  const std::string document = content.documents.front();
  const auto work = [=](const ProgressCallback &progress, const PasswordCallback &) {
    writePdf(*laidOut, document, path, progress);
    return SubmittedJob();
  };
  return std::make_unique<JobSubmission>(request.printer, work, std::move(changed));
}

void JobFiles::reportPdf(std::ostream &notes) {
  done_ = pdfNote_;
  if (!arguments_.isSilent)
    notes << done_ << std::endl;
}

} // namespace imageposition
