#include "VisibleText.hpp"

#include <gtest/gtest.h>

#include <sstream>

namespace {

using imageposition::visible;
using imageposition::VisibleStream;

TEST(VisibleText, EscapesEachCharacterThatControlsATerminal) {
  const std::pair<const char *, const char *> kRows[] = {
      {"\x1b[2J", "\\x1b[2J"},
      {"a\r\n\tb", "a\\r\\n\\tb"},
      {"\x7F\xC2\x80\xC2\x9B\xC2\x9F", "\\x7f\\x80\\x9b\\x9f"},
      {"\xE2\x80\xA8\xE2\x80\xAA\xE2\x80\xAE", "\\u2028\\u202a\\u202e"},
      {"\xE2\x81\xA6\xE2\x81\xA9", "\\u2066\\u2069"},
      {"\x9B\xFF", "\xEF\xBF\xBD\xEF\xBF\xBD"}};
  for (const auto &[text, shown] : kRows)
    EXPECT_EQ(visible(text), shown);
  EXPECT_EQ(visible(std::string("a\0b", 3)), "a\\x00b");
}

TEST(VisibleText, LeavesAnyOtherStringUnchanged) {
  for (const char *text :
       {"", "Größe 100 × 200 mm", "文書 🖨", "\\x1b", "שלום\xE2\x80\x8F!", "\xC2\xA0"})
    EXPECT_EQ(visible(text), text);
  EXPECT_EQ(visible(visible("\x1b\n")), visible("\x1b\n"));
}

TEST(VisibleStream, EscapesTerminalControlsExceptNewlines) {
  std::ostringstream stream;
  {
    const VisibleStream shown(stream);
    stream << "a\x1b\nb\r" << '\n' << '\r' << 5 << "ü\n\n" << std::flush;
  }
  stream << '\r';
  EXPECT_EQ(stream.str(), "a\\x1b\nb\\r\n\\r5ü\n\n\r");
}

TEST(VisibleStream, FailsIfItsStreamFails) {
  std::ostream nowhere(nullptr);
  struct Full : std::streambuf {
  } full;
  nowhere.rdbuf(&full);
  const VisibleStream shown(nowhere);
  EXPECT_FALSE(nowhere << "a\n");
}

} // namespace
