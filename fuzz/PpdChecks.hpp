/// What holds for a job on a printer, whatever the printer's description says.
#ifndef IMAGEPOSITION_FUZZ_PPDCHECKS_HPP
#define IMAGEPOSITION_FUZZ_PPDCHECKS_HPP

#include "PrinterDescription.hpp"

namespace imageposition::fuzz {

/// Options, their choices and the list of them.
void checkOptions(PrinterDescription &printer, const PrintSettingsStore &job);

/// Conflicts and the ways out.
void checkConflicts(PrinterDescription &printer, const PrintSettingsStore &job);

/// Values that are entered.
void checkEntries(PrinterDescription &printer, const PrintSettingsStore &job);

/// The picture beside the panel.
void checkPicture(PrinterDescription &printer, const PrintSettingsStore &job);

/// What CUPS is sent, and the summary of it.
void checkRequest(PrinterDescription &printer, const PrintSettingsStore &job);

} // namespace imageposition::fuzz

#endif
