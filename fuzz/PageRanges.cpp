// Page ranges: ascending without overlaps, and the same after they were written and read again.
#include "PageRanges.hpp"

#include "Check.hpp"
#include "ExitCode.hpp"

using imageposition::PageRange;
using imageposition::PageRanges;
using imageposition::fuzz::check;

namespace {

void checkOrder(const std::vector<PageRange> &ranges) {
  check(!ranges.empty(), "there are pages");
  // Neighbours are one range, so that there is a page between any two.
  long long before = -1;
  for (const PageRange &range : ranges) {
    check(range.first > before + 1 && range.first >= 1,
          "ranges ascend and neither overlap nor touch");
    check(range.last >= range.first, "a range does not run backwards");
    before = range.last;
  }
}

// A job's own text for its pages, from wherever it came.
void checkStored(const std::string &text) {
  imageposition::PrintSettingsStore job;
  if (job.set("page-ranges", text) != imageposition::PrintSettingsStore::Outcome::Stored)
    return;
  const imageposition::PageChoice choice = imageposition::readPageChoice(job);
  imageposition::storePageChoice(choice, job);
  const imageposition::PageChoice again = imageposition::readPageChoice(job);
  check(choice.ranges.has_value() == again.ranges.has_value(), "pages stay chosen");
  check(!choice.ranges || choice.ranges->ranges() == again.ranges->ranges(),
        "a stored choice of pages is read as it was");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size) {
  const std::string text(reinterpret_cast<const char *>(data), size);
  checkStored(text);
  try {
    const PageRanges pages = PageRanges::parse(text);
    checkOrder(pages.ranges());
    check(PageRanges::parse(pages.optionValue()).ranges() == pages.ranges(),
          "CUPS's form reads as the same pages");
    check(PageRanges::parse(pages.text()).ranges() == pages.ranges(),
          "the form for people reads as the same pages");
  } catch (const imageposition::Failure &failure) {
    check(failure.code() == imageposition::ExitCode::Usage && *failure.what() != '\0',
          "what is wrong with page ranges is said");
  }
  return 0;
}
