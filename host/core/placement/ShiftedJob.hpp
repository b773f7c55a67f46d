/// Lays a job out and moves its image here, where the printer's driver does not move it.
#ifndef IMAGEPOSITION_CORE_PLACEMENT_SHIFTEDJOB_HPP
#define IMAGEPOSITION_CORE_PLACEMENT_SHIFTEDJOB_HPP

#include "DocumentMover.hpp"
#include "JobRequest.hpp"
#include "JobSplit.hpp"
#include "PageShift.hpp"
#include "SubmitJob.hpp"

#include <cups/ppd.h>

#include <functional>
#include <optional>
#include <string>

namespace imageposition {

enum class ShiftedBy {
  Nobody,  ///< All offsets of the sides that are printed are 0, or the adjustment is not available.
  Printer, ///< The printer's description says that its driver does: it gets the offsets.
  Dialog,  ///< The dialog moves the documents, and the printer gets no offsets.
};

struct ShiftDecision {
  ShiftedBy by = ShiftedBy::Nobody;
  /// How each side moves, whoever moves it. The plan of the last document; the others are padded.
  ShiftPlan plan;
};

/// How the pages of one document become sides. As in `decideShift`, but also if nothing moves.
SideOrder sideOrder(const PrintSettingsStore &options, ppd_file_t *ppd);

/// Decides who moves the image. `options` are those that the job would be sent with, `ppd` is the
/// printer's, with the job's choices marked; not null.
ShiftDecision decideShift(const PrintSettingsStore &options, ppd_file_t *ppd);

/// Whether the printer gets the last page of a document first. As cups-filters decides it: the
/// job's option, or else the output bin, or else the printer's default.
bool isReversed(const PrintSettingsStore &options, ppd_file_t *ppd);

/// A job whose documents the dialog lays out and, unless all offsets are 0, moves. Does not refer
/// to what it was made from, so it can be used on another thread.
class ShiftedJob {
public:
  /// `description` is the text of the printer's PPD; `ppd` is the same with the job's choices
  /// marked. `device` is the queue's device URI; may be empty. Throws a `ShiftFailure` if the job
  /// cannot be moved on this computer, and what `optionsToSend` throws.
  ShiftedJob(const JobRequest &job, const ShiftPlan &plan, ppd_file_t *ppd, std::string description,
             std::string device);

  /// Says that the image is moved here, and by how much.
  std::string description() const;
  /// Says what the move pushes out of the printable area; empty if that is nothing.
  const std::string &losses() const noexcept { return losses_; }
  /// What is sent with the moved documents.
  const JobRequest &request() const noexcept { return split_.printing; }

  /// Lays out and moves the documents. A `JobPreparation`; throws a `ShiftFailure` for a document
  /// that cannot be moved.
  PreparedJob move(const JobDocuments &documents, const ProgressCallback &progress) const;

  /// The options that the document is laid out with, in one string.
  const std::string &layout() const noexcept { return task_.options; }
  /// Lays out and moves one document, or only these pages of a PDF document; empty ranges are all
  /// pages. Returns none if `keepWaiting`, which is called a few times each second, returns false.
  /// Throws a `ShiftFailure` or a `SubmissionFailure`.
  std::optional<MovedDocument> layOut(const std::string &document, const std::string &pages,
                                      const std::function<bool()> &keepWaiting) const;

private:
  JobSplit split_;
  ShiftPlan plan_;
  std::string losses_;
  std::string ppd_;
  std::string device_;
  MoverTask task_;
};

} // namespace imageposition

#endif
