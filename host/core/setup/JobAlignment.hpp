/// The offsets that were measured for a job.
#ifndef IMAGEPOSITION_CORE_SETUP_JOBALIGNMENT_HPP
#define IMAGEPOSITION_CORE_SETUP_JOBALIGNMENT_HPP

#include "Alignments.hpp"
#include "JobStart.hpp"

#include <optional>
#include <string>

namespace imageposition {

/// What the user has measured, and what of it the job has taken. Main thread only.
class JobAlignment {
public:
  /// Borrows all; the job's printer may be replaced. Reads what was measured unless --no-alignment
  /// is given or the job is a prepared one, with a message to standard error if it cannot be read.
  JobAlignment(const Arguments &arguments, const JobStart &start, const OpenedPrinter &printer,
               PrintSettingsStore &settings);
  JobAlignment(const JobAlignment &) = delete;
  JobAlignment &operator=(const JobAlignment &) = delete;

  /// Call for each printer of the job, with the choices marked: takes the offsets that were
  /// measured, unless the job's start has others. Returns those that it has taken.
  std::optional<SideOffsets> begin();

  /// Call after the paper, the tray or the turning may have changed: takes the offsets that were
  /// measured for them. Offsets that the user has entered stay unless others were measured for the
  /// new settings. Returns whether the offsets have changed.
  bool follow();

  /// Takes offsets that were measured just now with the job's paper, tray and turning, whatever the
  /// user or the command line has given. `follow` knows them from then on.
  void take(const MeasuredAlignment &alignment);

  /// Where the job's offsets come from: "The offsets were measured on ...". Empty unless they are
  /// those that were measured, and move the image. Marks the choices.
  std::string note();

  /// Whether the job's offsets are those that it has taken.
  bool isInEffect() const;

private:
  std::optional<FoundAlignment> here() const;
  bool takeHere();

  const JobStart &start_;
  const OpenedPrinter &printer_;
  PrintSettingsStore &settings_;
  Alignments all_;
  std::optional<FoundAlignment> taken_;
  bool isMeasuredNow_ = false; // with this printer, for this job
};

} // namespace imageposition

#endif
