#include "PageRanges.hpp"

#include "ExitCode.hpp"
#include "JobTexts.hpp"
#include "NumberText.hpp"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <utility>

namespace imageposition {

namespace {

[[noreturn]] void refuse(const std::string &message) { throw Failure(ExitCode::Usage, message); }

/// Commas and hyphens as other keyboard layouts and users write them.
constexpr std::pair<std::string_view, char> kSigns[] = {
    {"\uFF0C", ','}, {"\u3001", ','}, {";", ','}, {"\u301C", '-'}, {"\uFF5E", '-'}, {"~", '-'},
};

std::string plainText(std::string_view text) {
  std::string plain = withAsciiDigits(text);
  for (const auto &[sign, meant] : kSigns)
    for (std::size_t at = 0; (at = plain.find(sign, at)) != std::string::npos;)
      plain.replace(at, sign.size(), 1, meant);
  return plain;
}

bool isDigit(char c) { return c >= '0' && c <= '9'; }
bool isBlank(char c) { return c == ' ' || (c >= '\t' && c <= '\r'); }

class Parser {
public:
  explicit Parser(std::string_view text) : rest_(text) {}

  std::vector<PageRange> ranges() {
    std::vector<PageRange> ranges;
    for (skip(true); !rest_.empty(); skip(true))
      ranges.push_back(range());
    if (ranges.empty())
      refuse(messages::kNoPages);
    return ranges;
  }

private:
  PageRange range() {
    if (!isDigit(rest_.front()) && rest_.front() != '-')
      refuse(messages::pagesNotUnderstood(word()));
    const bool hasFirst = isDigit(rest_.front());
    PageRange range;
    if (hasFirst)
      range.first = range.last = number();
    if (!takeHyphen())
      return range;
    const bool hasLast = !rest_.empty() && isDigit(rest_.front());
    if (!hasFirst && !hasLast)
      refuse(messages::kPagesWithoutNumber);
    range.last = hasLast ? number() : PageRange::kToTheEnd;
    if (range.last < range.first)
      refuse(messages::pagesBackwards(range.first, range.last));
    if (!rest_.empty() && rest_.front() == '-')
      refuse(messages::pagesNotUnderstood(word()));
    return range;
  }

  int number() {
    const auto end = std::find_if_not(rest_.begin(), rest_.end(), isDigit);
    const std::string digits(rest_.begin(), end);
    if (end != rest_.end() && !isBlank(*end) && *end != ',' && *end != '-')
      refuse(messages::pagesNotUnderstood(word()));
    std::int64_t value = 0;
    for (const char digit : digits)
      value = std::min<std::int64_t>(value * 10 + (digit - '0'), PageRange::kToTheEnd);
    if (value == 0)
      refuse(messages::kPageZero);
    if (value == PageRange::kToTheEnd)
      refuse(messages::pageTooLarge(digits));
    rest_.remove_prefix(digits.size());
    return static_cast<int>(value);
  }

  bool takeHyphen() {
    const std::string_view before = rest_;
    skip(false);
    if (rest_.empty() || rest_.front() != '-') {
      rest_ = before;
      return false;
    }
    rest_.remove_prefix(1);
    skip(false);
    return true;
  }

  void skip(bool commasToo) {
    while (!rest_.empty() && (isBlank(rest_.front()) || (commasToo && rest_.front() == ',')))
      rest_.remove_prefix(1);
  }

  std::string word() const {
    const auto end =
        std::find_if(rest_.begin(), rest_.end(), [](char c) { return isBlank(c) || c == ','; });
    return std::string(rest_.begin(), end);
  }

  std::string_view rest_;
};

std::vector<PageRange> normalized(std::vector<PageRange> ranges) {
  std::sort(ranges.begin(), ranges.end(),
            [](const PageRange &a, const PageRange &b) { return a.first < b.first; });
  std::vector<PageRange> merged;
  for (const PageRange &range : ranges) {
    // Adding 1 cannot overflow: only `kToTheEnd` is the largest integer.
    if (!merged.empty() &&
        (merged.back().last == PageRange::kToTheEnd || range.first <= merged.back().last + 1))
      merged.back().last = std::max(merged.back().last, range.last);
    else
      merged.push_back(range);
  }
  return merged;
}

std::string written(const std::vector<PageRange> &ranges, const char *separator) {
  std::string text;
  for (const PageRange &range : ranges) {
    text += (text.empty() ? "" : separator) + std::to_string(range.first);
    if (range.last == PageRange::kToTheEnd)
      text += "-";
    else if (range.last != range.first)
      text += "-" + std::to_string(range.last);
  }
  return text;
}

constexpr const char *kRangesName = "page-ranges";
constexpr const char *kSetName = "page-set";

/// CUPS's filters write an open end as the largest integer.
std::string withOpenEnds(std::string value) {
  static const std::string kEnd = std::to_string(PageRange::kToTheEnd);
  const std::size_t at = value.find("-" + kEnd);
  if (at != std::string::npos)
    value.erase(at + 1, kEnd.size());
  return value;
}

} // namespace

PageRanges PageRanges::parse(std::string_view text) {
  const std::string plain = plainText(text);
  PageRanges pages;
  pages.ranges_ = normalized(Parser(plain).ranges());
  return pages;
}

bool PageRanges::namesPagesBeyond(int pages) const noexcept {
  const PageRange &last = ranges_.back();
  return (last.last == PageRange::kToTheEnd ? last.first : last.last) > pages;
}

std::string PageRanges::pagesOnSides(int pagesPerSide, int pages) const {
  std::vector<PageRange> all;
  for (const PageRange &sides : ranges_) {
    const int first = sides.first > pages ? pages + 1 : (sides.first - 1) * pagesPerSide + 1;
    const int last = sides.last > pages ? pages : std::min(sides.last * pagesPerSide, pages);
    if (first <= last)
      all.push_back({first, last});
  }
  return written(all, ", ");
}

std::string PageRanges::text() const { return written(ranges_, ", "); }

std::string PageRanges::optionValue() const { return written(ranges_, ","); }

PageChoice readPageChoice(const PrintSettingsStore &job) {
  PageChoice choice;
  if (const char *const ranges = job.get(kRangesName)) {
    try {
      choice.ranges = PageRanges::parse(withOpenEnds(ranges));
    } catch (const Failure &) {
      choice.ranges.reset(); // CUPS prints all pages, too
    }
  }
  const char *const set = job.get(kSetName);
  if (set != nullptr && std::strcmp(set, "odd") == 0)
    choice.set = PageSet::Odd;
  if (set != nullptr && std::strcmp(set, "even") == 0)
    choice.set = PageSet::Even;
  return choice;
}

void storePageChoice(const PageChoice &choice, PrintSettingsStore &job) {
  if (choice.ranges)
    job.set(kRangesName, choice.ranges->optionValue());
  else
    job.remove(kRangesName);
  if (choice.set == PageSet::All)
    job.remove(kSetName);
  else
    job.set(kSetName, choice.set == PageSet::Odd ? "odd" : "even");
}

} // namespace imageposition
