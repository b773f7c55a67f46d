/// A look at a plug-in's code before it is loaded.
#ifndef IMAGEPOSITION_HOST_LIBRARYFILE_HPP
#define IMAGEPOSITION_HOST_LIBRARYFILE_HPP

#include <string>

namespace imageposition {

/// True for a library whose end is missing, as a full disk or a broken copy leaves it. The loader
/// finds fault with every other kind of file by itself; with this one it ends the program.
bool isCutShort(const std::string &path);

} // namespace imageposition

#endif
