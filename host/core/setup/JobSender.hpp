/// Submits a job to CUPS.
#ifndef IMAGEPOSITION_CORE_SETUP_JOBSENDER_HPP
#define IMAGEPOSITION_CORE_SETUP_JOBSENDER_HPP

#include "JobAlignment.hpp"
#include "JobSubmission.hpp"
#include "PrintedContent.hpp"

#include <cstddef>
#include <memory>
#include <ostream>
#include <string>

namespace imageposition {

/// Submits a job, and knows of the last one what its report says. Main thread only.
class JobSender {
public:
  /// Borrows all; the job's printer may be replaced.
  JobSender(const Arguments &arguments, const OpenedPrinter &printer, JobAlignment &alignment);
  JobSender(const JobSender &) = delete;
  JobSender &operator=(const JobSender &) = delete;

  /// Starts to submit the content. If the printer's driver does not apply the offsets, the
  /// submission first moves the documents. A dry run writes the request to standard output instead,
  /// and returns null. Throws a `Failure`, which is a `ShiftFailure` if the dialog cannot move the
  /// image.
  std::unique_ptr<JobSubmission> submit(const PrintedContent &content, const JobRequest &request,
                                        JobSubmission::Changed changed);

  /// Reports the job that was submitted last: lp's line to `output`, remarks to `notes`. In batch
  /// mode, one of these is what the dialog's move of the image pushes out of the printable area.
  /// Writes nothing if the command line has -s or -m.
  void report(const SubmittedJob &sent, std::ostream &output, std::ostream &notes);
  /// CUPS's name of the submitted job, "office-12"; empty before `report`.
  const std::string &sentName() const noexcept { return sentName_; }

private:
  void warn(const PrintedContent &content, bool isShifted) const;
  void showRequest(const JobRequest &request, const JobDocuments &documents,
                   const ShiftedJob *shifted) const;

  const Arguments &arguments_;
  const OpenedPrinter &printer_;
  JobAlignment &alignment_;
  std::string origin_; // of measured offsets, in words
  std::string losses_; // of the job that is submitted
  std::size_t sentFiles_ = 0;
  std::string sentName_;
};

} // namespace imageposition

#endif
