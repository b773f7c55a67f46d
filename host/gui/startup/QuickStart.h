/// What the platform does at the start of every program, and a dialog does without.
#ifndef IMAGEPOSITION_HOST_QUICKSTART_H
#define IMAGEPOSITION_HOST_QUICKSTART_H

namespace imageposition {

/// No application icon beside the window or in it; no workspace, which would have a further program
/// look for all applications on the disk; no services of other programs, which only a menu would
/// offer.
void leaveOutIconAndServices();

/// While this is there, the platform looks for an answer of the window manager every fifth of a
/// millisecond instead of every ten: it asks for the frames of fifteen kinds of windows, one after
/// the other, when it is the first of its programs on a display.
class ShortWaits {
public:
  ShortWaits();
  ~ShortWaits();
  ShortWaits(const ShortWaits &) = delete;
  ShortWaits &operator=(const ShortWaits &) = delete;
};

} // namespace imageposition

#endif
