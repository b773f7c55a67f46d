/// The files that another program drags over a window.
#ifndef IMAGEPOSITION_GUI_STARTUP_DRAGGEDFILES_HPP
#define IMAGEPOSITION_GUI_STARTUP_DRAGGEDFILES_HPP

#include <string>
#include <string_view>
#include <vector>

namespace imageposition {

/// The paths of the local files in a list of URIs, "text/uri-list" of RFC 2483, in its order.
/// Leaves out everything else.
std::vector<std::string> filesInUriList(std::string_view list);

/// Requests the list from the program that drags, on a connection of its own to the X server. Waits
/// for a second at most. Empty if there is no drag, or none of files.
std::vector<std::string> draggedFiles();

} // namespace imageposition

#endif
