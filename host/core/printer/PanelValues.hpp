/// Job settings in the form in which panels read them.
#ifndef IMAGEPOSITION_CORE_PRINTER_PANELVALUES_HPP
#define IMAGEPOSITION_CORE_PRINTER_PANELVALUES_HPP

#include "PrintSettingsStore.hpp"
#include "PrinterDescription.hpp"

#include <cups/ppd.h>

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace imageposition {

/// The panels' numbers after a change of the printer.
enum class NumbersNow {
  AsBefore,   ///< Or as they were when the printer was left; or there are none.
  Defaults,   ///< The new printer's, which differ.
  Remembered, ///< Those of the last job on the new printer.
  Measured,   ///< Those that were measured for the new printer.
};

/// Reads a boolean option, in any case: "true", "yes", "on" or "1"; "false", "no", "off" or "0".
/// None for anything else.
std::optional<bool> readBoolean(std::string_view value);

/// The whole numbers that the panels' options have in a job without settings: the queue's defaults,
/// or else those of the printer's description. Without zeros, with which panels begin anyway.
PrintSettingsStore panelDefaults(const PrinterDescription &printer,
                                 const std::vector<std::string> &keywords);

/// Converts settings that come from elsewhere to the forms that panels read. `keywords` are the
/// panels' options: a custom value, "Custom.7", becomes the plain number. Without the panels, users
/// could enter these options as the printer's own. The flag for separate back offsets becomes
/// "True" or "False": lp's bare "NAME" is stored as "true". Keeps other values and locked settings.
void makePanelValues(ppd_file_t *ppd, const std::vector<std::string> &keywords,
                     PrintSettingsStore &settings);

} // namespace imageposition

#endif
