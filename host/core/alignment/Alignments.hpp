/// Stores measurements.
#ifndef IMAGEPOSITION_CORE_ALIGNMENT_ALIGNMENTS_HPP
#define IMAGEPOSITION_CORE_ALIGNMENT_ALIGNMENTS_HPP

#include "Measurement.hpp"

#include <cups/ppd.h>

#include <functional>
#include <ostream>
#include <string>
#include <vector>

namespace imageposition {

/// On what the displacement of a sheet's sides depends.
struct AlignmentKey {
  std::string queue; ///< Without an instance.
  Turning turning = Turning::LongEdge;
  std::string tray;  ///< The choice for "InputSlot"; empty for a printer without that option.
  std::string paper; ///< The choice for "PageSize"; for a custom size with its points.
};

/// From the marked choices. `queue` may have an instance.
AlignmentKey alignmentKeyOf(const std::string &queue, ppd_file_t *ppd);

struct MeasuredAlignment {
  AlignmentKey key;
  SideOffsets offsets;
  Offset spread;    ///< Between the sheets, as in `Measurement`.
  int sheets = 0;   ///< How many were read.
  std::string date; ///< "2026-11-22", in the user's time zone.
};

struct FoundAlignment {
  SideOffsets offsets;
  std::string date;
  bool isOfOtherTurning = false; ///< Measured with the long edge, and used for the short edge.
};

/// The user's measurements, in $XDG_CONFIG_HOME/print-dialog/alignments.json:
///
///     { "alignments": [ { "queue": "...", "turning": "long-edge", "tray": "...", "paper": "...",
///                         "front": [right, down], "back": [right, down], "spread": [0, 1],
///                         "sheets": 3, "date": "2026-11-22" } ],
///       "printed": [ { "queue": ..., "paper": "...", "front": ..., "back": ... } ] }
///
/// Lengths are in tenths of a millimetre. A file that cannot be read counts as empty, with a
/// message to `errors`; one that this program did not write, or that was damaged, is never
/// replaced. Entries that are not as above are ignored.
class Alignments {
public:
  static Alignments read(std::ostream &errors);

  /// In the order in which they were stored first.
  const std::vector<MeasuredAlignment> &all() const noexcept { return all_; }
  /// The measurement with this turning, or else with the long edge; none otherwise.
  std::optional<FoundAlignment> find(const AlignmentKey &key) const;

  /// Replaces an earlier measurement with the same key.
  void store(const MeasuredAlignment &alignment);
  /// Returns how many there were of this queue. Removes its printed sheets, too.
  std::size_t removeQueue(const std::string &queue);

  /// The offsets with which the last sheets were printed; none if none were.
  std::optional<SideOffsets> printed(const AlignmentKey &key) const;
  void setPrinted(const AlignmentKey &key, const SideOffsets &offsets);

  /// The file's content. `fromText` returns none for any other.
  std::string text() const;
  static std::optional<Alignments> fromText(const std::string &text);

private:
  struct Printed {
    AlignmentKey key;
    SideOffsets offsets;
  };

  std::vector<MeasuredAlignment> all_;
  std::vector<Printed> printed_;
};

bool operator==(const AlignmentKey &a, const AlignmentKey &b) noexcept;

/// Reads the file, calls `change`, and replaces the file. Several programs may do so at the same
/// time. Returns false, with a message to `errors`, if the file could not be replaced.
bool changeAlignments(const std::function<void(Alignments &)> &change, std::ostream &errors);

/// Today, as in `MeasuredAlignment::date`.
std::string today();

/// One line for the user: key, offsets, date and spread. `ppd` gives the names of the key's
/// choices; without one, or for choices that it lacks, they are named by their keywords.
std::string alignmentLine(const MeasuredAlignment &alignment);

/// "office, A4, Tray 1, long edge", with the names of the printer's choices if `ppd` has them.
std::string keyInWords(const AlignmentKey &key, ppd_file_t *ppd);

} // namespace imageposition

#endif
