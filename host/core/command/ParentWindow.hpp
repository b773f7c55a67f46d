/// The window of another application that a dialog belongs to.
#ifndef IMAGEPOSITION_CORE_COMMAND_PARENTWINDOW_HPP
#define IMAGEPOSITION_CORE_COMMAND_PARENTWINDOW_HPP

#include <cstdint>
#include <optional>
#include <string>

namespace imageposition {

struct ParentWindow {
  std::uint32_t x11 = 0; ///< The X server's number; 0 for a window of Wayland.
};

/// Parses "x11:HEX" or "wayland:HANDLE", the desktop portals' names of windows. Returns nullopt for
/// anything else.
std::optional<ParentWindow> readParent(const std::string &name);

} // namespace imageposition

#endif
