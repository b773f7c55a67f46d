/// Reads a PDF file with QPDF.
#ifndef IMAGEPOSITION_MOVER_PDFDOCUMENT_HPP
#define IMAGEPOSITION_MOVER_PDFDOCUMENT_HPP

#include "FileContent.hpp"

#include <cstdio>
#include <functional>
#include <memory>
#include <stdexcept>

class QPDF;

namespace imageposition {

class PdfTrouble : public std::runtime_error {
public:
  enum class Kind {
    Encrypted,   ///< With a password that is not empty.
    Forbidden,   ///< Its owner does not allow printing.
    Damaged,     ///< Not a PDF file, or without pages, or with pages of no size.
    MovedBefore, ///< `shiftPages` has written it, or it was made from such a file.
    Unwritable,  ///< The disk is full, or the result is too large.
  };
  PdfTrouble(Kind kind, const std::string &reason) : std::runtime_error(reason), kind_(kind) {}
  Kind kind() const noexcept { return kind_; }

private:
  Kind kind_;
};

using Stream = std::unique_ptr<FILE, int (*)(FILE *)>;
/// The file from its beginning. The caller keeps the descriptor. Throws a `PdfTrouble`.
Stream streamOf(const Descriptor &file, const char *mode);

/// Opens the file for `work`, which must not keep anything of the document. The file must be a
/// regular one; if it becomes shorter meanwhile, the process ends with SIGBUS. Throws a
/// `PdfTrouble`, also for whatever QPDF throws in `work`, except if memory runs out.
void withPdf(const Descriptor &file, const std::function<void(QPDF &)> &work);

/// Throws a `PdfTrouble` if the document's owner does not allow printing, which CUPS respects.
void requirePermission(QPDF &pdf);

} // namespace imageposition

#endif
