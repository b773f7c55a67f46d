/// Why copy and paste do not work, and what the user can do about it.
#ifndef IMAGEPOSITION_GUI_QUESTIONS_PASTEBOARDTROUBLE_HPP
#define IMAGEPOSITION_GUI_QUESTIONS_PASTEBOARDTROUBLE_HPP

#include <string>

namespace imageposition {

/// A message for the user: what is wrong with the folder through which GNUstep's programs reach
/// their pasteboard, or else `raised`, the exception in words.
std::string pasteboardTrouble(const std::string &raised);

} // namespace imageposition

#endif
