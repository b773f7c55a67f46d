/// Sets GNUstep user defaults for print-dialog.
#ifndef IMAGEPOSITION_TESTS_HOST_SUPPORT_PLATFORMDEFAULTS_HPP
#define IMAGEPOSITION_TESTS_HOST_SUPPORT_PLATFORMDEFAULTS_HPP

#include <string>

namespace imageposition::test {

/// Sets these defaults, for every print-dialog that starts, until this object is destroyed. The
/// private user that the tests run as has one set of them; throws without such a user.
class PlatformDefaults {
public:
  /// `entries` is the inside of a property list: `NSLanguages = (de);`.
  explicit PlatformDefaults(const std::string &entries);
  ~PlatformDefaults();
  PlatformDefaults(const PlatformDefaults &) = delete;
  PlatformDefaults &operator=(const PlatformDefaults &) = delete;

private:
  std::string file_;
};

} // namespace imageposition::test

#endif
