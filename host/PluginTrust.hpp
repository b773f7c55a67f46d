/// Who could have changed the code of a plug-in.
#ifndef IMAGEPOSITION_HOST_PLUGINTRUST_HPP
#define IMAGEPOSITION_HOST_PLUGINTRUST_HPP

#include <optional>
#include <set>
#include <string>
#include <sys/types.h>

namespace imageposition {

/// Whose files may bring code into this program.
struct TrustedPeople {
  std::set<uid_t> owners;
  std::set<gid_t> groups; ///< What these may write to, no one else may.

  /// The system, whoever runs the program, and whoever owns it, who could change it as well. Of
  /// groups: the system's, and the runner's own as long as nobody else is in it (Debian gives each
  /// user one, with the right to write).
  static TrustedPeople here();
};

/// A file or folder that somebody else could change.
struct UntrustedPart {
  enum class Reason { OthersMayWrite, OthersOwnIt };
  std::string path; ///< Without symbolic links.
  Reason reason;
};

/// The first such part of a file or bundle: of everything in it, of what its symbolic links lead
/// to, and of the folders on the way to any of it, up to the root. A folder that everybody may
/// write to is fine on the way if its entries belong to those who made them (the sticky bit, as
/// /tmp has it). None for what is not there.
std::optional<UntrustedPart> untrustedPart(const std::string &path, const TrustedPeople &people);

/// The same for a file that is read along with others of its folder: nobody else may add one there
/// either, so that the sticky bit is not enough.
std::optional<UntrustedPart> untrustedPartOfFolder(const std::string &file,
                                                   const TrustedPeople &people);

} // namespace imageposition

#endif
