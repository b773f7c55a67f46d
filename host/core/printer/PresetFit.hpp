/// Whether a setting of another job or printer can hold on a printer.
#ifndef IMAGEPOSITION_HOST_PRESETFIT_HPP
#define IMAGEPOSITION_HOST_PRESETFIT_HPP

#include <cups/ppd.h>

#include <string>

namespace imageposition {

/// Empty when the printer allows the value; else a sentence that says why not. Names that the PPD
/// does not have fit when `isKept`, or when they are CUPS's own ("copies", "number-up", ...), which
/// have no capital letter.
std::string misfitOf(ppd_file_t *ppd, const std::string &name, const std::string &value,
                     bool isKept);

} // namespace imageposition

#endif
