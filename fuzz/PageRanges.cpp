// Page ranges: ascending without overlaps, and the same after writing and reading them back.
#include "PageRanges.hpp"

#include "Check.hpp"
#include "ExitCode.hpp"

using imageposition::PageRange;
using imageposition::PageRanges;
using imageposition::fuzz::check;

namespace {

void checkOrder(const std::vector<PageRange> &ranges) {
  check(!ranges.empty(), "there are pages");
  // Adjacent ranges are merged, so there is a page between any two.
  long long before = -1;
  for (const PageRange &range : ranges) {
    check(range.first > before + 1 && range.first >= 1,
          "ranges ascend and neither overlap nor touch");
    check(range.last >= range.first, "a range is not inverted");
    before = range.last;
  }
}

// A page-ranges option in a job, from any source.
void checkStored(const std::string &text) {
  imageposition::PrintSettingsStore job;
  if (job.set("page-ranges", text) != imageposition::PrintSettingsStore::Outcome::Stored)
    return;
  const imageposition::PageChoice choice = imageposition::readPageChoice(job);
  imageposition::storePageChoice(choice, job);
  const imageposition::PageChoice again = imageposition::readPageChoice(job);
  check(choice.ranges.has_value() == again.ranges.has_value(), "pages stay chosen");
  check(!choice.ranges || choice.ranges->ranges() == again.ranges->ranges(),
        "a stored choice of pages reads back the same");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size) {
  const std::string text(reinterpret_cast<const char *>(data), size);
  checkStored(text);
  try {
    const PageRanges pages = PageRanges::parse(text);
    checkOrder(pages.ranges());
    check(PageRanges::parse(pages.optionValue()).ranges() == pages.ranges(),
          "the form for CUPS reads back as the same pages");
    check(PageRanges::parse(pages.text()).ranges() == pages.ranges(),
          "the form for users reads back as the same pages");
  } catch (const imageposition::Failure &failure) {
    check(failure.code() == imageposition::ExitCode::Usage && *failure.what() != '\0',
          "bad page ranges get an error message");
  }
  return 0;
}
