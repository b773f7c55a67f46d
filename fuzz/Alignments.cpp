// The file of measured offsets: whatever can be read of it is usable, and stays the same after
// writing and reading it back.
#include "Alignments.hpp"

#include "Check.hpp"

#include <cmath>

using namespace imageposition;
using imageposition::fuzz::check;
using imageposition::fuzz::checkSame;

namespace {

void checkLimits(const Offset &offset) {
  for (const TenthMillimetre length : {offset.right, offset.down})
    check(std::abs(length.count) <= kLargestOffset.count, "lengths are within the limits");
}

void checkEntry(const Alignments &alignments, const MeasuredAlignment &entry) {
  for (const Offset &offset : {entry.offsets.front, entry.offsets.back, entry.spread})
    checkLimits(offset);
  check(entry.sheets >= 1, "at least one sheet was read");
  check(entry.key.turning != Turning::OneSided, "the sheets were turned");
  const auto found = alignments.find(entry.key);
  check(found && found->offsets == entry.offsets && !found->isOfOtherTurning,
        "each entry is found by its key");
  check(!alignmentLine(entry).empty(), "each entry can be listed");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size) {
  const auto alignments = Alignments::fromText({reinterpret_cast<const char *>(data), size});
  if (!alignments)
    return 0;
  for (const MeasuredAlignment &entry : alignments->all())
    checkEntry(*alignments, entry);
  const std::string written = alignments->text();
  auto again = Alignments::fromText(written);
  check(again.has_value(), "its own text can be read");
  check(again->all().size() == alignments->all().size(), "no entry is lost");
  checkSame(again->text(), written, "written the same again");
  for (const MeasuredAlignment &entry : alignments->all()) {
    again->removeQueue(entry.key.queue);
    check(!again->find(entry.key), "a removed queue has no entries");
  }
  check(again->all().empty(), "all queues can be removed");
  return 0;
}
