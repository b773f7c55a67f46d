#include "Focus.hpp"

#include "Contrast.hpp"

#include <X11/Xlib.h>
#include <X11/Xutil.h>
#include <algorithm>
#include <chrono>
#include <cstddef>
#include <map>
#include <thread>
#include <vector>

namespace imageposition::test {

namespace {

constexpr double kEnough = 3;
constexpr std::size_t kFewestPixels = 40; // about the frame of a checkbox

using Image = std::vector<unsigned long>; // of the display, 0xRRGGBB, row by row

Image look() {
  Image pixels;
  Display *const display = XOpenDisplay(nullptr);
  if (display == nullptr)
    return pixels;
  const int screen = DefaultScreen(display);
  const int width = DisplayWidth(display, screen), height = DisplayHeight(display, screen);
  XImage *const image = XGetImage(display, DefaultRootWindow(display), 0, 0, unsigned(width),
                                  unsigned(height), AllPlanes, ZPixmap);
  for (int y = 0; image != nullptr && y < height; y++)
    for (int x = 0; x < width; x++)
      pixels.push_back(XGetPixel(image, x, y) & 0xFFFFFF);
  if (image != nullptr)
    XDestroyImage(image);
  XCloseDisplay(display);
  return pixels;
}

/// Looks until nothing changes any more, apart from an insertion point that blinks.
Image lookWhenSettled() {
  constexpr std::ptrdiff_t kInsertionPoint = 40;
  const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(10);
  Image last = look();
  while (std::chrono::steady_clock::now() < deadline) {
    std::this_thread::sleep_for(std::chrono::milliseconds(80));
    Image now = look();
    std::ptrdiff_t changed = 0;
    for (std::size_t i = 0; i < std::min(now.size(), last.size()); i++)
      changed += now[i] != last[i] ? 1 : 0;
    last = std::move(now);
    if (changed <= kInsertionPoint)
      break;
  }
  return last;
}

Image usualPixels(const std::vector<Image> &looks) {
  Image usual = looks.front();
  for (std::size_t i = 0; i < usual.size(); i++) {
    std::map<unsigned long, int> counts;
    for (const Image &image : looks)
      counts[image[i]]++;
    usual[i] = std::max_element(counts.begin(), counts.end(), [](const auto &a, const auto &b) {
                 return a.second < b.second;
               })->first;
  }
  return usual;
}

std::vector<std::size_t> focusIn(const Image &image, const Image &usual) {
  std::vector<std::size_t> pixels;
  for (std::size_t i = 0; i < image.size(); i++)
    if (image[i] != usual[i] && contrastOf(image[i], usual[i]) >= kEnough)
      pixels.push_back(i);
  return pixels;
}

} // namespace

std::string looksWithoutFocus(int times, const std::function<void()> &moveOn) {
  std::vector<Image> looks;
  for (int i = 0; i < times; i++) {
    moveOn();
    looks.push_back(lookWhenSettled());
  }
  const Image usual = usualPixels(looks);
  std::string missing;
  std::vector<std::size_t> last;
  for (int i = 0; i < times; i++) {
    auto focus = focusIn(looks[std::size_t(i)], usual);
    if (focus.size() < kFewestPixels || focus == last)
      missing +=
          "after " + std::to_string(i + 1) + ": " + std::to_string(focus.size()) + " pixels\n";
    last = std::move(focus);
  }
  return missing;
}

} // namespace imageposition::test
