#include "HoldTime.hpp"

#include "CommandTexts.hpp"
#include "ExitCode.hpp"
#include "PrinterTexts.hpp"

#include <algorithm>
#include <cctype>

namespace imageposition {

namespace {

constexpr const char *kNames[] = {"no-hold", "indefinite",   "day-time",    "evening",
                                  "night",   "second-shift", "third-shift", "weekend"};

/// Whether `text` has a number of one or two digits from 0 to `last` at `position`. Advances
/// `position` past it.
bool takeNumber(const std::string &text, std::size_t &position, int last) {
  const std::size_t start = position;
  int number = 0;
  while (position < text.size() && position < start + 2 &&
         std::isdigit(static_cast<unsigned char>(text[position])) != 0)
    number = number * 10 + (text[position++] - '0');
  return position > start && number <= last;
}

bool isTime(const std::string &text) {
  std::size_t position = 0;
  if (!takeNumber(text, position, 23))
    return false;
  for (int parts = 0; parts < 2; parts++) {
    if (position >= text.size() || text[position++] != ':' || !takeNumber(text, position, 59))
      return false;
    if (position == text.size())
      return true;
  }
  return false;
}

} // namespace

std::vector<std::string> optionsForHold(const std::string &when) {
  if (when == "restart")
    throw Failure(ExitCode::Usage, messages::usage(messages::kJobsAreNotRestarted));
  if (when == "hold")
    return {"job-hold-until=indefinite"};
  if (when == "resume" || when == "release")
    return {"job-hold-until=no-hold"};
  if (when == "immediate")
    return {"job-hold-until=no-hold", "job-priority=100"};
  if (!isTime(when) && std::find(std::begin(kNames), std::end(kNames), when) == std::end(kNames))
    throw Failure(ExitCode::Usage, messages::usage(messages::badHoldTime(when)));
  return {"job-hold-until=" + when};
}

} // namespace imageposition
