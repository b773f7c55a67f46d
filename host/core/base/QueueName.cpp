#include "QueueName.hpp"

#include "Strings.hpp"

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
  return isSame(left.printer, right.printer) && isSame(left.instance, right.instance);
}

bool operator!=(const QueueName &left, const QueueName &right) noexcept { return !(left == right); }

} // namespace imageposition
