// Interval strings and range labels.
#include "RangeText.hpp"

#include "Check.hpp"
#include "IntegerText.hpp"

#include <fuzzer/FuzzedDataProvider.h>

using imageposition::composeRangeText;
using imageposition::readInteger;
using imageposition::readInterval;
using imageposition::ValueRange;
using imageposition::fuzz::check;
using imageposition::fuzz::checkSame;

namespace {

// All parts of a string between its colons.
std::vector<std::string> parts(const std::string &text) {
  std::vector<std::string> result(1);
  for (const char c : text) {
    if (c == ':')
      result.emplace_back();
    else
      result.back() += c;
  }
  return result;
}

// Replaces every occurrence, but not in replacements.
std::string replaced(std::string text, const std::string &mark, const std::string &replacement) {
  std::size_t at = 0;
  while (!mark.empty() && (at = text.find(mark, at)) != std::string::npos) {
    text.replace(at, mark.size(), replacement);
    at += replacement.size();
  }
  return text;
}

void checkInterval(const std::string &text) {
  const auto interval = readInterval(text);
  const std::vector<std::string> bounds = parts(text);
  check(interval.has_value() == (bounds.size() > 1), "an interval is a string with a colon");
  if (!interval)
    return;
  check(interval->min == readInteger(bounds[0]), "the part before the colon is the lower bound");
  check(interval->max == readInteger(bounds[1]), "the part after it is the upper bound");
}

void checkClamp(const ValueRange &range, std::int32_t value) {
  const std::int32_t clamped = range.clamp(value);
  if (range.min <= range.max)
    check(range.contains(clamped), "a clamped value is within the range");
  else
    check(clamped == (value > range.max ? range.max : range.min) && !range.contains(value),
          "an inverted range contains nothing, and the maximum is tested first");
  check(!range.contains(value) || clamped == value, "an allowed value stays");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size) {
  FuzzedDataProvider input(data, size);
  const ValueRange range{input.ConsumeIntegral<std::int32_t>(),
                         input.ConsumeIntegral<std::int32_t>()};
  checkClamp(range, input.ConsumeIntegral<std::int32_t>());
  const std::string maxMark = input.ConsumeRandomLengthString(8);
  const std::string minMark = input.ConsumeRandomLengthString(8);
  const std::string text = input.ConsumeRemainingBytesAsString();
  checkInterval(text);
  checkSame(composeRangeText(text, maxMark, minMark, range),
            replaced(replaced(text, maxMark, std::to_string(range.max)), minMark,
                     std::to_string(range.min)),
            "the maximum is inserted first, then the minimum");
  return 0;
}
