/// Standard input as a document.
#ifndef IMAGEPOSITION_CORE_SETUP_STANDARDINPUT_HPP
#define IMAGEPOSITION_CORE_SETUP_STANDARDINPUT_HPP

#include <sys/types.h>

namespace imageposition {

/// Knows where the document begins, so that it can be sent again after a failure.
class StandardInput {
public:
  /// The document begins at the current offset.
  StandardInput();

  /// True for a pipe or a file; false for a terminal and for /dev/null, which desktops pass.
  static bool isGiven();
  /// Returns to the document's beginning. Does nothing for a pipe.
  void rewind() const;

private:
  off_t start_; // -1 for a pipe
};

} // namespace imageposition

#endif
