#include "DocumentTexts.hpp"

namespace imageposition::messages {

std::string pageCount(int pages) { return counted(pages, "{1} page", "{1} pages"); }
std::string paperOnMedia(const std::string &paper, const std::string &media) {
  // Translators: the size of a document's pages, and the size of the paper on which they are
  // printed: A5 document on A4.
  return text("{1} document on {2}").with(paper, media);
}
std::string millimetres(const std::string &width, const std::string &length) {
  return text("{1} × {2} mm").with(width, length);
}
const Text &defectInWords(DocumentDefect defect) {
  // Translators: follows a document's name.
  static const Text password = text("requires a password, so CUPS will print nothing");
  // Translators: follows a document's name.
  static const Text forbidden = text("does not allow printing, so CUPS will print nothing");
  // Translators: follows a document's name.
  static const Text damaged = text("is damaged, so CUPS may print nothing");
  switch (defect) {
  case DocumentDefect::Password:
    return password;
  case DocumentDefect::Forbidden:
    return forbidden;
  case DocumentDefect::Damaged:
    break;
  }
  return damaged;
}
std::string documentHasPages(int pages) {
  return counted(pages, "The document has {1} page.", "The document has {1} pages.");
}
std::string documentHasSides(int sides) {
  return counted(sides, "The document fills {1} side.", "The document fills {1} sides.");
}
std::string sidesAreChosen(int pagesPerSide, const std::string &pages) {
  // Translators: {2} is a list such as "1-4, 9".
  return text("With {1} pages per side, this selection counts sides, not pages. Pages {2} are "
              "printed.")
      .with(std::to_string(pagesPerSide), pages);
}
std::string sidesAreChosen(int pagesPerSide) {
  return text("With {1} pages per side, this selection counts sides, not pages.")
      .with(std::to_string(pagesPerSide));
}

} // namespace imageposition::messages
