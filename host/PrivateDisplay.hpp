/// A display for views that nobody looks at.
#ifndef IMAGEPOSITION_HOST_PRIVATEDISPLAY_HPP
#define IMAGEPOSITION_HOST_PRIVATEDISPLAY_HPP

#include <sys/types.h>

namespace imageposition {

/// An Xvfb of this process's own, named in its DISPLAY. It ends with this object, or with the
/// process if that is killed.
class PrivateDisplay {
public:
  /// Starts one and waits until it answers. Throws a `Failure` with `ExitCode::Display`.
  PrivateDisplay();
  ~PrivateDisplay();
  PrivateDisplay(const PrivateDisplay &) = delete;
  PrivateDisplay &operator=(const PrivateDisplay &) = delete;

  /// Whether DISPLAY names anything at all.
  static bool isNamedInEnvironment();

private:
  pid_t server_ = -1;
};

} // namespace imageposition

#endif
