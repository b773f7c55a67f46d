#include "ForeignText.hpp"

#include "VisibleText.hpp"

namespace imageposition {

std::string textOrKeyword(const char *text, const char *keyword) {
  return visible(text != nullptr && *text != '\0' ? text : keyword);
}

} // namespace imageposition
