/// The selection of pages to print.
#ifndef IMAGEPOSITION_CORE_JOB_PAGERANGES_HPP
#define IMAGEPOSITION_CORE_JOB_PAGERANGES_HPP

#include "PrintSettingsStore.hpp"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace imageposition {

struct PageRange {
  static constexpr int kToTheEnd = 2147483647; ///< IPP's largest integer, as CUPS reads "5-".

  int first = 1;
  int last = 1;

  bool operator==(const PageRange &other) const noexcept {
    return first == other.first && last == other.last;
  }
};

/// Page ranges as users write them: "1-3, 7", "5-" to the end, "-4" from the start. They are
/// sorted; overlapping and adjacent ranges are merged.
class PageRanges {
public:
  /// Throws a `Failure` with `ExitCode::Usage` that describes the error and gives an example.
  static PageRanges parse(std::string_view text);

  /// Whether a document with that many pages, at least one, has one of these pages.
  bool hasPagesUpTo(int pages) const noexcept { return ranges_.front().first <= pages; }
  /// Whether such a document lacks a page that is explicitly named.
  bool namesPagesBeyond(int pages) const noexcept;

  /// If these are sides: the pages on them, in a document of `pages` pages. For display; may be
  /// empty.
  std::string pagesOnSides(int pagesPerSide, int pages) const;

  const std::vector<PageRange> &ranges() const noexcept { return ranges_; }
  /// For display: "1-3, 7, 9-".
  std::string text() const;
  /// For CUPS's `page-ranges`: "1-3,7,9-".
  std::string optionValue() const;

private:
  std::vector<PageRange> ranges_; // never empty once parsed
};

enum class PageSet { All, Odd, Even };

/// A job's choice of pages.
struct PageChoice {
  std::optional<PageRanges> ranges; ///< If not set, all pages.
  PageSet set = PageSet::All;       ///< Which of the pages in `ranges`.
};

/// Reads the job's `page-ranges` and `page-set`. An invalid value counts as all pages.
PageChoice readPageChoice(const PrintSettingsStore &job);

/// Sets or removes the two options. Does not change locked entries.
void storePageChoice(const PageChoice &choice, PrintSettingsStore &job);

} // namespace imageposition

#endif
