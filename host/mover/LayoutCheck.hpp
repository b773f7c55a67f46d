/// Checks that the filters of this computer lay pages out as the dialog expects.
#ifndef IMAGEPOSITION_MOVER_LAYOUTCHECK_HPP
#define IMAGEPOSITION_MOVER_LAYOUTCHECK_HPP

#include "Children.hpp"
#include "MoverTask.hpp"

namespace imageposition {

/// Lays out a document of two pages with a known rectangle on each, and then the result once more
/// as if for printing. Returns whether each rectangle was where the dialog expects it. The file
/// that the task names remembers this for as long as the filters stay the same. Throws `Abandoned`.
bool isLayoutAsExpected(const MoverTask &task, Children &children);

} // namespace imageposition

#endif
