#include "PdfDocument.hpp"

#include <qpdf/QPDF.hh>
#include <qpdf/QPDFExc.hh>
#include <qpdf/QPDFSystemError.hh>

#include <fcntl.h>
#include <optional>
#include <sys/stat.h>

namespace imageposition {

namespace {

PdfTrouble::Kind kindOf(const QPDFExc &error) {
  switch (error.getErrorCode()) {
  case qpdf_e_password:
    return PdfTrouble::Kind::Encrypted;
  case qpdf_e_system:
    return PdfTrouble::Kind::Unwritable;
  default:
    return PdfTrouble::Kind::Damaged;
  }
}

/// Of the memory that the process may take, QPDF needs most.
constexpr off_t kMostMapped = off_t(1) << 30;

off_t sizeOf(const Descriptor &file) {
  struct stat status {};
  return fstat(file.get(), &status) == 0 ? status.st_size : 0;
}

} // namespace

Stream streamOf(const Descriptor &file, const char *mode) {
  Descriptor copy(fcntl(file.get(), F_DUPFD_CLOEXEC, 0));
  FILE *const stream = copy.isOpen() ? fdopen(copy.get(), mode) : nullptr;
  if (stream == nullptr)
    throw PdfTrouble(PdfTrouble::Kind::Unwritable, "no descriptor is left");
  (void)copy.release(); // the stream's
  std::rewind(stream);
  return {stream, std::fclose};
}

void withPdf(const Descriptor &file, const std::function<void(QPDF &)> &work) try {
  const Stream stream = streamOf(file, "rb"); // both outlive the document
  std::optional<MappedFile> mapped;
  if (sizeOf(file) <= kMostMapped)
    mapped.emplace(file);
  QPDF pdf;
  pdf.setSuppressWarnings(true);
  if (mapped) // QPDF seeks for each token: in a file that takes half of the time
    pdf.processMemoryFile("document", mapped->content().data(), mapped->content().size());
  else
    pdf.processFile("document", stream.get(), false);
  work(pdf);
} catch (const PdfTrouble &) {
  throw;
} catch (const FileTrouble &trouble) {
  throw PdfTrouble(PdfTrouble::Kind::Damaged, trouble.what());
} catch (const QPDFExc &error) {
  throw PdfTrouble(kindOf(error), error.getMessageDetail());
} catch (const QPDFSystemError &error) {
  throw PdfTrouble(PdfTrouble::Kind::Unwritable, error.what());
} catch (const std::runtime_error &error) {
  throw PdfTrouble(PdfTrouble::Kind::Damaged, error.what());
} catch (const std::logic_error &error) { // QPDF did not expect such a document
  throw PdfTrouble(PdfTrouble::Kind::Damaged, error.what());
}

void requirePermission(QPDF &pdf) {
  if (!pdf.allowPrintLowRes())
    throw PdfTrouble(PdfTrouble::Kind::Forbidden, "its owner does not allow printing");
}

} // namespace imageposition
