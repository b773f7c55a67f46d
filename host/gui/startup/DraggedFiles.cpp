#include "DraggedFiles.hpp"

#include <X11/Xatom.h>
#include <X11/Xlib.h>

#include <chrono>
#include <memory>
#include <poll.h>
#include <unistd.h>

namespace imageposition {

namespace {

constexpr std::chrono::seconds kPatience{1};
constexpr long kMostWords =
    1L << 18; // of four bytes; a longer list comes in parts, which no one drags

int digit(char c) {
  return c >= '0' && c <= '9'   ? c - '0'
         : c >= 'a' && c <= 'f' ? c - 'a' + 10
         : c >= 'A' && c <= 'F' ? c - 'A' + 10
                                : -1;
}

std::string withoutEscapes(std::string_view text) {
  std::string plain;
  for (std::size_t i = 0; i < text.size(); i++) {
    const bool isEscape =
        text[i] == '%' && i + 2 < text.size() && digit(text[i + 1]) >= 0 && digit(text[i + 2]) >= 0;
    plain += isEscape ? static_cast<char>(digit(text[i + 1]) * 16 + digit(text[i + 2])) : text[i];
    i += isEscape ? 2 : 0;
  }
  return plain;
}

std::string thisHost() {
  char name[256] = "";
  gethostname(name, sizeof name - 1);
  return name;
}

/// Empty for the URI of anything but a file of this computer.
std::string fileOf(std::string_view uri) {
  constexpr std::string_view kScheme = "file:";
  if (uri.substr(0, kScheme.size()) != kScheme)
    return {};
  std::string_view path = uri.substr(kScheme.size());
  if (path.substr(0, 2) == "//") {
    const std::size_t end = path.find('/', 2);
    if (end == std::string_view::npos)
      return {};
    const std::string_view host = path.substr(2, end - 2);
    if (!host.empty() && host != "localhost" && host != thisHost())
      return {};
    path.remove_prefix(end);
  }
  const std::string file = withoutEscapes(path);
  const bool isUsable = !file.empty() && file[0] == '/' && file.find('\0') == std::string::npos;
  return isUsable ? file : std::string();
}

/// Asks for the content of a selection.
class Question {
public:
  Question() : display_(XOpenDisplay(nullptr), &close) {}

  std::string answer() {
    if (display_ == nullptr)
      return {};
    const Atom selection = atom("XdndSelection"), list = atom("text/uri-list");
    if (XGetSelectionOwner(display(), selection) == None)
      return {};
    window_ = XCreateSimpleWindow(display(), DefaultRootWindow(display()), 0, 0, 1, 1, 0, 0, 0);
    XConvertSelection(display(), selection, list, list, window_, CurrentTime);
    XFlush(display());
    return awaitAnswer() ? content(list) : std::string();
  }

private:
  static void close(Display *display) {
    if (display != nullptr)
      XCloseDisplay(display);
  }

  Display *display() const { return display_.get(); }
  Atom atom(const char *name) const { return XInternAtom(display(), name, False); }

  bool awaitAnswer() {
    using Clock = std::chrono::steady_clock;
    const auto end = Clock::now() + kPatience;
    for (;;) {
      XEvent event;
      if (XCheckTypedWindowEvent(display(), window_, SelectionNotify, &event) != False)
        return event.xselection.property != None;
      const auto left = std::chrono::duration_cast<std::chrono::milliseconds>(end - Clock::now());
      pollfd server{ConnectionNumber(display()), POLLIN, 0};
      if (left.count() <= 0 || poll(&server, 1, static_cast<int>(left.count())) == 0)
        return false;
    }
  }

  std::string content(Atom property) {
    Atom type = None;
    int format = 0;
    unsigned long count = 0, rest = 0;
    unsigned char *bytes = nullptr;
    std::string text;
    if (XGetWindowProperty(display(), window_, property, 0, kMostWords, False, AnyPropertyType,
                           &type, &format, &count, &rest, &bytes) == Success &&
        format == 8)
      text.assign(reinterpret_cast<const char *>(bytes), count);
    if (bytes != nullptr)
      XFree(bytes);
    return text;
  }

  std::unique_ptr<Display, void (*)(Display *)> display_;
  Window window_ = None;
};

} // namespace

std::vector<std::string> filesInUriList(std::string_view list) {
  std::vector<std::string> files;
  while (!list.empty()) {
    const std::size_t end = list.find_first_of("\r\n");
    std::string file = fileOf(list.substr(0, end));
    if (!file.empty())
      files.push_back(std::move(file));
    list.remove_prefix(end == std::string_view::npos ? list.size() : end + 1);
  }
  return files;
}

std::vector<std::string> draggedFiles() { return filesInUriList(Question().answer()); }

} // namespace imageposition
