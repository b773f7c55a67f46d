// Mnemonics in control labels, compared with a reading by characters instead of bytes.
#include "Mnemonic.hpp"

#include "Check.hpp"
#include "Utf.hpp"

#include <vector>

using imageposition::MnemonicText;
using imageposition::readMnemonic;
using imageposition::utf16FromUtf8;
using imageposition::utf8FromUtf16;
using imageposition::fuzz::check;
using imageposition::fuzz::checkSame;

namespace {

/// One UTF-8 string for each character.
std::vector<std::string> charactersIn(const std::string &text) {
  std::vector<std::string> characters;
  const std::u16string units = utf16FromUtf8(text);
  for (std::size_t at = 0; at < units.size();) {
    const std::size_t length = units[at] >= 0xD800 && units[at] <= 0xDBFF ? 2 : 1;
    characters.push_back(utf8FromUtf16(units.substr(at, length)));
    at += length;
  }
  return characters;
}

bool isKey(const std::string &character) {
  return character.size() > 1 ||
         std::string("0123456789abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ")
                 .find(character) != std::string::npos;
}

MnemonicText expectedText(const std::string &marked) {
  const auto characters = charactersIn(marked);
  MnemonicText expected;
  for (std::size_t i = 0; i < characters.size(); ++i) {
    const bool hasNext = i + 1 < characters.size();
    if (characters[i] == "&" && hasNext && isKey(characters[i + 1])) {
      if (expected.key.empty()) {
        expected.key = characters[i + 1];
        expected.keyAt = expected.text.size();
      }
    } else {
      expected.text += characters[i];
      i += characters[i] == "&" && hasNext && characters[i + 1] == "&" ? 1 : 0;
    }
  }
  return expected;
}

void checkSameText(const MnemonicText &actual, const MnemonicText &expected) {
  checkSame(actual.text, expected.text, "the label without markers");
  checkSame(actual.key, expected.key, "the first marked character");
  check(actual.keyAt == expected.keyAt, "the position of the key");
}

void checkMarked(const std::string &text, std::string used) {
  const std::string before = used;
  const MnemonicText marked = readMnemonic(imageposition::withKey(text, used));
  check(used == before + marked.key, "the key is added to the used ones");
  check(marked.key.empty() || before.find(marked.key) == std::string::npos,
        "the key was not used before");
  const bool isAdded = marked.text != text;
  checkSame(marked.text, isAdded ? text + "(" + marked.key + ")" : text,
            "only a digit in parentheses may be added");
  checkSameText(readMnemonic(imageposition::withoutKey(text)), {text, "", 0});
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size) {
  const std::string bytes(reinterpret_cast<const char *>(data), size);
  const MnemonicText ofBytes = readMnemonic(bytes);
  checkSame(ofBytes.text.substr(ofBytes.keyAt, ofBytes.key.size()), ofBytes.key,
            "the key is in the label, whatever its bytes");
  const std::string text = utf8FromUtf16(utf16FromUtf8(bytes));
  checkSameText(readMnemonic(text), expectedText(text));
  checkMarked(bytes, "");
  checkMarked(bytes, "aB1");
  return 0;
}
