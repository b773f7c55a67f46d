#include "OptionText.hpp"

#include "ExitCode.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using imageposition::ExitCode;
using imageposition::Failure;
using imageposition::isOptionText;
using imageposition::PrintSettingsStore;
using imageposition::readOptionArgument;
using imageposition::writeOptionArgument;
using imageposition::writeOptionText;
using testing::StrEq;

PrintSettingsStore parsedByCups(const std::string &text) {
  PrintSettingsStore store;
  cups_option_t *options = nullptr;
  const int count = cupsParseOptions(text.c_str(), 0, &options);
  for (int i = 0; i < count; i++)
    store.set(options[i].name, options[i].value);
  cupsFreeOptions(count, options);
  return store;
}

TEST(OptionText, IsOneLineForEachSetting) {
  PrintSettingsStore store;
  store.set("LeftRightMargin", "-3");
  store.set("Duplex", "None");
  EXPECT_EQ(writeOptionText(store), "Duplex=None\nLeftRightMargin=-3\n");
}

TEST(OptionText, IsReadBackByCupsForAnyValues) {
  const char *const values[] = {"plain",
                                "",
                                " ",
                                "two words",
                                "a,b",
                                ",",
                                "trailing\\",
                                "\"",
                                "'",
                                "it's \"so\"",
                                "{a=b c=d}",
                                "}{",
                                "line\nbreak",
                                "tab\there",
                                "back\\slash \\\" both",
                                "a=b",
                                "\xE5\xB7\xA6\xE5\x8F\xB3",
                                "-3",
                                "no"};
  PrintSettingsStore all;
  int number = 0;
  for (const char *value : values) {
    SCOPED_TRACE(value);
    PrintSettingsStore store;
    store.set("first", "1");
    store.set("key", value);
    store.set("nolast", "2");
    const PrintSettingsStore read = parsedByCups(writeOptionText(store));
    EXPECT_EQ(read.optionCount(), 3);
    EXPECT_THAT(read.get("key"), StrEq(value));
    EXPECT_THAT(read.get("nolast"), StrEq("2"));
    all.set("key" + std::to_string(number++), value);
  }
  EXPECT_EQ(writeOptionText(parsedByCups(writeOptionText(all))), writeOptionText(all));
}

TEST(OptionText, QuotesCharactersThatAShellInterprets) {
  EXPECT_EQ(writeOptionArgument("A", "$(x)"), "A=\"\\$(x)\"");
  EXPECT_EQ(writeOptionArgument("A", "`x`"), "A=\"\\`x\\`\"");
  for (const char *value : {"a;b", "a&b", "a|b", "a>b", "~", "*", "a#b", "!"})
    EXPECT_EQ(writeOptionArgument("A", value), "A=\"" + std::string(value) + "\"");
  for (const char *value : {"-3", "Custom.10.5mm", "a_b", "12:30", "50%", "a=b", "\xE5\xB7\xA6"})
    EXPECT_EQ(writeOptionArgument("A", value), "A=" + std::string(value));
}

TEST(OptionText, IsRecognised) {
  PrintSettingsStore store;
  EXPECT_TRUE(isOptionText(writeOptionText(store)));
  int number = 0;
  for (const char *value :
       {"", "-3", "a b", "line\nbreak=\n", "\"", "\\", "\\\"", "$x", "`", "{a=b}"})
    store.set("key" + std::to_string(number++), value);
  EXPECT_TRUE(isOptionText(writeOptionText(store)));
}

TEST(OptionText, OtherTextIsNotRecognised) {
  for (const char *text :
       {"\n", "a", "a\n", "a=1", "=1\n", "a=\n", "a=\"1\n", "a=\"1\"2\n", "a=1 b=2\n", "a=1\n\n",
        "# a=1\n", "export a=1\n", "a=$x\n", "a=\"\\", "a=1\nb", "a;b=1\n"})
    EXPECT_FALSE(isOptionText(text)) << text;
}

TEST(OptionText, AnArgumentIsReadLikeLpDoes) {
  PrintSettingsStore store;
  readOptionArgument("Duplex=None PageSize=A4 collate nofit-to-page job-name='a b'", store);
  EXPECT_THAT(store.get("Duplex"), StrEq("None"));
  EXPECT_THAT(store.get("PageSize"), StrEq("A4"));
  EXPECT_THAT(store.get("collate"), StrEq("true"));
  EXPECT_THAT(store.get("fit-to-page"), StrEq("false"));
  EXPECT_THAT(store.get("job-name"), StrEq("a b"));
}

TEST(OptionText, AnInvalidOptionIsRefused) {
  for (const char *argument : {"", " ", "=", "=value", "na\xC3\xA4me=1", "Duplex=\xFF"}) {
    SCOPED_TRACE(argument);
    PrintSettingsStore store;
    try {
      readOptionArgument(argument, store);
      ADD_FAILURE() << "was accepted";
    } catch (const Failure &failure) {
      EXPECT_EQ(failure.code(), ExitCode::Usage);
    }
  }
}

TEST(OptionText, AnOptionDoesNotChangeALockedSetting) {
  PrintSettingsStore store;
  store.set("Duplex", "None", true);
  EXPECT_THROW(readOptionArgument("Duplex=DuplexTumble", store), Failure);
  EXPECT_THAT(store.get("Duplex"), StrEq("None"));
}

} // namespace
