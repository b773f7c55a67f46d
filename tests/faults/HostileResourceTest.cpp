// The real program with a bundle whose resources are well-formed but hostile.
#include "BrokenBundle.hpp"

#include <regex>

namespace {

using namespace imageposition::test;
using testing::HasSubstr;
using testing::Not;

/// A string as a ".strings" file and as an XML property list write it.
struct HostileText {
  const char *name;
  std::string strings;
  std::string xml;
};

std::string times(int count, const std::string &text) {
  std::string result;
  for (int i = 0; i < count; i++)
    result += text;
  return result;
}

const std::vector<HostileText> kHostile{
    {"formats", "%s%n%@%1000000d%*s {1} {min}{max}", "%s%n%@%1000000d%*s"},
    {"control characters", "a\\U0007b\\U001B[31mc\\U007Fd\\ne\\rf\\tg", "a&#10;b&#13;c&#9;d"},
    {"a null character", "before\\U0000behind", "before&#0;behind"},
    {"right-to-left marks",
     "\xE2\x80\xAE"
     "abc\xE2\x80\x8F\xE2\x80\xAD"
     "12\xD7\x90",
     "\xE2\x80\xAE"
     "abc"},
    {"combining marks", "e" + times(300, "\xCC\x81"), "e" + times(300, "\xCC\x81")},
    {"lone surrogates", "\\UD83D x \\UDE00", "\xED\xA0\xBD"},
    {"markup", "<b>&amp;</b>&lt;$(touch acted)`touch acted`", "&lt;b&gt;$(touch acted)"},
    {"ten thousand characters", times(10000, "W"), times(10000, "W")},
    {"a long line of words", times(2000, "word "), times(2000, "word ")},
};

class HostileResource : public BrokenBundle {
protected:
  /// Replaces each string of the file, by key.
  void writeStrings(const std::string &text) {
    std::string content = contentOf(resource("en.lproj/Localizable.strings"));
    const std::regex entry("(\"[^\"]+\" = \")[^\"]*(\";)");
    std::string result;
    std::sregex_iterator match(content.begin(), content.end(), entry), end;
    for (; match != end; ++match)
      result += match->str(1) + text + match->str(2) + "\n";
    std::ofstream(resource("en.lproj/Localizable.strings"), std::ios::binary) << result;
  }

