/// The protocol between the dialog and the mover.
#ifndef IMAGEPOSITION_CORE_PLACEMENT_MOVERTASK_HPP
#define IMAGEPOSITION_CORE_PLACEMENT_MOVERTASK_HPP

#include "PageShift.hpp"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace imageposition {

/// The work of one run of the mover, besides the files that it gets as descriptors.
struct MoverTask {
  ShiftPlan plan;
  std::string options; ///< For the filters, as `filterOptions` returns them.
  std::string title;
  std::string user;
  std::string path;   ///< Of the document, for its type; absolute, or empty for none.
  std::string format; ///< The document's MIME type; empty to find out.
  /// The only pages of a PDF document that are laid out, as `PageRanges::optionValue` writes them;
  /// empty for all. The layout never sees the others.
  std::string pages;
  std::string filters; ///< The folder of CUPS's filters.
  std::string chooser; ///< The path of `cupsfilter`; empty if there is none.
  std::string verdict; ///< The file that remembers whether the layout was checked; may be empty.
};

/// The descriptors of the mover, besides standard output, to which it reports. Standard input is a
/// pipe that the dialog keeps open as long as it wants the result.
enum MoverDescriptor { kMoverDocument = 3, kMoverDescription = 4, kMoverResult = 5 };

/// The arguments of the mover, without its name.
std::vector<std::string> wordsOf(const MoverTask &task);
/// None if `wordsOf` never returns such words.
std::optional<MoverTask> readTask(const std::vector<std::string> &words);

enum class MoveProblem {
  NoConversion, ///< No filter of this computer reads such a document.
  Layout,       ///< The filters have failed.
  Encrypted,    ///< The document requires a password.
  Forbidden,    ///< Its owner does not allow printing.
  Damaged,      ///< Not of the type that its first bytes indicate, or without pages.
  OtherLayout,  ///< The filters of this computer do not lay pages out as expected.
  MovedBefore,
  NoRoom, ///< The disk is full, or the result too large.
  Fault,  ///< Out of memory, or a bug in the program.
};

/// A line of the mover's output.
struct MoverReport {
  enum class Kind { Progress, Done, Failed } kind = Kind::Progress;
  int number = 0; ///< The percentage of the result that was written, or its number of pages.
  MoveProblem problem = MoveProblem::Fault;
  std::string detail; ///< The reason that a filter gave; may be empty.
};

/// With a newline; control characters in the detail become blanks.
std::string lineOf(const MoverReport &report);
/// `line` has no newline. None if the line is not a report.
std::optional<MoverReport> readReport(std::string_view line);

} // namespace imageposition

#endif
