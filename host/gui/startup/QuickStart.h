/// Skips or postpones work that GNUstep does at the start of every program.
#ifndef IMAGEPOSITION_GUI_STARTUP_QUICKSTART_H
#define IMAGEPOSITION_GUI_STARTUP_QUICKSTART_H

namespace imageposition {

/// Skips the application icon; the workspace, which would start another program to look for all
/// applications on the disk; and other programs' services, which only a menu would offer.
void leaveOutIconAndServices();

/// During its lifetime, GNUstep checks for the window manager's replies every fifth of a
/// millisecond instead of every ten milliseconds. The first GNUstep program on a display requests
/// the frame sizes of fifteen kinds of windows, one after another.
class ShortWaits {
public:
  ShortWaits();
  ~ShortWaits();
  ShortWaits(const ShortWaits &) = delete;
  ShortWaits &operator=(const ShortWaits &) = delete;
};

} // namespace imageposition

#endif
