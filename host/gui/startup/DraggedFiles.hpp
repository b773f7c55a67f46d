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

/// Requests the list from the program that drags, on a separate connection to the X server. Waits
/// for a second at most. Empty without a drag, or if it has no files.
std::vector<std::string> draggedFiles();

} // namespace imageposition

#endif
