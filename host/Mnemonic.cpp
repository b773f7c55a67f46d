#include "host/Mnemonic.hpp"

namespace imageposition {

namespace {

/// Bytes of the character that begins there; 0 where no key can be: at the end, at a blank, at
/// another ampersand or other ASCII punctuation.
std::size_t keyLength(std::string_view text) {
  if (text.empty())
    return 0;
  const auto lead = static_cast<unsigned char>(text.front());
  if (lead < 0x80) {
    const bool isKey = (lead >= '0' && lead <= '9') || (lead >= 'A' && lead <= 'Z') ||
                       (lead >= 'a' && lead <= 'z');
    return isKey ? 1 : 0;
  }
  const std::size_t length = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : lead >= 0xC2 ? 2 : 0;
  return length <= text.size() ? length : 0;
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
    if (length == 0) { // of two ampersands the second is passed over
      mnemonic.text += '&';
      marked.remove_prefix(!marked.empty() && marked.front() == '&' ? 1 : 0);
    } else if (mnemonic.key.empty()) {
      mnemonic.key = marked.substr(0, length);
      mnemonic.keyAt = mnemonic.text.size();
    }
  }
  return mnemonic;
}

} // namespace imageposition
