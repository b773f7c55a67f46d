/// Views of the picture on the screen, for tests of their pixels.
#ifndef IMAGEPOSITION_TESTS_HOST_GUI_PICTURE_VIEWONSCREEN_H
#define IMAGEPOSITION_TESTS_HOST_GUI_PICTURE_VIEWONSCREEN_H

#import <AppKit/AppKit.h>

#include "PreviewLayout.hpp"
#include "Rgb.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <optional>

namespace imageposition::test {

/// Shows one view in a window without a border and reads its pixels, from the upper left corner.
class ViewOnScreen : public testing::Test {
protected:
  void TearDown() override {
    [window_ close];
    [bitmap_ release];
    [window_ release];
  }

  /// Takes ownership of the view, whose frame begins at the origin.
  void open(NSView *view) {
    shown_ = view;
    window_ = [[NSWindow alloc] initWithContentRect:[view frame]
                                          styleMask:NSBorderlessWindowMask
                                            backing:NSBackingStoreBuffered
                                              defer:NO];
    [window_ setReleasedWhenClosed:NO];
    [[window_ contentView] addSubview:view];
    [view release];
    [window_ orderFront:nil];
  }

  /// Draws, and keeps the pixels for the functions below.
  void look() {
    [window_ display];
    // Reads from the content view, which is not flipped: the first row is then the top one.
    NSView *const content = [window_ contentView];
    [content lockFocus];
    [bitmap_ release];
    bitmap_ = [[NSBitmapImageRep alloc] initWithFocusedViewRect:[content bounds]];
    [content unlockFocus];
  }

  Rgb at(int x, int y) const {
    NSUInteger pixel[5] = {};
    [bitmap_ getPixel:pixel atX:x y:y];
    return static_cast<Rgb>(pixel[0] << 16 | pixel[1] << 8 | pixel[2]);
  }

  bool isNear(int x, int y, Rgb colour) const {
    constexpr int kTolerance = 40;
    const Rgb found = at(x, y);
    return std::abs(redOf(found) - redOf(colour)) + std::abs(greenOf(found) - greenOf(colour)) +
               std::abs(blueOf(found) - blueOf(colour)) <
           kTolerance;
  }

  /// Whether a pixel of that colour is at most one pixel away.
  bool isAround(const Pixel &pixel, Rgb colour) const {
    for (int y = -1; y <= 1; y++)
      for (int x = -1; x <= 1; x++)
        if (isNear(static_cast<int>(pixel.x) + x, static_cast<int>(pixel.y) + y, colour))
          return true;
    return false;
  }

  int count(const PixelRectangle &area, Rgb colour) const {
    int found = 0;
    for (int y = static_cast<int>(area.y); y < area.bottom(); y++)
      for (int x = static_cast<int>(area.x); x < area.right(); x++)
        found += isNear(x, y, colour);
    return found;
  }

  /// The smallest rectangle around all pixels of that colour; none without such pixels.
  std::optional<PixelRectangle> boxOf(Rgb colour, const PixelRectangle &area) const {
    std::optional<PixelRectangle> box;
    for (int y = static_cast<int>(area.y); y < area.bottom(); y++)
      for (int x = static_cast<int>(area.x); x < area.right(); x++) {
        if (!isNear(x, y, colour))
          continue;
        const PixelRectangle before = box.value_or(PixelRectangle{x * 1.0, y * 1.0, 1, 1});
        const double left = std::min<double>(before.x, x), top = std::min<double>(before.y, y);
        box = {left, top, std::max<double>(before.right(), x + 1) - left,
               std::max<double>(before.bottom(), y + 1) - top};
      }
    return box;
  }

  /// How much of the area is covered: the sum of all pixels' differences from white.
  double ink(const PixelRectangle &area) const {
    double sum = 0;
    for (int y = static_cast<int>(area.y); y < area.bottom(); y++)
      for (int x = static_cast<int>(area.x); x < area.right(); x++)
        sum += 255 - redOf(at(x, y));
    return sum;
  }

  PixelRectangle whole() const {
    return {0, 0, [shown_ bounds].size.width, [shown_ bounds].size.height};
  }

  NSWindow *window_ = nil;
  NSBitmapImageRep *bitmap_ = nil;

private:
  NSView *shown_ = nil; // owned by the window
};

} // namespace imageposition::test

#endif
