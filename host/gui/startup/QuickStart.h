/// Leaves out, or puts off, what GNUstep does at the start of every program.
#ifndef IMAGEPOSITION_GUI_STARTUP_QUICKSTART_H
#define IMAGEPOSITION_GUI_STARTUP_QUICKSTART_H

namespace imageposition {

/// Leaves out the application's icon; the workspace, which would start a further program to look
/// for all applications on the disk; and other programs' services, which only a menu would offer.
void leaveOutIconAndServices();

/// While this lives, GNUstep looks for the window manager's answers every fifth of a millisecond
/// instead of every ten. The first GNUstep program on a display asks for the frames of fifteen
/// kinds of windows, one after the other.
class ShortWaits {
public:
  ShortWaits();
  ~ShortWaits();
  ShortWaits(const ShortWaits &) = delete;
  ShortWaits &operator=(const ShortWaits &) = delete;
};

} // namespace imageposition

#endif