  void writeDefinition(const std::string &key, const std::string &text) {
    const std::string path = resource("SettingInfo.plist");
    std::string content = contentOf(path);
    const std::string mark = "<key>" + key + "</key>\n\t\t<string>";
    std::size_t at = 0;
    int count = 0;
    while ((at = content.find(mark, at)) != std::string::npos) {
      const std::size_t from = at + mark.size();
      content.replace(from, content.find("</string>", from) - from, text);
      at = from;
      count++;
    }
    ASSERT_EQ(count, 4) << key;
    std::ofstream(path, std::ios::binary) << content;
  }
};

TEST_F(HostileResource, ATranslationIsOnlyEverShown) {
  for (const HostileText &text : kHostile) {
    SCOPED_TRACE(text.name);
    restore();
    writeStrings(text.strings);
    const auto result = use({"LANGUAGE=en"});
    expectSafe(result);
    EXPECT_EQ(result.status, kDone) << testing::PrintToString(result).substr(0, 2000);
    EXPECT_THAT(contentOf(ticket), HasSubstr("\"LeftRightMargin\": \"9\""));
  }
}

TEST_F(HostileResource, ATranslationIsOnlyEverShownInTheWindowToo) {
  for (const HostileText &text : kHostile) {
    SCOPED_TRACE(text.name);
    restore();
    writeStrings(text.strings);
    open("duplex-shift.ppd", {"--plugin", bundle}, {"LANGUAGE=en"});
    type("-3");
    press({"Return"});
    EXPECT_EQ(ended().status, kDone) << testing::PrintToString(ended());
    EXPECT_EQ(printed().at("LeftRightMargin"), "-3");
  }
}

TEST_F(HostileResource, ADefinitionIsReadOrRejected) {
  for (const char *key : {"SettingName", "TicketKey", "SummaryInfoName", "Range",
                          "RangeLabelWording", "DefaultValue"}) {
    for (const HostileText &text : kHostile) {
      SCOPED_TRACE(std::string(key) + ": " + text.name);
      restore();
      writeDefinition(key, text.xml);
      expectSafe(use({"LANGUAGE=en"}));
    }
  }
}

TEST_F(HostileResource, ATranslationIsNotAFormatString) {
  const std::string text = kHostile.front().strings;
  writeStrings(text);
  EXPECT_THAT(use({"LANGUAGE=en"}).output, HasSubstr(text));
}

// Readers of the file would take a separate line as a separate option.
TEST_F(HostileResource, ATicketKeyCannotAddAnotherOption) {
  writeDefinition("TicketKey", "a=b&#10;Injected=yes");
  expectSafe(use({"LANGUAGE=en"}));
  EXPECT_THAT(contentOf(folder.path("job.options")), Not(HasSubstr("\nInjected=")));
  EXPECT_THAT(contentOf(folder.path("job.options")), Not(HasSubstr(" Injected=")));
}

TEST_F(HostileResource, ARangeOfAMegabyteIsReadOrRejected) {
  for (const std::string &range :
       {times(500000, "1") + ":" + times(500000, "2"), times(1000000, ":"), times(1000000, "-"),
        "-5:" + times(1000000, " ") + "5", times(1000000, "x")}) {
    SCOPED_TRACE(range.substr(0, 10));
    restore();
    writeDefinition("Range", range);
    expectSafe(use({"LANGUAGE=en"}));
    restore();
    writeDefinition("RangeLabelWording", range + ":{max}:LeftRightRange");
    expectSafe(use({"LANGUAGE=en"}));
  }
}

/// Tables larger than any driver's.
class EnormousTable : public HostileResource {
protected:
  void writeTable(const std::string &name, int count,
                  const std::function<void(std::ostream &, int)> &entry) {
    std::ofstream file(resource(name), std::ios::binary);
    file << "{";
    for (int i = 0; i < count; i++) {
      file << '"' << i << "\"=";
      entry(file, i);
      file << ";\n";
    }
    file << "}\n";
  }
  static void rule(std::ostream &file, int index) {
    file << "{ConditionType=PPD;ConditionPattern=AdjustDuplexPositionSupport;ConditionValue=true;"
            "ActionObj="
         << (index % 2 == 0 ? "FrontLRM" : "BackTBM")
         << ";ActionPattern=Range;ActionValue=\"-100:100\";}";
  }
};

TEST_F(EnormousTable, OfRulesIsUsed) {
  writeTable("ConstraintInfo.plist", 1000000, rule);
  const auto result = use({"LANGUAGE=en"}, 300);
  expectSafe(result);
  EXPECT_EQ(result.status, kDone) << testing::PrintToString(result);
}

TEST_F(EnormousTable, OfInvalidRulesIsIgnored) {
  writeTable("ConstraintInfo.plist", 200000, [](std::ostream &file, int) { file << "x"; });
  const auto result = use({"LANGUAGE=en"}, 300);
  expectSafe(result);
  EXPECT_EQ(result.status, kDone) << testing::PrintToString(result);
}

TEST_F(EnormousTable, OfDefinitionsIsIgnored) {
  writeTable("SettingInfo.plist", 200000,
             [](std::ostream &file, int) { file << "{SettingName=x;}"; });
  expectSafe(use({"LANGUAGE=en"}, 300));
}

TEST_F(EnormousTable, OfStringsIsUsed) {
  std::ofstream file(resource("en.lproj/Localizable.strings"), std::ios::binary);
  for (int i = 0; i < 200000; i++)
    file << "\"key" << i << "\"=\"x\";\n";
  file.close();
  const auto result = use({"LANGUAGE=en"}, 300);
  expectSafe(result);
  EXPECT_EQ(result.status, kDone) << testing::PrintToString(result);
}

} // namespace
