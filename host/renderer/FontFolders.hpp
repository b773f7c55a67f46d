/// Prepares fonts for documents that have none embedded.
#ifndef IMAGEPOSITION_RENDERER_FONTFOLDERS_HPP
#define IMAGEPOSITION_RENDERER_FONTFOLDERS_HPP

#include <string>
#include <vector>

namespace imageposition {

/// Reads fontconfig's configuration and cache, which poppler then uses, and writes the cache if it
/// is missing: afterwards only the fonts themselves are read. Returns their folders, and those of
/// poppler's tables for fonts.
std::vector<std::string> prepareFonts();

} // namespace imageposition

#endif
