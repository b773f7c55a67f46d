#include "ListKeys.hpp"

#include <algorithm>

namespace imageposition {

namespace {

/// The next enabled item from `at` in the direction of `step`, `at` included; -1 without one.
int enabledFrom(const std::vector<ListItem> &items, int at, int step) {
  const int count = static_cast<int>(items.size());
  while (at >= 0 && at < count && !items[static_cast<std::size_t>(at)].isEnabled)
    at += step;
  return at >= 0 && at < count ? at : -1;
}

/// The first item after `from`, or from it on, that starts with the letters; -1 without one.
int itemStartingWith(const std::vector<ListItem> &items, const std::string &letters, int from) {
  const int count = static_cast<int>(items.size());
  for (int i = 0; i < count; i++) {
    const int at = (std::max(from, 0) + i) % count;
    const ListItem &item = items[static_cast<std::size_t>(at)];
    if (item.isEnabled && item.folded.compare(0, letters.size(), letters) == 0)
      return at;
  }
  return -1;
}

/// Whether `text` consists of `part`, repeated.
bool repeats(const std::string &text, const std::string &part) {
  for (std::size_t at = 0; at < text.size(); at += part.size())
    if (text.compare(at, part.size(), part) != 0)
      return false;
  return true;
}

} // namespace

int movedInList(const std::vector<ListItem> &items, int from, ListMove move, int page) {
  const int last = static_cast<int>(items.size()) - 1;
  const int far = std::max(page - 1, 1);
  const auto leadsTo = [&](int at, int step) {
    at = std::clamp(at, 0, last);
    const int found = enabledFrom(items, at, step);
    return found >= 0 ? found : enabledFrom(items, at, -step); // -1 if none is enabled
  };
  if (last < 0)
    return from;
  switch (move) {
  case ListMove::Up: {
    const int previous = enabledFrom(items, from < 0 ? last : from - 1, -1);
    return previous >= 0 ? previous : from;
  }
  case ListMove::Down: {
    const int next = enabledFrom(items, from + 1, 1);
    return next >= 0 ? next : from;
  }
  case ListMove::PageUp:
    return leadsTo(from - far, 1);
  case ListMove::PageDown:
    return leadsTo(from + far, -1);
  case ListMove::Home:
    return leadsTo(0, 1);
  case ListMove::End:
    return leadsTo(last, -1);
  }
  return from;
}

int TypeAhead::type(const std::vector<ListItem> &items, int from, const std::string &folded,
                    Time now) {
  if (folded.empty() || items.empty())
    return -1;
  if (!isTyping(now))
    typed_.clear();
  typed_ += folded;
  last_ = now;
  const bool isFirst = typed_ == folded;
  const int found = itemStartingWith(items, typed_, isFirst ? from + 1 : from);
  if (found >= 0 || !repeats(typed_, folded))
    return found;
  return itemStartingWith(items, folded, from + 1);
}

} // namespace imageposition
