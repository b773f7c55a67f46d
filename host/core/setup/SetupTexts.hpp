/// Messages about the job being set up.
#ifndef IMAGEPOSITION_CORE_SETUP_SETUPTEXTS_HPP
#define IMAGEPOSITION_CORE_SETUP_SETUPTEXTS_HPP

#include "DocumentFacts.hpp"
#include "Text.hpp"

#include <string>

namespace imageposition::messages {

// Output.
std::string wouldNotPrint(const std::string &printer, const std::string &state);
std::string pdfIsDocument(const std::string &path);
std::string pdfWritten(const std::string &path);
extern const Text kPdfIsMoved;
extern const Text kNoDocumentForPdf;
extern const Text kOneDocumentForPdf;
std::string ticketWritten(const std::string &path, const std::string &optionPath);
/// `done`: sentences about what cannot be undone; may be empty.
std::string jobSentWithoutOutput(const std::string &job);
std::string outputUnwritable(const std::string &done);

/// The command line has offsets for the back without the flag that they need.
extern const Text kBackIgnored;

/// CUPS accepts the document nevertheless.
std::string printsNothing(const std::string &document, DocumentDefect defect);

/// lp's output, which scripts parse; not translated.
std::string jobSent(const std::string &printer, int id, std::size_t files);

} // namespace imageposition::messages

#endif
