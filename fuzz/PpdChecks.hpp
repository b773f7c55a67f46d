/// Properties of a job that must hold for every PPD.
#ifndef IMAGEPOSITION_FUZZ_PPDCHECKS_HPP
#define IMAGEPOSITION_FUZZ_PPDCHECKS_HPP

#include "PrinterDescription.hpp"

namespace imageposition::fuzz {

/// Checks options, their choices and the printed list of options.
void checkOptions(PrinterDescription &printer, const PrintSettingsStore &job);

/// Checks conflicts and the proposed resolutions.
void checkConflicts(PrinterDescription &printer, const PrintSettingsStore &job);

/// Checks custom values.
void checkEntries(PrinterDescription &printer, const PrintSettingsStore &job);

/// Checks the picture beside the panel.
void checkPicture(PrinterDescription &printer, const PrintSettingsStore &job);

/// Checks the request that is sent to CUPS, and its summary.
void checkRequest(PrinterDescription &printer, const PrintSettingsStore &job);

} // namespace imageposition::fuzz

#endif
