/// Escapes strings that could control a terminal.
#ifndef IMAGEPOSITION_CORE_TEXT_VISIBLETEXT_HPP
#define IMAGEPOSITION_CORE_TEXT_VISIBLETEXT_HPP

#include <ostream>
#include <streambuf>
#include <string>
#include <string_view>

namespace imageposition {

/// Returns the string on one line, with every character that could control a terminal as an escape:
/// "\n", "\x1b", "\x9b", "\u202e". These are the C0 and C1 controls, line separators, and
/// characters that change the direction of text. Invalid UTF-8 becomes U+FFFD. For names from
/// elsewhere: of printers, files and servers.
std::string visible(std::string_view text);

/// Escapes all output of a stream as `visible` does, except newlines, during its lifetime.
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
