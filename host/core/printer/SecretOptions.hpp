/// Options whose values are secret on any printer.
#ifndef IMAGEPOSITION_CORE_PRINTER_SECRETOPTIONS_HPP
#define IMAGEPOSITION_CORE_PRINTER_SECRETOPTIONS_HPP

#include <string>

namespace imageposition {

/// Whether IPP or CUPS defines this name for a password or equivalent, or the name ends in
/// "password", "passcode" or the word "pin". Ignores case.
bool isSecretName(const std::string &name);

} // namespace imageposition

#endif
