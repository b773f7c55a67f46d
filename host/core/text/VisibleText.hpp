/// Text that a terminal shows and does not obey.
#ifndef IMAGEPOSITION_HOST_VISIBLETEXT_HPP
#define IMAGEPOSITION_HOST_VISIBLETEXT_HPP

#include <ostream>
#include <streambuf>
#include <string>
#include <string_view>

namespace imageposition {

/// The text on one line, with the characters that steer a terminal as escapes: "\n", "\x1b",
/// "\x9b", "\u202e". These are C0 and C1 controls, line separators, and what turns the direction of
/// the text after it. Bytes that are no UTF-8 become U+FFFD. Meant for names that others chose:
/// printers', files', servers'.
std::string visible(std::string_view text);

/// While it lives, a stream writes what it is given as `visible` does, but for the ends of lines.
class VisibleStream : private std::streambuf {
public:
  explicit VisibleStream(std::ostream &stream);
  ~VisibleStream() override;
  VisibleStream(const VisibleStream &) = delete;
  VisibleStream &operator=(const VisibleStream &) = delete;

private:
  int_type overflow(int_type character) override;
  std::streamsize xsputn(const char *text, std::streamsize size) override;
  int sync() override;

  std::ostream &stream_;
  std::streambuf *const target_;
};

} // namespace imageposition

#endif
