/// The text of CUPS's file of destinations with options ("lpoptions").
#ifndef IMAGEPOSITION_HOST_DESTINATIONFILE_HPP
#define IMAGEPOSITION_HOST_DESTINATIONFILE_HPP

#include "QueueName.hpp"

#include <string>
#include <string_view>
#include <vector>

namespace imageposition {

/// One line says "Dest printer/instance name=value ...", or "Default" in place of "Dest" for the
/// person's default printer. Lines that are not changed stay byte for byte.
class DestinationFile {
public:
  /// What CUPS reads of a line; the rest would become a line of its own.
  static constexpr std::size_t kLongestLine = 8191;

  struct Entry {
    QueueName queue;
    std::string options; ///< As `cupsParseOptions` reads them.
    bool isDefault = false;
  };

  explicit DestinationFile(std::string_view text);

  /// Those of all lines that CUPS understands, in the file's order. Lines of the same destination
  /// add up.
  std::vector<Entry> entries() const;
  bool has(const QueueName &queue) const;

  /// In place of all lines of that destination, or at the end. False, and nothing changes, when the
  /// line would be too long.
  bool set(const QueueName &queue, const std::string &options);
  /// A default printer stays the default without its instance.
  void remove(const QueueName &queue);
  void rename(const QueueName &queue, const std::string &newInstance);

  std::string text() const;

private:
  std::vector<std::string> lines_;
};

} // namespace imageposition

#endif
