/// Checks that no untrusted user could have modified code that is about to be loaded.
#ifndef IMAGEPOSITION_CORE_BASE_PLUGINTRUST_HPP
#define IMAGEPOSITION_CORE_BASE_PLUGINTRUST_HPP

#include <optional>
#include <set>
#include <string>
#include <sys/types.h>

namespace imageposition {

/// The users whose files may be loaded as code.
struct TrustedPeople {
  std::set<uid_t> owners;

  /// Root, the current user, and the program's owner, who could modify the program anyway.
  static TrustedPeople here();
};

/// A file, folder or link that another user could modify, or that cannot be examined.
struct UntrustedPart {
  enum class Reason { OthersMayWrite, OthersOwnIt, Unknown };
  std::string path; ///< Absolute; no folder in it is a symbolic link.
  Reason reason;
  int error = 0; ///< For `Unknown`: the `errno` value that says why.
};

/// Returns the first untrusted part of a file or bundle. Checks everything inside it, the targets
/// of its symbolic links, and every folder and link on the path to each of them, starting at the
/// root. A part that cannot be read has the reason `Unknown`, as does a missing `path`. A link
/// inside the bundle may point to nothing unless another user could create its target.
///
/// The only group that may have write permission is root's, because the members of other groups
/// cannot be determined reliably. Others may write to a folder on the path if it has the sticky
/// bit, as /tmp does.
///
/// A trusted path stays trusted: only trusted users can rename, replace or redirect any part of it.
/// It is safe to load the code from that path afterwards.
std::optional<UntrustedPart> untrustedPart(const std::string &path, const TrustedPeople &people);

/// Like `untrustedPart`, but ignores the contents of a folder. A path that does not exist is
/// trusted unless another user could create it.
std::optional<UntrustedPart> untrustedPlace(const std::string &path, const TrustedPeople &people);
/// Like `untrustedPart`, for a file that is read together with others in its folder. Other users
/// must not be able to add files there, so the sticky bit is not enough.
std::optional<UntrustedPart> untrustedPartOfFolder(const std::string &file,
                                                   const TrustedPeople &people);

} // namespace imageposition

#endif
