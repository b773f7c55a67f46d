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

enum class Place { Start, Anywhere };

/// The first item from `from` on, in a circle, that has the letters there; -1 without one.
int itemWith(const std::vector<ListItem> &items, const std::string &letters, Place place,
             int from) {
  const int count = static_cast<int>(items.size());
  for (int i = 0; i < count; i++) {
    const int at = (std::max(from, 0) + i) % count;
    const ListItem &item = items[static_cast<std::size_t>(at)];
    const std::size_t found = item.folded.find(letters);
    if (item.isEnabled && found != std::string::npos && (found == 0 || place == Place::Anywhere))
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
  const int found = itemWith(items, typed_, Place::Start, isFirst ? from + 1 : from);
  if (found >= 0)
    return found;
  if (repeats(typed_, folded))
    return itemWith(items, folded, Place::Start, from + 1);
  return itemWith(items, typed_, Place::Anywhere, from);
}

} // namespace imageposition
