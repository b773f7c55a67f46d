#include "Mnemonic.hpp"

#include "Utf.hpp"

#include <algorithm>
#include <cctype>

namespace imageposition {

namespace {

/// Length in bytes of the first character if it can be a key; otherwise 0: at the end, and for
/// blanks, ASCII punctuation and invalid UTF-8.
std::size_t keyLength(std::string_view text) {
  const std::size_t length = firstCharacterLength(text);
  if (length != 1)
    return length;
  const char c = text.front();
  const bool isKey = (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
  return isKey ? 1 : 0;
}

} // namespace

MnemonicText readMnemonic(std::string_view marked) {
  MnemonicText mnemonic;
  while (!marked.empty()) {
    if (marked.front() != '&') {
      mnemonic.text += marked.front();
      marked.remove_prefix(1);
      continue;
    }
    marked.remove_prefix(1);
    const std::size_t length = keyLength(marked);
    if (length == 0) { // skip the second of two ampersands
      mnemonic.text += '&';
      marked.remove_prefix(!marked.empty() && marked.front() == '&' ? 1 : 0);
    } else if (mnemonic.key.empty()) {
      mnemonic.key = marked.substr(0, length);
      mnemonic.keyAt = mnemonic.text.size();
    }
  }
  return mnemonic;
}

std::string withKey(std::string_view text, std::string &used) {
  const auto isFree = [&](char c) {
    return std::isalnum(static_cast<unsigned char>(c)) != 0 && static_cast<signed char>(c) > 0 &&
           std::none_of(used.begin(), used.end(), [=](char other) {
             return std::tolower(static_cast<unsigned char>(other)) ==
                    std::tolower(static_cast<unsigned char>(c));
           });
  };
  const auto key = std::find_if(text.begin(), text.end(), isFree);
  if (key != text.end()) {
    used += *key;
    const auto at = static_cast<std::size_t>(key - text.begin());
    return withoutKey(text.substr(0, at)) + '&' + withoutKey(text.substr(at));
  }
  for (const char digit : std::string_view("123456789"))
    if (isFree(digit)) {
      used += digit;
      return withoutKey(text) + "(&" + digit + ')';
    }
  return withoutKey(text);
}

std::string withoutKey(std::string_view text) {
  std::string result;
  for (const char c : text)
    result += c == '&' ? std::string("&&") : std::string(1, c);
  return result;
}

} // namespace imageposition
