/// Texts of printers' descriptions.
#ifndef IMAGEPOSITION_HOST_FOREIGNTEXT_HPP
#define IMAGEPOSITION_HOST_FOREIGNTEXT_HPP

#include <string>

namespace imageposition {

/// The text that a printer's description has for an option, a choice or a group, as `visible` shows
/// it; the keyword where it has none. `text` may be null.
std::string textOrKeyword(const char *text, const char *keyword);

} // namespace imageposition

#endif
