/// Inspecting a library's file before it is loaded.
#ifndef IMAGEPOSITION_CORE_BUNDLES_LIBRARYFILE_HPP
#define IMAGEPOSITION_CORE_BUNDLES_LIBRARYFILE_HPP

#include <optional>
#include <string>
#include <vector>

namespace imageposition {

/// True for a truncated library, for example after copying to a full disk. The dynamic loader
/// reports other damaged files, but crashes the program on this one.
bool isCutShort(const std::string &path);

/// A library's dependencies, from its dynamic section (elf(5), ld.so(8)).
struct LibraryNeeds {
  std::vector<std::string> libraries; ///< Names, or paths if they contain a slash.
  /// Folders to search, separated by colons.
  std::optional<std::string> runPath, oldRunPath; // DT_RUNPATH, DT_RPATH
};

/// Empty for a file that is not a library for this processor, which the loader refuses. None for a
/// library whose dynamic section is malformed.
std::optional<LibraryNeeds> readNeeds(const std::string &path);

} // namespace imageposition

#endif
