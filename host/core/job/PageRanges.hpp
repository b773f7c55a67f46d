/// Which pages of a document are printed.
#ifndef IMAGEPOSITION_HOST_PAGERANGES_HPP
#define IMAGEPOSITION_HOST_PAGERANGES_HPP

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

/// Pages as people write them: "1-3, 7", "5-" to the end, "-4" from the start. Ascending, without
/// overlaps; neighbours are one range.
class PageRanges {
public:
  /// Throws a `Failure` with `ExitCode::Usage` that says what is wrong and gives an example.
  static PageRanges parse(std::string_view text);

  const std::vector<PageRange> &ranges() const noexcept { return ranges_; }
  /// For people, "1-3, 7, 9-".
  std::string text() const;
  /// For CUPS's `page-ranges`, "1-3,7,9-".
  std::string optionValue() const;

private:
  std::vector<PageRange> ranges_; // never empty once parsed
};

enum class PageSet { All, Odd, Even };

/// A job's choice of pages.
struct PageChoice {
  std::optional<PageRanges> ranges; ///< All pages without.
  PageSet set = PageSet::All;       ///< Of those in the ranges.
};

/// From the job's `page-ranges` and `page-set`; what cannot be understood counts as all pages.
PageChoice readPageChoice(const PrintSettingsStore &job);

/// Sets and removes the two. Locked entries stay.
void storePageChoice(const PageChoice &choice, PrintSettingsStore &job);

} // namespace imageposition

#endif
