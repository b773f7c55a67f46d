#include "tests/host/Picture.hpp"

#include <X11/Xlib.h>
#include <X11/Xutil.h>

namespace imageposition::test {

namespace {

// Outlines are longer than this, as fractions of the pages' part of the picture; letters are not.
constexpr double kShortestSide = 0.2;
constexpr int kShortestArm = 20;

} // namespace

Picture::Picture(const Screen &screen) {
  const Control *const place = screen.find("picture", "");
  Display *const display = XOpenDisplay(nullptr);
  if (place == nullptr || display == nullptr)
    return;
  XImage *const image =
      XGetImage(display, DefaultRootWindow(display), place->x, place->y, unsigned(place->width),
                unsigned(place->height), AllPlanes, ZPixmap);
  if (image != nullptr) {
    width_ = place->width;
    height_ = place->height;
    for (int y = 0; y < height_; y++)
      for (int x = 0; x < width_; x++) {
        const unsigned long pixel = XGetPixel(image, x, y);
        for (const int shift : {16, 8, 0})
          pixels_.push_back(static_cast<unsigned char>(pixel >> shift));
      }
    XDestroyImage(image);
  }
  XCloseDisplay(display);
}

Picture::Pixel Picture::at(int x, int y) const {
  const std::size_t start = 3 * (std::size_t(y) * std::size_t(width_) + std::size_t(x));
  return {pixels_[start], pixels_[start + 1], pixels_[start + 2]};
}

int Picture::inColumn(int x, const Pixel &colour) const {
  int count = 0;
  for (int y = 0; y < pagesHeight(); y++)
    count += at(x, y) == colour ? 1 : 0;
  return count;
}

int Picture::inRow(int y, int left, int right, const Pixel &colour) const {
  int count = 0;
  for (int x = left; x <= right; x++)
    count += at(x, y) == colour ? 1 : 0;
  return count;
}

/// The leftmost two upright lines of that colour, and the horizontal ones between them.
Outline Picture::outline(const Pixel &colour) const {
  Outline found;
  for (int x = 0; x < width_ && found.right < 0; x++)
    if (inColumn(x, colour) >= kShortestSide * pagesHeight())
      (found.left < 0 ? found.left : found.right) = x;
  if (found.right < 0)
    return found;
  for (int y = 0; y < pagesHeight(); y++)
    if (inRow(y, found.left, found.right, colour) >= (found.right - found.left) / 3)
      (found.top < 0 ? found.top : found.bottom) = y;
  return found;
}

Outline Picture::paper() const { return outline({120, 120, 128}); }

int Picture::frontMarkX() const {
  for (int x = 0; x < width_; x++) {
    int run = 0;
    for (int y = pagesHeight(); y < height_; y++) {
      run = at(x, y) == Pixel{0, 40, 130} ? run + 1 : 0;
      if (run >= kShortestArm)
        return x;
    }
  }
  return -1;
}

int Picture::frontMarkY() const {
  for (int y = pagesHeight(); y < height_; y++) {
    int run = 0;
    for (int x = 0; x < width_; x++) {
      run = at(x, y) == Pixel{0, 40, 130} ? run + 1 : 0;
      if (run >= kShortestArm)
        return y;
    }
  }
  return -1;
}

} // namespace imageposition::test
