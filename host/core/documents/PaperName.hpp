/// Names of papers.
#ifndef IMAGEPOSITION_CORE_DOCUMENTS_PAPERNAME_HPP
#define IMAGEPOSITION_CORE_DOCUMENTS_PAPERNAME_HPP

#include "DocumentFacts.hpp"

#include <cups/ppd.h>

#include <string>

namespace imageposition {

/// The printer's name for the size, or the usual one, or its millimetres.
std::string paperName(const PaperSize &size, ppd_file_t *ppd);

/// Compares the document's paper with the marked media: "A5 document on A4". Empty if they are the
/// same, or if one of them is not known.
std::string paperMismatch(const DocumentFacts &facts, ppd_file_t *ppd);

} // namespace imageposition

#endif
