/// Keys in a list of items to choose from.
#ifndef IMAGEPOSITION_GUI_LISTS_LISTKEYS_HPP
#define IMAGEPOSITION_GUI_LISTS_LISTKEYS_HPP

#include <chrono>
#include <string>
#include <vector>

namespace imageposition {

struct ListItem {
  std::string folded; ///< The title, folded as the letters that users type are.
  bool isEnabled = true;
};

enum class ListMove { Up, Down, PageUp, PageDown, Home, End };

/// Returns the item to which the key leads, in a list that shows `page` items. Skips items that are
/// not enabled. `from` is -1 if no item is chosen; returns `from` if the key leads nowhere.
int movedInList(const std::vector<ListItem> &items, int from, ListMove move, int page);

/// Finds an item by letters of its title.
class TypeAhead {
public:
  using Time = std::chrono::steady_clock::time_point;

  /// Returns the item that starts with the letters typed so far, or else one that has them
  /// anywhere, such as a queue's name after its description; -1 without one. A letter that is typed
  /// repeatedly leads through the items that start with it. Letters typed more than a second ago do
  /// not count.
  int type(const std::vector<ListItem> &items, int from, const std::string &folded, Time now);

  /// Whether a blank would belong to letters typed before.
  bool isTyping(Time now) const { return !typed_.empty() && now - last_ <= kPause; }

private:
  static constexpr std::chrono::seconds kPause{1};
  std::string typed_;
  Time last_;
};

} // namespace imageposition

#endif
