/// Has a document laid out and moved by another process.
#ifndef IMAGEPOSITION_CORE_PLACEMENT_DOCUMENTMOVER_HPP
#define IMAGEPOSITION_CORE_PLACEMENT_DOCUMENTMOVER_HPP

#include "ExitCode.hpp"
#include "FileContent.hpp"
#include "MoverTask.hpp"

#include <functional>
#include <optional>
#include <string>

namespace imageposition {

/// The image of a document cannot be moved here. Nothing was sent. If CUPS can print the document,
/// the message also says how to print without moving it on the command line; `reason` leaves that
/// out, for a window that asks.
class ShiftFailure : public Failure {
public:
  ShiftFailure(MoveProblem problem, const std::string &reason);
  MoveProblem problem() const noexcept { return problem_; }
  const std::string &reason() const noexcept { return reason_; }
  /// Whether CUPS can print the document as it is.
  bool isPrintable() const noexcept;

private:
  MoveProblem problem_;
  std::string reason_;
};

/// The parts of CUPS that lay documents out.
struct LayoutPrograms {
  std::string filters; ///< The folder of the filters.
  std::string chooser; ///< The path of `cupsfilter`; may be empty: PDF files can do without.
};

/// Looks in the folders in which distributions install them. None if cups-filters is not installed.
std::optional<LayoutPrograms> layoutPrograms();

/// The file that remembers between jobs whether these programs lay out as expected; empty if there
/// is no place for it.
std::string verdictFile();

struct MovedDocument {
  Descriptor file; ///< Has no name, and is gone when it is closed.
  int pages = 0;
};

/// Called a few times each second and after each percent, with the percentage of the result that
/// was written. Returns false to cancel.
using MoveProgress = std::function<bool(int)>;

/// Lays the document out and moves it, as the task says. `name` is the document's for messages.
/// `description` is the text of the printer's PPD. Returns none if `progress` has cancelled, which
/// takes less than 0.2 s and leaves nothing behind. Throws a `ShiftFailure`.
std::optional<MovedDocument> moveDocument(const MoverTask &task, const Descriptor &document,
                                          const std::string &name, const std::string &description,
                                          const MoveProgress &progress);

} // namespace imageposition

#endif
