/// Strings from printer descriptions.
#ifndef IMAGEPOSITION_CORE_PRINTER_FOREIGNTEXT_HPP
#define IMAGEPOSITION_CORE_PRINTER_FOREIGNTEXT_HPP

#include <string>

namespace imageposition {

/// The name that a printer description has for an option, a choice or a group, made `visible`; the
/// keyword if it has none. `text` may be null.
std::string textOrKeyword(const char *text, const char *keyword);

} // namespace imageposition

#endif
