/// What to do on the panels when no window is shown.
#ifndef IMAGEPOSITION_HOST_BATCHREQUEST_HPP
#define IMAGEPOSITION_HOST_BATCHREQUEST_HPP

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace imageposition {

/// Text for one entry field.
struct Entry {
  std::string name; ///< The field's name, or its beginning.
  std::string text; ///< As a person would type it.
};

/// None unless `argument` is "name=text" with a name.
std::optional<Entry> readEntry(std::string_view argument);

/// None unless `argument` is "on" or "off".
std::optional<bool> readSwitch(std::string_view argument);

struct BatchRequest {
  std::optional<bool> back;   ///< Offsets of its own for the back side; absent: left as it is.
  std::vector<Entry> entries; ///< Typed in this order, after `back`.
  bool summary = false;       ///< Print the summary.
};

} // namespace imageposition

#endif
