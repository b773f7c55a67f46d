// The entry field's filter, with any UTF-16, any range (inverted ones included) and any insertion
// point.
#include "EntryFilter.hpp"

#include "Check.hpp"
#include "IntegerText.hpp"

#include <cstring>
#include <fuzzer/FuzzedDataProvider.h>

using imageposition::caretAfterFilter;
using imageposition::filterEntry;
using imageposition::ValueRange;
using imageposition::writeInteger;
using imageposition::fuzz::check;
using imageposition::fuzz::checkSame;

namespace {

std::u16string widened(const std::string &text) { return {text.begin(), text.end()}; }

// Follows the rules for typing step by step.
std::string expectedText(const std::u16string &text, const ValueRange &range) {
  std::string kept;
  for (const char16_t unit : text)
    if ((unit >= u'0' && unit <= u'9') || unit == u'-')
      kept += static_cast<char>(unit);
  const bool negative = !kept.empty() && kept[0] == '-';
  long long number = 0;
  for (std::size_t i = negative ? 1 : 0; i < kept.size() && kept[i] != '-'; ++i)
    number = std::min(number * 10 + (kept[i] - '0'), 1LL << 40);
  if (negative)
    number = -number;
  number = std::max(std::min(number, 2147483647LL), -2147483648LL);
  if (number > range.max)
    return std::to_string(range.max);
  if (number < range.min)
    return std::to_string(range.min);
  return kept == "-" || kept == "-0" ? kept : std::to_string(number);
}

void checkInRange(const std::string &shown, const ValueRange &range) {
  const std::int32_t value = imageposition::readInteger(shown);
  check(shown == "-" || shown == "-0" || shown == writeInteger(value),
        "the field shows an integer or the beginning of a negative one");
  if (range.min <= range.max)
    check(value >= range.min && value <= range.max, "the value is within the range");
  else
    check(value == range.min || value == range.max, "an inverted range allows only its two bounds");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size) {
  FuzzedDataProvider input(data, size);
  const ValueRange range{input.ConsumeIntegral<std::int32_t>(),
                         input.ConsumeIntegral<std::int32_t>()};
  const auto caret = input.ConsumeIntegral<std::uint16_t>();
  const std::string bytes = input.ConsumeRemainingBytesAsString();
  std::u16string text(bytes.size() / 2, u'\0');
  std::memcpy(text.data(), bytes.data(), text.size() * 2);

  const std::string shown = filterEntry(text, range);
  checkSame(shown, expectedText(text, range), "the filter follows the rules");
  checkInRange(shown, range);
  if (range.min <= range.max)
    checkSame(filterEntry(widened(shown), range), shown, "filtering twice changes nothing");
  check(caretAfterFilter(text, caret, shown) <= shown.size(),
        "the insertion point is within the text");
  check(caretAfterFilter(text, text.size(), shown) == shown.size(),
        "an insertion point at the end stays there");
  return 0;
}
