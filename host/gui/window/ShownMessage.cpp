#include "ShownMessage.hpp"

namespace imageposition {

void ShownMessage::set(const std::string &text, const std::string &origin) {
  origin_ = text.find(origin) != std::string::npos ? origin : "";
  text_ = text;
}

std::string ShownMessage::textBeforeOrigin() const {
  return origin_.empty() ? text_ : text_.substr(0, text_.find(origin_));
}

} // namespace imageposition
