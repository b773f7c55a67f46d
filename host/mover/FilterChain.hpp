/// Lays a document out with the filters of this computer's CUPS.
#ifndef IMAGEPOSITION_MOVER_FILTERCHAIN_HPP
#define IMAGEPOSITION_MOVER_FILTERCHAIN_HPP

#include "Children.hpp"
#include "FileContent.hpp"
#include "MoverTask.hpp"

#include <optional>
#include <string>
#include <vector>

namespace imageposition {

bool isPdf(const Descriptor &file);

/// The programs that CUPS runs one after the other to lay the document out. Empty if it has none
/// for documents of this type. Throws `Abandoned`.
std::vector<std::string> filtersFor(const MoverTask &task, const Descriptor &document,
                                    Children &children);

/// Runs the filters with the document as the input of the first and `result` as the output of the
/// last one. Returns why they failed: the last error that one of them reported, which may be empty;
/// none if they succeeded. Throws `Abandoned`.
std::optional<std::string> runFilters(const std::vector<std::string> &filters,
                                      const MoverTask &task, const Descriptor &document,
                                      const Descriptor &description, const Descriptor &result,
                                      Children &children);

} // namespace imageposition

#endif
