#include "ParentWindow.hpp"

#include <charconv>
#include <string_view>

namespace imageposition {

std::optional<ParentWindow> readParent(const std::string &name) {
  constexpr std::string_view kX11 = "x11:", kWayland = "wayland:";
  const std::string_view all = name;
  if (all.substr(0, kWayland.size()) == kWayland && all.size() > kWayland.size())
    return ParentWindow();
  if (all.substr(0, kX11.size()) != kX11)
    return std::nullopt;
  ParentWindow window;
  const char *const end = all.data() + all.size();
  const auto read = std::from_chars(all.data() + kX11.size(), end, window.x11, 16);
  if (read.ec != std::errc() || read.ptr != end || window.x11 == 0)
    return std::nullopt;
  return window;
}

} // namespace imageposition
