/// Makes PDF files.
#ifndef IMAGEPOSITION_TESTS_HOST_SUPPORT_PDFFILE_HPP
#define IMAGEPOSITION_TESTS_HOST_SUPPORT_PDFFILE_HPP

#include <string>
#include <vector>

namespace imageposition::test {

/// The content of a file whose objects are numbered from 1; the first is the catalogue.
inline std::string pdfOf(const std::vector<std::string> &objects) {
  std::string file = "%PDF-1.4\n", table = "0000000000 65535 f \n";
  for (std::size_t i = 0; i < objects.size(); i++) {
    const std::string offset = std::to_string(file.size());
    table += std::string(10 - offset.size(), '0') + offset + " 00000 n \n";
    file += std::to_string(i + 1) + " 0 obj\n" + objects[i] + "\nendobj\n";
  }
  const std::string size = std::to_string(objects.size() + 1), start = std::to_string(file.size());
  return file + "xref\n0 " + size + "\n" + table + "trailer\n<< /Size " + size +
         " /Root 1 0 R >>\nstartxref\n" + start + "\n%%EOF\n";
}

/// A file of empty pages with these boxes: "0 0 595 842".
inline std::string pdfWithPages(const std::vector<std::string> &boxes,
                                const std::string &more = "") {
  std::vector<std::string> objects{"<< /Type /Catalog /Pages 2 0 R >>", ""};
  std::string kids;
  for (const std::string &box : boxes) {
    objects.push_back("<< /Type /Page /Parent 2 0 R /MediaBox [" + box + "]" + more + " >>");
    kids += std::to_string(objects.size()) + " 0 R ";
  }
  objects[1] =
      "<< /Type /Pages /Kids [" + kids + "] /Count " + std::to_string(boxes.size()) + " >>";
  return pdfOf(objects);
}

} // namespace imageposition::test

#endif
