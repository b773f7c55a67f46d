/// Drops files on a window, as a file manager does.
#ifndef IMAGEPOSITION_TESTS_HABITS_FILEDRAG_HPP
#define IMAGEPOSITION_TESTS_HABITS_FILEDRAG_HPP

#include <string>
#include <vector>

namespace imageposition::test {

/// Drags the files to that place of the display, over the window that has the keyboard focus, and
/// drops them there, with the X drag-and-drop protocol (XDND, version 5). Returns whether the
/// window took them. `paths` are absolute.
bool dropFiles(const std::vector<std::string> &paths, int x, int y);

} // namespace imageposition::test

#endif
