/// Whether whole copies come out one after the other.
#ifndef IMAGEPOSITION_HOST_COLLATION_HPP
#define IMAGEPOSITION_HOST_COLLATION_HPP

#include "PrinterDescription.hpp"

namespace imageposition {

/// The job's own word in either of its names, or else the printer's default.
bool isCollated(PrinterDescription &printer, PrintSettingsStore &job);

/// By the printer's own option where it has one, in CUPS's terms elsewhere, so that no job carries
/// an option that its printer does not know. What holds anyhow is not stored.
void setCollated(bool collated, PrinterDescription &printer, PrintSettingsStore &job);

} // namespace imageposition

#endif
