/// Facts about a document.
#ifndef IMAGEPOSITION_CORE_DOCUMENTS_DOCUMENTFACTS_HPP
#define IMAGEPOSITION_CORE_DOCUMENTS_DOCUMENTFACTS_HPP

#include "Units.hpp"

#include <optional>
#include <string>
#include <string_view>

namespace imageposition {

/// Upright or on its side.
struct PaperSize {
  Point width;
  Point length;

  /// Whether they differ by no more than paper may; either of them may lie on its side.
  bool isSame(const PaperSize &other) const noexcept;
};

struct DocumentFacts {
  int pages = 0; ///< At least 1.
  /// Of all pages, lying as the reader sees the first; none if they differ.
  std::optional<PaperSize> paper;
};

/// The line with which the examiner reports to the dialog.
std::string writeFacts(const DocumentFacts &facts);
/// None if the line is not one that `writeFacts` returns.
std::optional<DocumentFacts> readFacts(std::string_view line);

/// Why CUPS's filters refuse a PDF file, or probably do.
enum class DocumentDefect {
  Password,  ///< Only a password opens it.
  Forbidden, ///< Its owner does not allow printing.
  Damaged,   ///< QPDF, with which the filters read it, cannot.
};

/// The line with which the examiner reports a defect.
std::string writeDefect(DocumentDefect defect);
/// None if the line is not one that `writeDefect` returns.
std::optional<DocumentDefect> readDefect(std::string_view line);

} // namespace imageposition

#endif
