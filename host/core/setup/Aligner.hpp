/// Prints alignment sheets for a job's settings, and keeps what they show.
#ifndef IMAGEPOSITION_CORE_SETUP_ALIGNER_HPP
#define IMAGEPOSITION_CORE_SETUP_ALIGNER_HPP

#include "Alignments.hpp"
#include "FileContent.hpp"
#include "PrintJob.hpp"
#include "SheetTask.hpp"

#include <memory>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

namespace imageposition {

/// What the sheets show, and what comes of it.
struct AlignmentResult {
  Measurement measurement;
  CorrectedOffsets corrected;
  TenthMillimetre most = kLargestOffset; ///< The printer's largest offset.

  /// What the user should know: the displacement, how good it can get, the new offsets, and
  /// warnings. A sentence each.
  std::vector<std::string> sentences() const;
};

/// Why no alignment sheets can be printed.
struct AlignmentObstacle {
  std::string reason; ///< A sentence.
  std::string advice; ///< The options of the command line that remove it, in a sentence.
};

/// What keeps the job from being printed as alignment sheets; none if nothing does.
std::optional<AlignmentObstacle> obstacleToAlignment(PrintJob &job);

/// Makes the PDF document of a task, on any thread. Throws a `Failure`.
Descriptor drawSheets(const SheetTask &task);

/// Returns false, with a message to `errors`, if it cannot be stored.
bool storeAlignment(const MeasuredAlignment &alignment, std::ostream &errors);

/// Measures the printer of a job with the job's paper, tray and turning. Main thread only.
class Aligner {
public:
  /// Several, because printers feed no two sheets exactly alike: their median is better than one
  /// sheet, and their spread shows how accurate the printer can be.
  static constexpr int kSheets = 3;

  /// Borrows the job. Throws a `Failure` if there is an obstacle.
  explicit Aligner(PrintJob &job);

  const AlignmentKey &key() const noexcept { return key_; }
  const SheetLayout &layout() const noexcept { return layout_; }
  /// The job's offsets, with which the sheets are printed.
  const SideOffsets &present() const noexcept { return present_; }
  /// "A4, Tray 1, turned about the long edge".
  std::string settingsInWords() const;

  /// For `drawSheets`.
  SheetTask task() const;
  /// Starts to print what `drawSheets` has made, as it is, with the job's offsets; leaves the job
  /// alone. `sheets` must stay open until the submission has ended. Returns and throws as
  /// `PrintJob::printOther`.
  std::unique_ptr<JobSubmission> print(const Descriptor &sheets,
                                       const DestinationList &destinations,
                                       JobSubmission::Changed changed = {}) const;
  /// Stores the offsets with which the sheets are printed. Returns false, with a message to
  /// `errors`, if they cannot be stored.
  bool rememberPrinted(std::ostream &errors) const;

  /// `readings` has at least one. Without `crease`, the front stays where it is. `printed` are the
  /// offsets with which the sheets were printed; if they are not known, those of the job.
  AlignmentResult result(const std::vector<SheetReading> &readings,
                         const std::optional<Offset> &crease,
                         const std::optional<SideOffsets> &printed) const;
  /// For `storeAlignment`.
  MeasuredAlignment measured(const AlignmentResult &result) const;

private:
  PrintJob &job_;
  PageShape page_;
  AlignmentKey key_;
  SideOffsets present_;
  SheetLayout layout_;
};

} // namespace imageposition

#endif
