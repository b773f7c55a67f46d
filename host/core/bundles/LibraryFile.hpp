/// A look at a library's file before it is loaded.
#ifndef IMAGEPOSITION_HOST_LIBRARYFILE_HPP
#define IMAGEPOSITION_HOST_LIBRARYFILE_HPP

#include <optional>
#include <string>
#include <vector>

namespace imageposition {

/// True for a library whose end is missing, as a full disk or a broken copy leaves it. The loader
/// finds fault with every other kind of file by itself; with this one it ends the program.
bool isCutShort(const std::string &path);

/// What the loader loads with a library, as the library's dynamic section has it (elf(5),
/// ld.so(8)).
struct LibraryNeeds {
  std::vector<std::string> libraries; ///< Names, or paths when there is a slash in them.
  /// Folders to look for them in, separated by colons.
  std::optional<std::string> runPath, oldRunPath; // DT_RUNPATH, DT_RPATH
};

/// Nothing at all for a file that is no library of this processor, which the loader refuses. None
/// for a library whose dynamic section cannot be made sense of.
std::optional<LibraryNeeds> readNeeds(const std::string &path);

} // namespace imageposition

#endif
