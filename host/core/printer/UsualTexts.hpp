/// Names of options and choices that many printers share.
///
/// A PPD often lacks the user's language, and CUPS translates only those names that are its own.
#ifndef IMAGEPOSITION_CORE_PRINTER_USUALTEXTS_HPP
#define IMAGEPOSITION_CORE_PRINTER_USUALTEXTS_HPP

#include <cups/ppd.h>

namespace imageposition {

/// Translates the usual names that are still in English, such as "Long Edge". Call it after
/// `ppdLocalize` and `fillMissingTexts`, which know the printer better.
void translateUsualTexts(ppd_file_t &ppd);

} // namespace imageposition

#endif
