#import "TextBridge.h"

#import "UncheckedString.h"

#include <gtest/gtest.h>

namespace imageposition {
namespace {

using test::uncheckedString;

NSString *units(std::u16string_view text) {
  return [[[NSString alloc] initWithCharacters:reinterpret_cast<const unichar *>(text.data())
                                        length:text.size()] autorelease];
}

const std::pair<const char *, const char16_t *> kTexts[] = {
    {"", u""},
    {"plain", u"plain"},
    {"gr\xC3\xBC\xC3\x9F", u"gr\u00FC\u00DF"},
    {"\xE5\x8D\xB0\xE5\x88\xB7", u"\u5370\u5237"},
    {"a\xF0\x9F\x96\xA8z", u"a\U0001F5A8z"},
    {"e\xCC\x81", u"e\u0301"}, // stays decomposed
};

TEST(TextBridge, StringsConvertBothWaysUnchanged) {
  for (const auto &[utf8, utf16] : kTexts) {
    EXPECT_EQ(toText(units(utf16)), utf8);
    EXPECT_EQ(toUtf16(units(utf16)), utf16);
    EXPECT_TRUE([toString(utf8) isEqualToString:units(utf16)]) << utf8;
    EXPECT_EQ([toString(utf8) length], std::u16string(utf16).size()) << utf8;
  }
}

TEST(TextBridge, NullIsEmpty) {
  EXPECT_EQ(toText(nil), "");
  EXPECT_EQ(toUtf16(nil), u"");
}

TEST(TextBridge, EmptyStringConvertsToAnEmptyString) {
  EXPECT_TRUE(toString("") != nil);
  EXPECT_EQ([toString("") length], 0u);
  EXPECT_EQ([toString(std::string_view()) length], 0u);
}

TEST(TextBridge, ZeroIsACharacterLikeAnyOther) {
  const std::string_view text("a\0b", 3);
  NSString *string = toString(text);
  ASSERT_EQ([string length], 3u);
  EXPECT_EQ([string characterAtIndex:1], 0);
  EXPECT_EQ(toText(string), text);
  EXPECT_EQ(toUtf16(string), std::u16string(u"a\0b", 3));
}

TEST(TextBridge, LoneSurrogateIsReplacedInUtf8AndStaysInUtf16) {
  for (char16_t surrogate :
       {char16_t(0xD800), char16_t(0xDBFF), char16_t(0xDC00), char16_t(0xDFFF)}) {
    NSString *string = uncheckedString({u'1', surrogate, u'2'});
    EXPECT_EQ(toText(string), "1\xEF\xBF\xBD"
                              "2");
    EXPECT_EQ(toUtf16(string), (std::u16string{u'1', surrogate, u'2'}));
    EXPECT_EQ(toText(uncheckedString({surrogate})), "\xEF\xBF\xBD");
  }
  EXPECT_EQ(toText(uncheckedString({char16_t(0xD83D), char16_t(0xDDA8)})), "\xF0\x9F\x96\xA8");
}

TEST(TextBridge, MalformedUtf8BecomesAStringWithReplacementCharacters) {
  for (const auto &[bytes, text] : std::initializer_list<std::pair<const char *, const char16_t *>>{
           {"a\xFF"
            "b",
            u"a\uFFFDb"},
           {"\xC3", u"\uFFFD"},
           {"\xE2\x82x", u"\uFFFD\uFFFDx"},
           {"\xED\xA0\x80", u"\uFFFD\uFFFD\uFFFD"}}) {
    NSString *string = toString(bytes);
    ASSERT_TRUE(string != nil) << testing::PrintToString(bytes);
    EXPECT_EQ(toUtf16(string), text) << testing::PrintToString(bytes);
  }
}

TEST(TextBridge, OnlyStringsConvertToOptionalStrings) {
  EXPECT_EQ(toOptionalText(@"5"), "5");
  EXPECT_EQ(toOptionalText(@""), "");
  EXPECT_EQ(toOptionalText([NSMutableString stringWithString:@"x"]), "x");
  EXPECT_EQ(toOptionalText(nil), std::nullopt);
  EXPECT_EQ(toOptionalText([NSNull null]), std::nullopt);
  EXPECT_EQ(toOptionalText([NSNumber numberWithInt:5]), std::nullopt);
  EXPECT_EQ(toOptionalText([NSArray arrayWithObject:@"5"]), std::nullopt);
  EXPECT_EQ(toOptionalText([NSData dataWithBytes:"5" length:1]), std::nullopt);
  EXPECT_EQ(toOptionalText([NSDate date]), std::nullopt);
}

TEST(TextBridge, LongStringsConvertCompletely) {
  std::string text;
  for (int i = 0; i < 5000; ++i)
    text += "0123456789\xC3\xBC";
  EXPECT_EQ(toText(toString(text)), text);
  EXPECT_EQ(toUtf16(toString(text)).size(), 55000u);
}

} // namespace
} // namespace imageposition
