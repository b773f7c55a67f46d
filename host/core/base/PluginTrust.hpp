/// Who could have changed code before it is loaded.
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

  /// The system, the user, and the program's owner, who could change the program as well.
  static TrustedPeople here();
};

/// A file, folder or link that another user could change, or that cannot be examined.
struct UntrustedPart {
  enum class Reason { OthersMayWrite, OthersOwnIt, Unknown };
  std::string path; ///< Absolute; no folder in it is a symbolic link.
  Reason reason;
  int error = 0; ///< For `Unknown`: the `errno` value that says why.
};

/// The first untrusted part of a file or bundle: of everything in it, of what its symbolic links
/// lead to, and of each folder and link on the way to any of it, from the root on. Whatever is not
/// there or cannot be read is a part with the reason `Unknown`.
///
/// Of groups only root's may write: who is in another one cannot be found out reliably. A folder
/// that others may write to is fine on the way if it has the sticky bit, as /tmp does.
///
/// What this function trusts stays so: only the trusted people can rename, replace or redirect any
/// part of it, so that it can be loaded by the same path afterwards.
std::optional<UntrustedPart> untrustedPart(const std::string &path, const TrustedPeople &people);

/// The same for a file or folder by itself, without what is in it. If it does not exist, it is
/// trusted unless another user could create it.
std::optional<UntrustedPart> untrustedPlace(const std::string &path, const TrustedPeople &people);
/// The same for a file that is read along with others of its folder: nobody else may add one there
/// either, so that the sticky bit is not enough.
std::optional<UntrustedPart> untrustedPartOfFolder(const std::string &file,
                                                   const TrustedPeople &people);

} // namespace imageposition

#endif
