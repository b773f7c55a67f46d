#include "TextEntries.hpp"

#include <algorithm>
#include <cctype>
#include <stdexcept>

namespace imageposition::test {
namespace {

class Reader {
public:
  Reader(std::string_view text, bool wordsNeedQuotes)
      : text_(text), wordsNeedQuotes_(wordsNeedQuotes) {}

  TextEntries entries() {
    TextEntries result;
    for (skip(); at_ < text_.size() && text_[at_] != '}'; skip()) {
      const std::string key = word();
      if (std::any_of(result.begin(), result.end(),
                      [&](auto &known) { return known.first == key; }))
        fail("the key \"" + key + "\" is duplicated");
      take('=');
      std::string value = word();
      result.emplace_back(key, std::move(value));
      take(';');
    }
    return result;
  }

  void take(char mark) {
    skip();
    if (at_ == text_.size() || text_[at_] != mark)
      fail(std::string("'") + mark + "' is missing");
    ++at_;
  }

  void end() {
    skip();
    if (at_ != text_.size())
      fail("something follows the last entry");
  }

private:
  [[noreturn]] void fail(const std::string &what) const {
    const auto line = 1 + std::count(text_.begin(), text_.begin() + static_cast<long>(at_), '\n');
    throw std::runtime_error("line " + std::to_string(line) + ": " + what);
  }

  void skip() {
    for (; at_ < text_.size(); ++at_) {
      if (text_.substr(at_, 2) == "/*") {
        const std::size_t close = text_.find("*/", at_ + 2);
        if (close == std::string_view::npos)
          fail("a comment has no end");
        at_ = close + 1;
      } else if (std::isspace(static_cast<unsigned char>(text_[at_])) == 0) {
        return;
      }
    }
  }

  std::string word() {
    skip();
    return at_ < text_.size() && text_[at_] == '"' ? quoted() : bare();
  }

  std::string bare() {
    const std::size_t start = at_;
    while (!wordsNeedQuotes_ && at_ < text_.size() &&
           std::isalnum(static_cast<unsigned char>(text_[at_])) != 0)
      ++at_;
    if (at_ == start)
      fail("a string is missing");
    return std::string(text_.substr(start, at_ - start));
  }

  std::string quoted() {
    std::string result;
    for (++at_; at_ < text_.size() && text_[at_] != '"' && text_[at_] != '\n'; ++at_) {
      if (text_[at_] != '\\') {
        result += text_[at_];
        continue;
      }
      const std::string_view escaped = text_.substr(++at_, 1);
      if (escaped != "\"" && escaped != "\\" && escaped != "n")
        fail("an unknown escape sequence");
      result += escaped == "n" ? '\n' : escaped.front();
    }
    if (at_ == text_.size() || text_[at_] != '"')
      fail("a string has no end");
    ++at_;
    return result;
  }

  std::string_view text_;
  bool wordsNeedQuotes_;
  std::size_t at_ = 0;
};

} // namespace

TextEntries stringsEntries(std::string_view utf8) {
  Reader reader(utf8, true);
  TextEntries entries = reader.entries();
  reader.end();
  return entries;
}

TextEntries braceEntries(std::string_view utf8) {
  Reader reader(utf8, false);
  reader.take('{');
  TextEntries entries = reader.entries();
  reader.take('}');
  reader.end();
  return entries;
}

} // namespace imageposition::test
