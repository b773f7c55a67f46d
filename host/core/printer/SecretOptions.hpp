/// Options whose values are nobody else's to read, whatever the printer.
#ifndef IMAGEPOSITION_HOST_SECRETOPTIONS_HPP
#define IMAGEPOSITION_HOST_SECRETOPTIONS_HPP

#include <string>

namespace imageposition {

/// Whether IPP or CUPS has a password, or something as good as one, under this name; or the name
/// ends in "password", "passcode" or the word "pin". Its case does not count.
bool isSecretName(const std::string &name);

} // namespace imageposition

#endif
