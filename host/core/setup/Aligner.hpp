/// Prints alignment sheets for a job's settings, and keeps what they show.
#ifndef IMAGEPOSITION_CORE_SETUP_ALIGNER_HPP
#define IMAGEPOSITION_CORE_SETUP_ALIGNER_HPP

#include "Alignments.hpp"
#include "FileContent.hpp"
#include "PrintJob.hpp"
#include "SheetTask.hpp"

#include <optional>
#include <ostream>
#include <string>
#include <vector>

namespace imageposition {

/// What the sheets show, and what comes of it.
struct AlignmentResult {
  Measurement measurement;
  SideOffsets printed; ///< With which the sheets were printed.
  CorrectedOffsets corrected;
  TenthMillimetre most = kLargestOffset; ///< The printer's largest offset.

  /// What the user should know: the displacement, how good it can get, the new offsets, and
  /// warnings. A sentence each.
  std::vector<std::string> sentences() const;
};

/// Measures the printer of a job with the job's paper, tray and turning. Main thread only.
class Aligner {
public:
  /// Several, because no printer takes two sheets alike: their median is better than one of them,
  /// and their spread tells how good it can get.
  static constexpr int kSheets = 3;

  /// Borrows the job. Throws a `Failure` if it is one-sided, or its paper too small.
  explicit Aligner(PrintJob &job);

  const AlignmentKey &key() const noexcept { return key_; }
  const SheetLayout &layout() const noexcept { return layout_; }
  /// "A4, Tray 1, turned about the long edge".
  std::string settingsInWords() const;

  /// The sheets as a PDF document. Throws a `Failure`.
  Descriptor drawSheets() const;
  /// Turns the job into one that prints `sheets`, as they are, with the job's offsets.
  void setUpJob(const Descriptor &sheets);
  /// Stores the offsets with which the sheets are printed, for `result`. Returns false, with a
  /// message to `errors`, if they cannot be stored.
  bool rememberPrinted(std::ostream &errors) const;

  /// `readings` has at least one. Without `crease`, the front stays where it is.
  AlignmentResult result(const std::vector<SheetReading> &readings,
                         const std::optional<Offset> &crease, std::ostream &errors) const;
  /// Returns false, with a message to `errors`, if it cannot be stored.
  bool store(const AlignmentResult &result, std::ostream &errors) const;

private:
  SheetTask task() const;

  PrintJob &job_;
  PageShape page_;
  AlignmentKey key_;
  SideOffsets present_;
  SheetLayout layout_;
};

} // namespace imageposition

#endif
