#include "QueueName.hpp"

#include <strings.h>

namespace imageposition {

QueueName QueueName::parse(std::string_view name) {
  const std::size_t slash = name.find('/');
  if (slash == std::string_view::npos)
    return {std::string(name), {}};
  return {std::string(name.substr(0, slash)), std::string(name.substr(slash + 1))};
}

std::string QueueName::text() const {
  return instance.empty() ? printer : printer + '/' + instance;
}

bool operator==(const QueueName &left, const QueueName &right) noexcept {
  return strcasecmp(left.printer.c_str(), right.printer.c_str()) == 0 &&
         strcasecmp(left.instance.c_str(), right.instance.c_str()) == 0;
}

} // namespace imageposition
