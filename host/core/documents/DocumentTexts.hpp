/// Texts about a document's pages and paper.
#ifndef IMAGEPOSITION_CORE_DOCUMENTS_DOCUMENTTEXTS_HPP
#define IMAGEPOSITION_CORE_DOCUMENTS_DOCUMENTTEXTS_HPP

#include "DocumentFacts.hpp"
#include "Text.hpp"

#include <string>

namespace imageposition::messages {

std::string pageCount(int pages);
/// The document's paper, "A5", and the media in the printer, "A4".
std::string paperOnMedia(const std::string &paper, const std::string &media);
std::string millimetres(const std::string &width, const std::string &length);
/// Follows the document's name.
const Text &defectInWords(DocumentDefect defect);
/// Why pages cannot be printed.
std::string documentHasPages(int pages);
std::string documentHasSides(int sides);
/// For page ranges when there are several pages on a side.
std::string sidesAreChosen(int pagesPerSide);
/// The same, if the pages on the chosen sides are known.
std::string sidesAreChosen(int pagesPerSide, const std::string &pages);

} // namespace imageposition::messages

#endif
