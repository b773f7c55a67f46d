#include "PdfFacts.hpp"

#include "FileContent.hpp"

#include <qpdf/QPDF.hh>
#include <qpdf/QPDFExc.hh>
#include <qpdf/QPDFPageDocumentHelper.hh>
#include <qpdf/QPDFPageObjectHelper.hh>

#include <cmath>
#include <exception>
#include <fcntl.h>
#include <string_view>
#include <sys/stat.h>
#include <utility>
#include <vector>

namespace imageposition {

namespace {

/// A PDF may begin with other bytes, which readers skip.
constexpr std::size_t kHeadRoom = 1024;

/// None if it is not a regular file that can be read. Never waits for a pipe.
Descriptor opened(const std::string &path) {
  Descriptor file(open(path.c_str(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
  struct stat status {};
  if (!file.isOpen() || fstat(file.get(), &status) != 0 || !S_ISREG(status.st_mode))
    return Descriptor(-1);
  return file;
}

constexpr std::string_view kHeader = "%PDF-";

std::string headOf(const Descriptor &file) {
  std::string head(kHeadRoom, '\0');
  const ssize_t count = pread(file.get(), head.data(), head.size(), 0);
  head.resize(count > 0 ? static_cast<std::size_t>(count) : 0);
  return head;
}

/// Other bytes before the header may mean that CUPS knows the document as another type.
std::string reportOnDamage(const std::string &head) {
  return head.compare(0, kHeader.size(), kHeader) == 0 ? writeDefect(DocumentDefect::Damaged) : "";
}

/// None if the page has no usable size.
std::optional<PaperSize> paperOf(QPDFPageObjectHelper &page) {
  const QPDFObjectHandle::Rectangle box = page.getCropBox().getArrayAsRectangle();
  QPDFObjectHandle unit = page.getAttribute("/UserUnit", false);
  const double scale = unit.isNumber() ? unit.getNumericValue() : 1;
  PaperSize size{{std::abs(box.urx - box.llx) * scale}, {std::abs(box.ury - box.lly) * scale}};
  QPDFObjectHandle rotation = page.getAttribute("/Rotate", false);
  if (rotation.isInteger() && rotation.getIntValue() % 180 != 0)
    std::swap(size.width, size.length);
  const bool isUsable = size.width.count > 0 && size.length.count > 0;
  return isUsable ? std::optional(size) : std::nullopt;
}

std::optional<PaperSize> paperOfAll(std::vector<QPDFPageObjectHelper> &pages) {
  const auto first = paperOf(pages.front());
  for (QPDFPageObjectHelper &page : pages) {
    const auto other = paperOf(page);
    if (!first || !other || !first->isSame(*other))
      return std::nullopt;
  }
  return first;
}

/// Throws what QPDF did not expect.
std::string reportOn(const Descriptor &file, const std::string &head) try {
  const MappedFile mapped(file); // QPDF seeks for each token: in a file that takes half of the time
  QPDF pdf;
  pdf.setSuppressWarnings(true);
  pdf.processMemoryFile("document", mapped.content().data(), mapped.content().size());
  if (!pdf.allowPrintLowRes()) // as CUPS's filter decides
    return writeDefect(DocumentDefect::Forbidden);
  auto pages = QPDFPageDocumentHelper(pdf).getAllPages();
  if (pages.empty())
    return {};
  return writeFacts({static_cast<int>(pages.size()), paperOfAll(pages)});
} catch (const QPDFExc &error) {
  switch (error.getErrorCode()) {
  case qpdf_e_password:
    return writeDefect(DocumentDefect::Password);
  case qpdf_e_damaged_pdf:
    return reportOnDamage(head);
  default:
    return {};
  }
}

} // namespace

std::string reportOnPdf(const std::string &path) try {
  const Descriptor file = opened(path);
  const std::string head = file.isOpen() ? headOf(file) : "";
  if (head.find(kHeader) == std::string::npos)
    return {};
  return reportOn(file, head);
} catch (const std::exception &) { // too large, or so damaged that QPDF did not expect it
  return {};
}

} // namespace imageposition
