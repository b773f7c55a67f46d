/// Collation: whether complete copies are printed one after the other.
#ifndef IMAGEPOSITION_CORE_PRINTER_COLLATION_HPP
#define IMAGEPOSITION_CORE_PRINTER_COLLATION_HPP

#include "PrinterDescription.hpp"

namespace imageposition {

/// The job's setting, under either of its names, or else the printer's default.
bool isCollated(PrinterDescription &printer, PrintSettingsStore &job);

/// Sets the printer's option if it has one, or else CUPS's, because a job must not have an option
/// that its printer lacks. Stores nothing if the value is the default.
void setCollated(bool collated, PrinterDescription &printer, PrintSettingsStore &job);

} // namespace imageposition

#endif
