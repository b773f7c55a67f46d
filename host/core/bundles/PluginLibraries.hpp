/// Checking the libraries that a plug-in's code loads.
#ifndef IMAGEPOSITION_CORE_BUNDLES_PLUGINLIBRARIES_HPP
#define IMAGEPOSITION_CORE_BUNDLES_PLUGINLIBRARIES_HPP

#include "PluginTrust.hpp"

#include <optional>
#include <string>

namespace imageposition {

/// A place from which a library would load untrusted code.
struct UntrustedPlace {
  enum class Reason {
    OthersMayChange, ///< Or create.
    Relative,        ///< Depends on the current folder.
    Unknown,
  };
  std::string library; ///< The file that names the place.
  std::string place;   ///< A folder or a library as `library` names it, with $ORIGIN expanded.
  Reason reason;
  int error = 0; ///< For `Unknown`: the reason, as an `errno` value.
};

/// The first untrusted place that the loader searches for the dependencies of the library `code`
/// (ld.so(8)). Checks each folder of its run path, each library that it names by path or that is in
/// one of these folders, and their dependencies in turn. Libraries found elsewhere belong to the
/// system or, through LD_LIBRARY_PATH, to the user.
std::optional<UntrustedPlace> untrustedLibraryPlace(const std::string &code,
                                                    const TrustedPeople &people);

} // namespace imageposition

#endif
