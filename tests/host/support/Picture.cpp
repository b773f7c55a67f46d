#include "Picture.hpp"

#include <X11/Xlib.h>
#include <X11/Xutil.h>

namespace imageposition::test {

namespace {

// Outlines are longer than this fraction of the pages' part of the picture; letters are shorter.
constexpr double kShortestSide = 0.2;
constexpr int kShortestArm = 18;

} // namespace

Picture::Picture(const Screen &screen, const std::string &kind) {
  const Control *const place = screen.find(kind, "");
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

int Picture::inColumn(int x, int top, int bottom, const Pixel &colour) const {
  int count = 0;
  for (int y = top; y < bottom; y++)
    count += at(x, y) == colour ? 1 : 0;
  return count;
}

int Picture::inRow(int y, int left, int right, const Pixel &colour) const {
  int count = 0;
  for (int x = left; x <= right; x++)
    count += at(x, y) == colour ? 1 : 0;
  return count;
}

/// The two leftmost vertical lines of that colour, and the horizontal ones between them.
Outline Picture::outline(const Pixel &colour) const {
  Outline found;
  for (int x = 0; x < width_ && found.right < 0; x++)
    if (inColumn(x, 0, pagesHeight(), colour) >= kShortestSide * pagesHeight())
      (found.left < 0 ? found.left : found.right) = x;
  if (found.right < 0)
    return found;
  for (int y = 0; y < pagesHeight(); y++)
    if (inRow(y, found.left, found.right, colour) >= (found.right - found.left) / 3)
      (found.top < 0 ? found.top : found.bottom) = y;
  return found;
}

Outline Picture::front() const { return outline({0, 40, 130}); }
Outline Picture::back() const { return outline({0, 133, 100}); }
Outline Picture::paper() const { return outline({120, 120, 128}); }

int Picture::pageInkLeft() const {
  for (int x = 0; x < width_; x++)
    if (inColumn(x, 0, height_, {0, 0, 0}) > 0)
      return x;
  return -1;
}

/// The back's cross may cover part of the front's.
int Picture::frontMarkX() const {
  int found = -1;
  for (int x = 0, most = kShortestArm; x < width_; x++) {
    const int count = inColumn(x, pagesHeight(), height_, Pixel{0, 40, 130});
    if (count > most) {
      most = count;
      found = x;
    }
  }
  return found;
}

int Picture::frontMarkY() const {
  int found = -1;
  for (int y = pagesHeight(), most = kShortestArm; y < height_; y++) {
    const int count = inRow(y, 0, width_ - 1, Pixel{0, 40, 130});
    if (count > most) {
      most = count;
      found = y;
    }
  }
  return found;
}

} // namespace imageposition::test
