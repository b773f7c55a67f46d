/// Makes a PDF file that its owner does not want printed.
#ifndef IMAGEPOSITION_TESTS_HOST_SUPPORT_FORBIDDINGPDF_HPP
#define IMAGEPOSITION_TESTS_HOST_SUPPORT_FORBIDDINGPDF_HPP

#include "DrawnPdf.hpp"

#include <qpdf/QPDF.hh>
#include <qpdf/QPDFWriter.hh>
#include <string>

namespace imageposition::test {

/// Can be read without a password.
inline std::string pdfThatForbidsPrinting() {
  const std::string content = pdfWithNumberedPages(1);
  QPDF pdf;
  pdf.processMemoryFile("document", content.data(), content.size());
  QPDFWriter writer(pdf);
  writer.setOutputMemory();
  writer.setR6EncryptionParameters("", "owner", true, true, true, true, true, true, qpdf_r3p_none,
                                   true);
  writer.write();
  const auto buffer = writer.getBufferSharedPointer();
  return {reinterpret_cast<const char *>(buffer->getBuffer()), buffer->getSize()};
}

} // namespace imageposition::test

#endif
