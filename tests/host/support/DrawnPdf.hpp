/// Makes PDF files whose pages draw known rectangles.
#ifndef IMAGEPOSITION_TESTS_HOST_SUPPORT_DRAWNPDF_HPP
#define IMAGEPOSITION_TESTS_HOST_SUPPORT_DRAWNPDF_HPP

#include "PdfFile.hpp"

#include <string>
#include <vector>

namespace imageposition::test {

/// A page with a rectangle whose place tells it from the others.
struct PageToDraw {
  std::string box = "0 0 595 842";
  int rotation = 0;
  std::string more; ///< Further entries of the page.
  std::string content = "72 144 100 50 re f";
};

inline std::string streamOf(const std::string &content) {
  return "<< /Length " + std::to_string(content.size()) + " >>\nstream\n" + content + "\nendstream";
}

inline std::string pdfDrawing(const std::vector<PageToDraw> &pages) {
  std::vector<std::string> objects{"<< /Type /Catalog /Pages 2 0 R >>", ""};
  std::string kids;
  for (const PageToDraw &page : pages) {
    objects.push_back(streamOf(page.content));
    const std::string contents = std::to_string(objects.size());
    objects.push_back("<< /Type /Page /Parent 2 0 R /MediaBox [" + page.box + "] /Rotate " +
                      std::to_string(page.rotation) + " /Resources << >> /Contents " + contents +
                      " 0 R " + page.more + " >>");
    kids += std::to_string(objects.size()) + " 0 R ";
  }
  objects[1] =
      "<< /Type /Pages /Kids [" + kids + "] /Count " + std::to_string(pages.size()) + " >>";
  return pdfOf(objects);
}

/// Pages with a rectangle each, which stands further right on each page.
inline std::string pdfWithNumberedPages(int count) {
  std::vector<PageToDraw> pages(static_cast<std::size_t>(count));
  for (int i = 0; i < count; i++)
    pages[static_cast<std::size_t>(i)].content = std::to_string(72 + 10 * i) + " 144 100 50 re f";
  return pdfDrawing(pages);
}

/// A page that can be read only with a password.
inline std::string pdfWithPassword() {
  std::string content = pdfWithNumberedPages(1);
  content.insert(content.rfind("/Root"),
                 "/Encrypt << /Filter /Standard /V 1 /R 2 /Length 40 /P -4 /O <" +
                     std::string(64, '1') + "> /U <" + std::string(64, '2') +
                     "> >> /ID [<31323334> <31323334>] ");
  return content;
}

} // namespace imageposition::test

#endif
