/// Which pages of a document are on which sheets.
#ifndef IMAGEPOSITION_CORE_PAGES_SHEETORDER_HPP
#define IMAGEPOSITION_CORE_PAGES_SHEETORDER_HPP

#include "PageRanges.hpp"
#include "PageShift.hpp"

#include <optional>
#include <string>
#include <vector>

namespace imageposition {

/// A document whose pages are known before it is laid out.
struct DocumentPages {
  int pages = 0;     ///< At least 1.
  int numberUp = 1;  ///< Pages per side; at least 1.
  PageChoice choice; ///< CUPS counts sides here, not pages.
};

/// The printed sides on a sheet: positions in reading order, from 0.
struct SheetSides {
  std::optional<int> front;
  std::optional<int> back;
};

/// Sheets in reading order, from 0. Independent of the printing order.
class SheetOrder {
public:
  /// Without sheets.
  SheetOrder() = default;
  /// A document that was laid out has that many sides.
  SheetOrder(int sides, const SideOrder &order);
  SheetOrder(const DocumentPages &document, const SideOrder &order);

  int sheets() const noexcept;
  /// `sheet` is less than `sheets()`.
  SheetSides sheet(int sheet) const;
  /// The number of printed sides.
  int sides() const noexcept { return static_cast<int>(sides_.size()); }
  /// The first printed side on a sheet; `sides()` if there is no such sheet.
  int firstSide(int sheet) const noexcept;

  /// The pages on the printed sides from `first` to before `end`, for CUPS's `page-ranges`:
  /// "1-3,7". Empty if that is unknown.
  std::string pages(int first, int end) const;
  /// Of the document, on a sheet; 0 if that is unknown.
  int numberOfPages(int sheet) const;
  /// For display: "1", "3 and 4", "5-8". Empty if that is unknown.
  std::string pagesInWords(int sheet) const;

private:
  bool isTwoSided() const noexcept { return order_.sides == PrintedSides::Both; }
  PageRanges rangesOf(int first, int end) const;

  std::vector<int> sides_; // which of all laid-out sides are printed
  SideOrder order_;
  int pages_ = 0; // 0 if unknown
  int numberUp_ = 1;
};

} // namespace imageposition

#endif
