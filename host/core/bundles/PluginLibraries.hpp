/// Which libraries come with a plug-in's code.
#ifndef IMAGEPOSITION_HOST_PLUGINLIBRARIES_HPP
#define IMAGEPOSITION_HOST_PLUGINLIBRARIES_HPP

#include "PluginTrust.hpp"

#include <optional>
#include <string>

namespace imageposition {

/// A place that code would be loaded from with a library.
struct UntrustedPlace {
  enum class Reason {
    OthersMayChange, ///< Also: may create.
    Relative,        ///< Another place for each folder that the program is run in.
    Unknown,
  };
  std::string library; ///< The file that names the place.
  std::string place;   ///< A folder or a library, as it is named there, with $ORIGIN replaced.
  Reason reason;
  int error = 0; ///< For `Unknown`: the `errno` value that says why.
};

/// The first untrusted place that the library `code` has the loader look in (ld.so(8)): each folder
/// of its run path, each library that it names by a path or that is found in these folders, and the
/// same for each of those. What the loader finds elsewhere is the system's, or, by
/// LD_LIBRARY_PATH, the user's own.
std::optional<UntrustedPlace> untrustedLibraryPlace(const std::string &code,
                                                    const TrustedPeople &people);

} // namespace imageposition

#endif
