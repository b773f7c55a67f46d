#import "WindowPlacement.h"

#include <algorithm>
#include <cmath>

namespace imageposition {

namespace {

constexpr NSSize kWindowFrame = {8, 40}; // pixels, of most window managers
constexpr CGFloat kButtonRow = 64;       // points, at the lower edge of a window

/// The corner with which a window of that size is on the screen, nearest to the wanted one. The
/// window's upper edge comes first: it has the title.
NSPoint onScreen(NSPoint wanted, NSSize size, NSRect screen) {
  const CGFloat right = NSMaxX(screen) - size.width;
  const CGFloat top = NSMaxY(screen) - size.height;
  return NSMakePoint(std::round(std::max(NSMinX(screen), std::min(wanted.x, right))),
                     std::round(std::min(std::max(wanted.y, NSMinY(screen)), top)));
}

} // namespace

NSSize roomOnScreen() {
  NSScreen *const screen = [NSScreen mainScreen];
  const CGFloat scale = [screen userSpaceScaleFactor];
  const NSSize pixels = [screen visibleFrame].size;
  return NSMakeSize(std::floor((pixels.width - kWindowFrame.width) / scale),
                    std::floor((pixels.height - kWindowFrame.height) / scale));
}

void placeOver(NSWindow *window, NSWindow *parent) {
  const NSRect frame = [parent frame];
  const NSSize size = [window frame].size;
  const NSPoint corner =
      NSMakePoint(NSMidX(frame) - size.width / 2, NSMidY(frame) - size.height / 2);
  [window setFrameOrigin:onScreen(corner, size, [[parent screen] visibleFrame])];
}

void placeBeside(NSWindow *window, NSWindow *parent) {
  NSRect frame = [parent frame];
  const NSRect screen = [[parent screen] visibleFrame];
  const NSSize size = [window frame].size;
  const CGFloat roomAtLeft = NSMinX(frame) - NSMinX(screen);
  const CGFloat roomAtRight = NSMaxX(screen) - NSMaxX(frame);
  // What the parent asks for is at its left.
  const bool isRight = roomAtRight >= size.width || roomAtLeft < size.width;
  if (isRight && roomAtRight < size.width && roomAtLeft + roomAtRight >= size.width) {
    frame.origin.x = std::floor(NSMaxX(screen) - size.width - NSWidth(frame));
    [parent setFrameOrigin:frame.origin];
  }
  const bool isCovering = size.width > (isRight ? NSMaxX(screen) - NSMaxX(frame) : roomAtLeft);
  const CGFloat aligned = NSMaxY(frame) - size.height;
  const NSPoint corner =
      NSMakePoint(isRight ? NSMaxX(frame) : NSMinX(frame) - size.width,
                  isCovering ? std::max(aligned, NSMinY(frame) + kButtonRow) : aligned);
  [window setFrameOrigin:onScreen(corner, size, screen)];
}

} // namespace imageposition
