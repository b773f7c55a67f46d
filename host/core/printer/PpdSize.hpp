/// Printer descriptions that are too large to read while a user waits.
///
/// libcups compares some statements of a PPD with all earlier ones of their kind, and each
/// constraint with all choices of its options. Printers have hundreds to a few thousand of these. A
/// file that is crafted to take minutes is refused.
#ifndef IMAGEPOSITION_CORE_PRINTER_PPDSIZE_HPP
#define IMAGEPOSITION_CORE_PRINTER_PPDSIZE_HPP

#include <cups/ppd.h>

#include <string>

namespace imageposition {

/// Whether `ppdOpenFile` reads the file within about a second. Returns true for an unreadable file,
/// because libcups reports the reason. The file may be compressed.
bool canBeReadQuickly(const std::string &path);

/// The same for the first marking, which reads the constraints.
bool canBeMarkedQuickly(const ppd_file_t &ppd);

} // namespace imageposition

#endif
