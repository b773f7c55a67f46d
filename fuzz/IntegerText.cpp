// Integers in any UTF-16 and any bytes, compared with a second reading that is simple and slow.
#include "IntegerText.hpp"

#include "Check.hpp"
#include "Utf.hpp"

#include <cstring>
#include <string>
#include <vector>

using imageposition::readInteger;
using imageposition::writeInteger;
using imageposition::fuzz::check;
using imageposition::fuzz::checkSame;

namespace {

const std::u16string kWhiteSpace = u"\t\n\v\f\r \u0085\u00A0\u1680\u2000\u2001\u2002\u2003\u2004"
                                   u"\u2005\u2006\u2007\u2008\u2009\u200A\u2028\u2029\u202F\u205F"
                                   u"\u3000";

// Compares numbers as strings of digits, without arithmetic that could overflow.
std::string expectedText(const std::u16string &text) {
  std::size_t at = text.find_first_not_of(kWhiteSpace);
  if (at == std::u16string::npos)
    return "0";
  const bool negative = text[at] == u'-';
  if (negative || text[at] == u'+')
    ++at;
  std::string digits;
  for (; at < text.size() && std::u16string(u"0123456789").find(text[at]) != std::u16string::npos;
       ++at)
    if (!digits.empty() || text[at] != u'0')
      digits += static_cast<char>(text[at]);
  if (digits.empty())
    return "0";
  const std::string limit = negative ? "2147483648" : "2147483647";
  if (digits.size() > limit.size() || (digits.size() == limit.size() && digits > limit))
    digits = limit;
  return (negative ? "-" : "") + digits;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size) {
  std::u16string units(size / 2, u'\0');
  std::memcpy(units.data(), data, units.size() * 2);
  checkSame(writeInteger(readInteger(units)), expectedText(units), "UTF-16 is read correctly");

  const std::string bytes(reinterpret_cast<const char *>(data), size);
  checkSame(writeInteger(readInteger(bytes)), expectedText(imageposition::utf16FromUtf8(bytes)),
            "bytes read like the UTF-16 that they convert to");

  const std::string utf8 = imageposition::utf8FromUtf16(units);
  check(readInteger(utf8) == readInteger(units), "UTF-8 and UTF-16 read the same");
  check(imageposition::utf8FromUtf16(imageposition::utf16FromUtf8(utf8)) == utf8,
        "well-formed UTF-8 converts back byte for byte");
  check(readInteger(writeInteger(readInteger(units))) == readInteger(units),
        "a written integer reads back the same");
  return 0;
}
