/// A queue's name in lp's syntax: "printer", or "printer/instance".
#ifndef IMAGEPOSITION_CORE_BASE_QUEUENAME_HPP
#define IMAGEPOSITION_CORE_BASE_QUEUENAME_HPP

#include <string>
#include <string_view>

namespace imageposition {

/// An instance is the same printer with other defaults. Presets are stored as instances.
struct QueueName {
  std::string printer;
  std::string instance; ///< Empty for the printer itself.

  /// Splits at the first slash, as CUPS does. Accepts any string.
  static QueueName parse(std::string_view name);

  /// "printer", or "printer/instance" if there is an instance.
  std::string text() const;
};

/// Ignore the case of ASCII letters, as CUPS does.
bool operator==(const QueueName &left, const QueueName &right) noexcept;
bool operator!=(const QueueName &left, const QueueName &right) noexcept;

} // namespace imageposition

#endif
