/// Writes a job to files.
#ifndef IMAGEPOSITION_CORE_SETUP_JOBFILES_HPP
#define IMAGEPOSITION_CORE_SETUP_JOBFILES_HPP

#include "JobSubmission.hpp"
#include "PrintedContent.hpp"
#include "Ticket.hpp"

#include <memory>
#include <ostream>
#include <string>

namespace imageposition {

/// Writes a job's ticket, its PDF file or its prepared job, and knows what was written last. All
/// functions that write throw a `Failure`. Main thread only.
class JobFiles {
public:
  /// Borrows both; the job's printer may be replaced.
  JobFiles(const Arguments &arguments, const OpenedPrinter &printer);
  JobFiles(const JobFiles &) = delete;
  JobFiles &operator=(const JobFiles &) = delete;

  /// Writes the ticket and its settings for lp; with an empty path only the settings, to standard
  /// output.
  void writeTicket(const Ticket &ticket, const std::string &path);
  /// Writes the printer and the settings to the file that --prepare names. Fails if the image could
  /// not be moved.
  void writePrepared(Ticket ticket, const JobRequest &request, OwnShift ownShift);
  /// Starts to write the only document to a PDF file, laid out and moved. The caller awaits it, and
  /// then calls `reportPdf`.
  std::unique_ptr<JobSubmission> startPdf(const PrintedContent &content, const JobRequest &request,
                                          const std::string &path, JobSubmission::Changed changed);
  /// Names the PDF file to `notes`, unless the command line has -s.
  void reportPdf(std::ostream &notes);

  /// A sentence that names the written files; empty until they are written.
  const std::string &done() const noexcept { return done_; }

private:
  const Arguments &arguments_;
  const OpenedPrinter &printer_;
  std::string pdfNote_; // for `done_` when the file is written
  std::string done_;
};

} // namespace imageposition

#endif
