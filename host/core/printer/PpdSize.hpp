/// Printer descriptions that are too large to be read while a user waits.
///
/// libcups compares some statements of a PPD with all earlier ones of their kind, and each
/// constraint with all choices of its options. Printers have hundreds to a few thousand of these; a
/// file that was made to take minutes is refused instead of leaving the user without a window.
#ifndef IMAGEPOSITION_HOST_PPDSIZE_HPP
#define IMAGEPOSITION_HOST_PPDSIZE_HPP

#include <cups/ppd.h>

#include <string>

namespace imageposition {

/// Whether `ppdOpenFile` reads the file within a second or so; true for one that cannot be read at
/// all, about which libcups knows more. The file may be compressed.
bool isReadSoon(const std::string &path);

/// The same of the first marking, which reads the constraints.
bool isMarkedSoon(const ppd_file_t &ppd);

} // namespace imageposition

#endif
