// What the filters have laid out, as the mover reads it: any bytes. Moving the image keeps the
// pages and their sizes, is remembered, and fails with a reason otherwise. The first two bytes are
// the plan.
#include "ShiftedPdf.hpp"
#include "Check.hpp"
#include "DrawnRectangles.hpp"
#include "MemoryFile.hpp"

#include <fcntl.h>
#include <optional>
#include <unistd.h>

using namespace imageposition;
using namespace imageposition::fuzz;

namespace {

Descriptor descriptorOf(const MemoryFile &file) {
  return Descriptor(fcntl(file.descriptor(), F_DUPFD_CLOEXEC, 0));
}

ShiftPlan planOf(unsigned char offset, unsigned char flags) {
  ShiftPlan plan;
  plan.front = {{offset - 128}, {flags - 128}};
  plan.back = {{flags - 128}, {128 - offset}};
  plan.order = {static_cast<PrintedSides>(flags % 3), (flags & 4) != 0};
  plan.isPadded = (flags & 8) != 0;
  plan.isMovedAgain = (flags & 16) != 0;
  return plan;
}

std::optional<std::vector<DrawnPage>> drawnIn(const MemoryFile &file) {
  try {
    return drawnRectangles(descriptorOf(file));
  } catch (const PdfTrouble &) {
    return std::nullopt;
  }
}

void checkMoved(const MemoryFile &before, const MemoryFile &after, std::size_t pages) {
  check(isShifted(descriptorOf(after)), "a moved document is recognized");
  const auto one = drawnIn(before), other = drawnIn(after);
  if (!one || !other)
    return; // contents that cannot be read
  check(other->size() == pages, "the number of pages is right");
  check(pages == one->size() || pages == one->size() + 1, "no page is lost");
  for (std::size_t i = 0; i < one->size(); i++)
    check((*one)[i].width == (*other)[i].width && (*one)[i].height == (*other)[i].height,
          "pages keep their sizes");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size) {
  if (size < 2)
    return 0;
  const MemoryFile before(std::string(reinterpret_cast<const char *>(data) + 2, size - 2));
  const MemoryFile after("");
  try {
    const std::size_t pages =
        shiftPages(descriptorOf(before), descriptorOf(after), planOf(data[0], data[1]));
    checkMoved(before, after, pages);
  } catch (const PdfTrouble &trouble) {
    check(trouble.what() != nullptr, "a failure has a reason");
  }
  return 0;
}
