/// How to operate the panels without a window.
#ifndef IMAGEPOSITION_CORE_COMMAND_BATCHREQUEST_HPP
#define IMAGEPOSITION_CORE_COMMAND_BATCHREQUEST_HPP

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace imageposition {

/// A value for one entry field.
struct Entry {
  std::string name; ///< The field's name or the beginning of it.
  std::string text; ///< As a user would type it.
};

/// None unless `argument` is "name=text" with a name.
std::optional<Entry> readEntry(std::string_view argument);

/// None unless `argument` is "on" or "off".
std::optional<bool> readSwitch(std::string_view argument);

struct BatchRequest {
  std::optional<bool> back;   ///< Separate offsets for the back side; absent: unchanged.
  std::vector<Entry> entries; ///< Typed in this order, after `back`.
  bool summary = false;       ///< Print the summary.

  /// Whether there is something to do that only a panel can.
  bool needsPanel() const noexcept { return back || summary || !entries.empty(); }
};

} // namespace imageposition

#endif
