/// A queue's name as lp takes it: "printer", or "printer/instance".
#ifndef IMAGEPOSITION_HOST_QUEUENAME_HPP
#define IMAGEPOSITION_HOST_QUEUENAME_HPP

#include <string>
#include <string_view>

namespace imageposition {

/// An instance is the same printer with other defaults; a preset is kept as one.
struct QueueName {
  std::string printer;
  std::string instance; ///< Empty for the printer itself.

  /// Splits at the first slash, as CUPS does. Any string is taken; an empty one has neither part.
  static QueueName parse(std::string_view name);

  /// "printer", or "printer/instance" with an instance.
  std::string text() const;
};

/// Without regard to the case of ASCII letters, as CUPS matches names.
bool operator==(const QueueName &left, const QueueName &right) noexcept;

} // namespace imageposition

#endif
