#include "WatchedScreen.hpp"

#include <algorithm>
#include <poll.h>
#include <stdexcept>
#include <sys/ipc.h>
#include <sys/shm.h>

#include <X11/Xatom.h>
#include <X11/Xutil.h>
#include <X11/extensions/Xdamage.h>

namespace imageposition::bench {

namespace {

/// A window may be gone by the time of a request about it.
int ignoreError(Display *, XErrorEvent *) { return 0; }

std::vector<Window> managedWindows(Display *display, Window root) {
  const Atom list = XInternAtom(display, "_NET_CLIENT_LIST", False);
  Atom type = None;
  int format = 0;
  unsigned long count = 0, rest = 0;
  unsigned char *data = nullptr;
  XGetWindowProperty(display, root, list, 0, 1024, False, XA_WINDOW, &type, &format, &count, &rest,
                     &data);
  std::vector<Window> windows;
  if (data != nullptr)
    windows.assign(reinterpret_cast<Window *>(data), reinterpret_cast<Window *>(data) + count);
  XFree(data);
  return windows;
}

std::optional<Rectangle> placeOf(Display *display, Window window, Window root) {
  XWindowAttributes attributes;
  if (!XGetWindowAttributes(display, window, &attributes) || attributes.map_state != IsViewable)
    return {};
  Window child;
  Rectangle place{0, 0, attributes.width, attributes.height};
  XTranslateCoordinates(display, window, root, 0, 0, &place.left, &place.top, &child);
  return place;
}

} // namespace

WatchedScreen::WatchedScreen() : display_(XOpenDisplay(nullptr)) {
  if (display_ == nullptr)
    throw std::runtime_error("The display cannot be opened.");
  XSetErrorHandler(ignoreError);
  root_ = DefaultRootWindow(display_);
  int errors = 0;
  if (!XDamageQueryExtension(display_, &damageEvents_, &errors) || !XShmQueryExtension(display_))
    throw std::runtime_error("The display server lacks DAMAGE or MIT-SHM.");
  damage_ = XDamageCreate(display_, root_, XDamageReportNonEmpty);
  shareImage();
}

WatchedScreen::~WatchedScreen() {
  XDestroyImage(image_);
  shmdt(memory_.shmaddr);
  XCloseDisplay(display_);
}

void WatchedScreen::shareImage() {
  const int screen = DefaultScreen(display_);
  image_ = XShmCreateImage(display_, DefaultVisual(display_, screen),
                           DefaultDepth(display_, screen), ZPixmap, nullptr, &memory_,
                           DisplayWidth(display_, screen), DisplayHeight(display_, screen));
  if (image_ == nullptr || image_->bits_per_pixel != 32)
    throw std::runtime_error("The display needs 32 bits per pixel.");
  const std::size_t size = std::size_t(image_->bytes_per_line) * image_->height;
  memory_.shmid = shmget(IPC_PRIVATE, size, IPC_CREAT | 0600);
  memory_.shmaddr = image_->data = static_cast<char *>(shmat(memory_.shmid, nullptr, 0));
  XShmAttach(display_, &memory_);
  XSync(display_, False);
  shmctl(memory_.shmid, IPC_RMID, nullptr); // freed after the last detach
}

bool WatchedScreen::waitForDrawing(Clock::time_point deadline) {
  for (;;) {
    while (XPending(display_) > 0) {
      XEvent event;
      XNextEvent(display_, &event);
      if (event.type == damageEvents_ + XDamageNotify) {
        XDamageSubtract(display_, damage_, None, None);
        return true;
      }
    }
    const auto left =
        std::chrono::duration_cast<std::chrono::milliseconds>(deadline - Clock::now()).count();
    pollfd connection{ConnectionNumber(display_), POLLIN, 0};
    if (left <= 0 || poll(&connection, 1, static_cast<int>(left)) == 0)
      return false;
  }
}

Picture WatchedScreen::picture() {
  XShmGetImage(display_, root_, image_, 0, 0, AllPlanes);
  const auto *const first = reinterpret_cast<const std::uint32_t *>(image_->data);
  const std::size_t perRow = image_->bytes_per_line / 4;
  return {static_cast<int>(perRow), {first, first + perRow * image_->height}};
}

std::optional<Rectangle> WatchedScreen::largestWindow() {
  std::optional<Rectangle> largest;
  for (const Window window : managedWindows(display_, root_)) {
    const auto place = placeOf(display_, window, root_);
    if (place && (!largest || place->width * place->height > largest->width * largest->height))
      largest = place;
  }
  if (largest) { // clip it to the screen
    const int right = std::min(largest->left + largest->width, image_->width);
    const int bottom = std::min(largest->top + largest->height, image_->height);
    largest->left = std::max(largest->left, 0);
    largest->top = std::max(largest->top, 0);
    largest->width = right - largest->left;
    largest->height = bottom - largest->top;
  }
  return largest;
}

} // namespace imageposition::bench
