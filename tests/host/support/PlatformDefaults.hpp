/// GNUstep's defaults for print-dialog, as a user sets them.
#ifndef IMAGEPOSITION_TESTS_HOST_PLATFORMDEFAULTS_HPP
#define IMAGEPOSITION_TESTS_HOST_PLATFORMDEFAULTS_HPP

#include <string>

namespace imageposition::test {

/// Has each print-dialog that starts find these defaults until this object is gone. There is one
/// set of them for the private user that the tests run as; throws without such a user.
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
