// Strings with placeholders: values are inserted on one line, and placeholders in them are ignored.
#include "Text.hpp"
#include "VisibleText.hpp"

#include "Check.hpp"

#include <fuzzer/FuzzedDataProvider.h>

using imageposition::fill;
using imageposition::fuzz::check;
using imageposition::fuzz::checkSame;

namespace {

std::string expectedText(const std::string &pattern, const std::vector<std::string> &values) {
  std::string result;
  for (std::size_t at = 0; at < pattern.size(); ++at) {
    const bool isMark = pattern.size() - at >= 3 && pattern[at] == '{' && pattern[at + 2] == '}' &&
                        pattern[at + 1] >= '1' && pattern[at + 1] <= '9';
    const auto index = isMark ? static_cast<std::size_t>(pattern[at + 1] - '1') : values.size();
    if (index >= values.size()) {
      result += pattern[at];
      continue;
    }
    result += imageposition::visible(values[index]);
    at += 2;
  }
  return result;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size) {
  FuzzedDataProvider input(data, size);
  std::vector<std::string> values(input.ConsumeIntegralInRange<std::size_t>(0, 10));
  for (std::string &value : values)
    value = input.ConsumeRandomLengthString(16);
  const std::string pattern = input.ConsumeRemainingBytesAsString();
  checkSame(fill(pattern, values), expectedText(pattern, values),
            "each placeholder becomes its value");
  checkSame(fill(pattern, {}), pattern, "without values a string stays unchanged");
  const auto reason = imageposition::systemReason(static_cast<int>(size));
  check(!reason.empty(), "every system error has a message");
  return 0;
}
