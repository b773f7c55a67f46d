/// Messages about moving the image of a document here.
#ifndef IMAGEPOSITION_CORE_PLACEMENT_PLACEMENTTEXTS_HPP
#define IMAGEPOSITION_CORE_PLACEMENT_PLACEMENTTEXTS_HPP

#include "MoverTask.hpp"
#include "Text.hpp"

#include <string>

namespace imageposition::messages {

/// Why the document cannot be moved, and what to do about it. `detail` is the reason that a filter
/// gave; may be empty.
std::string notMoved(const std::string &document, MoveProblem problem, const std::string &detail);
std::string moverMissing(const std::string &program);
extern const Text kNoFilters;
extern const Text kRawNotMoved;
extern const Text kNoFileWritten;
/// The last resort on the command line.
extern const Text kPrintUnmoved;

/// For a dry run: "The image is moved here before the job is sent: the front 2.5 mm to the right."
std::string movedHere(const std::string &directions);

} // namespace imageposition::messages

#endif
