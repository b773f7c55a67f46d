#include "Contrast.hpp"

#include <X11/Xlib.h>
#include <X11/Xutil.h>
#include <algorithm>
#include <cmath>
#include <map>

namespace imageposition::test {

namespace {

constexpr int kFrame = 4; // pixels that a frame or a focus ring may take

double linear(unsigned long component) {
  const double value = static_cast<double>(component & 0xFF) / 255;
  return value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
}

double luminanceOf(unsigned long pixel) {
  return 0.2126 * linear(pixel >> 16) + 0.7152 * linear(pixel >> 8) + 0.0722 * linear(pixel);
}

std::map<unsigned long, int> coloursOf(const Control &control) {
  std::map<unsigned long, int> colours;
  Display *const display = XOpenDisplay(nullptr);
  if (display == nullptr)
    return colours;
  const int inset = control.kind == "label" ? 0 : kFrame;
  const int left = control.x + inset, top = control.y + inset;
  const int width = control.width - 2 * inset, height = control.height - 2 * inset;
  const int screen = DefaultScreen(display);
  if (left >= 0 && top >= 0 && width > 0 && height > 0 &&
      left + width <= DisplayWidth(display, screen) &&
      top + height <= DisplayHeight(display, screen)) {
    XImage *const image = XGetImage(display, DefaultRootWindow(display), left, top, unsigned(width),
                                    unsigned(height), AllPlanes, ZPixmap);
    for (int y = 0; image != nullptr && y < height; y++)
      for (int x = 0; x < width; x++)
        colours[XGetPixel(image, x, y) & 0xFFFFFF]++;
    if (image != nullptr)
      XDestroyImage(image);
  }
  XCloseDisplay(display);
  return colours;
}

} // namespace

double contrastOf(unsigned long one, unsigned long other) {
  const double first = luminanceOf(one), second = luminanceOf(other);
  return (std::max(first, second) + 0.05) / (std::min(first, second) + 0.05);
}

double contrastOf(const Control &control) {
  const auto colours = coloursOf(control);
  const auto background =
      std::max_element(colours.begin(), colours.end(), [](const auto &one, const auto &other) {
        return one.second < other.second;
      });
  double most = 0;
  for (const auto &[colour, count] : colours)
    most = std::max(most, contrastOf(colour, background->first));
  return most;
}

} // namespace imageposition::test
