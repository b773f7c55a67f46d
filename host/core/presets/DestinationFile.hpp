/// The contents of CUPS's file of destinations and their options ("lpoptions").
#ifndef IMAGEPOSITION_CORE_PRESETS_DESTINATIONFILE_HPP
#define IMAGEPOSITION_CORE_PRESETS_DESTINATIONFILE_HPP

#include "QueueName.hpp"

#include <string>
#include <string_view>
#include <vector>

namespace imageposition {

/// A line is "Dest printer/instance name=value ...", with "Default" in place of "Dest" for the
/// user's default printer. Unchanged lines are kept byte for byte.
class DestinationFile {
public:
  /// The length, in bytes, up to which CUPS reads a line. It reads the rest as another line.
  static constexpr std::size_t kLongestLine = 8191;

  struct Entry {
    QueueName queue;
    std::string options; ///< As `cupsParseOptions` reads them.
    bool isDefault = false;
  };

  explicit DestinationFile(std::string_view text);

  /// The entries of all lines that CUPS understands, in the file's order. Merges lines for the same
  /// destination.
  std::vector<Entry> entries() const;
  bool has(const QueueName &queue) const;

  /// Replaces all lines of that destination, or appends one. Returns false and changes nothing if
  /// the line would be too long.
  bool set(const QueueName &queue, const std::string &options);
  /// If it was the default, the printer without an instance becomes the default.
  void remove(const QueueName &queue);
  void rename(const QueueName &queue, const std::string &newInstance);

  std::string text() const;

private:
  std::vector<std::string> lines_;
};

} // namespace imageposition

#endif
