#include "FileDrag.hpp"

#include "Waiting.hpp"

#include <X11/Xatom.h>
#include <X11/Xlib.h>

#include <array>
#include <cctype>
#include <cstring>
#include <memory>

namespace imageposition::test {

namespace {

constexpr long kVersion = 5;

std::string uriOf(const std::string &path) {
  constexpr const char *kDigits = "0123456789ABCDEF";
  std::string uri = "file://";
  for (const char c : path) {
    const auto byte = static_cast<unsigned char>(c);
    if (std::isalnum(byte) != 0 || std::strchr("/-._~", c) != nullptr)
      uri += c;
    else
      uri += {'%', kDigits[byte / 16], kDigits[byte % 16]};
  }
  return uri + "\r\n";
}

/// One drag, from its start to its end.
class Drag {
public:
  Drag(const std::vector<std::string> &paths, int x, int y)
      : display_(XOpenDisplay(nullptr), XCloseDisplay), x_(x), y_(y) {
    for (const std::string &path : paths)
      uris_ += uriOf(path);
    const Window root = DefaultRootWindow(display());
    source_ = XCreateSimpleWindow(display(), root, 0, 0, 1, 1, 0, 0, 0);
    int ignored;
    XGetInputFocus(display(), &target_, &ignored);
    XSetSelectionOwner(display(), atom("XdndSelection"), source_, CurrentTime);
  }

  bool drop() {
    const Atom list = atom("text/uri-list");
    send("XdndEnter", {kVersion << 24, static_cast<long>(list), 0, 0});
    const bool isAccepted = becomesTrue([&] {
      send("XdndPosition", {0, (static_cast<long>(x_) << 16) | y_, CurrentTime,
                            static_cast<long>(atom("XdndActionCopy"))});
      return handlesUntil("XdndStatus") && isYes_;
    });
    if (!isAccepted) {
      send("XdndLeave", {});
      return false;
    }
    send("XdndDrop", {0, CurrentTime});
    return becomesTrue([&] { return handlesUntil("XdndFinished"); });
  }

private:
  Display *display() const { return display_.get(); }
  Atom atom(const char *name) const { return XInternAtom(display(), name, False); }

  void send(const char *type, const std::array<long, 4> &values) {
    XEvent event{};
    event.xclient.type = ClientMessage;
    event.xclient.window = target_;
    event.xclient.message_type = atom(type);
    event.xclient.format = 32;
    event.xclient.data.l[0] = static_cast<long>(source_);
    for (std::size_t i = 0; i < values.size(); i++)
      event.xclient.data.l[i + 1] = values[i];
    XSendEvent(display(), target_, False, NoEventMask, &event);
    XFlush(display());
  }

  /// Handles what has come; true once there is a message of that type.
  bool handlesUntil(const char *type) {
    while (XPending(display()) > 0) {
      XEvent event;
      XNextEvent(display(), &event);
      if (event.type == SelectionRequest)
        give(event.xselectionrequest);
      if (event.type != ClientMessage || event.xclient.message_type != atom(type))
        continue;
      isYes_ = (event.xclient.data.l[1] & 1) != 0;
      return true;
    }
    return false;
  }

  /// Gives the names of the files to programs that ask for them.
  void give(const XSelectionRequestEvent &request) {
    const Atom list = atom("text/uri-list"), targets = atom("TARGETS");
    const auto text = reinterpret_cast<const unsigned char *>(uris_.data());
    Atom property = request.property;
    if (request.target == list)
      XChangeProperty(display(), request.requestor, property, list, 8, PropModeReplace, text,
                      static_cast<int>(uris_.size()));
    else if (request.target == targets)
      XChangeProperty(display(), request.requestor, property, XA_ATOM, 32, PropModeReplace,
                      reinterpret_cast<const unsigned char *>(&list), 1);
    else
      property = None;
    XEvent reply{};
    reply.xselection.type = SelectionNotify;
    reply.xselection.requestor = request.requestor;
    reply.xselection.selection = request.selection;
    reply.xselection.target = request.target;
    reply.xselection.property = property;
    reply.xselection.time = request.time;
    XSendEvent(display(), request.requestor, False, NoEventMask, &reply);
    XFlush(display());
  }

  std::unique_ptr<Display, int (*)(Display *)> display_;
  std::string uris_;
  int x_, y_;
  Window source_ = None, target_ = None;
  bool isYes_ = false; // the last message of the target
};

} // namespace

bool dropFiles(const std::vector<std::string> &paths, int x, int y) {
  return Drag(paths, x, y).drop();
}

} // namespace imageposition::test
