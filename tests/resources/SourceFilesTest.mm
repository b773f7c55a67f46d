// Strict checks of the bundle's data files, for errors that Foundation's readers ignore.
#import "PropertyListForm.h"
#import "ResourceFiles.h"
#include "TextEntries.hpp"

#import "Text.h"

#include <filesystem>
#include <gmock/gmock.h>
#include <regex>
#include <set>

using namespace imageposition::test;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

namespace fs = std::filesystem;

const std::string kPlugin = IMAGEPOSITION_PLUGIN_FILES;

/// All files named as property lists, including a template whose version CMake fills in.
std::vector<std::string> propertyLists() {
  std::vector<std::string> paths;
  for (const char *folder : {IMAGEPOSITION_RESOURCES, IMAGEPOSITION_PLUGIN_FILES})
    for (const fs::directory_entry &entry : fs::recursive_directory_iterator(folder))
      if (entry.path().filename().string().find(".plist") != std::string::npos)
        paths.push_back(entry.path().string());
  return paths;
}

bool isXml(const std::string &bytes) { return bytes.compare(0, 5, "<?xml") == 0; }

std::string faultOf(TextEntries (*read)(std::string_view), std::string_view text) {
  try {
    read(text);
  } catch (const std::runtime_error &fault) {
    return fault.what();
  }
  return {};
}

const std::string kBeginning =
    fileBytes(resourcePath("SettingInfo.plist"))
        .substr(0, fileBytes(resourcePath("SettingInfo.plist")).find("<plist version=\"1.0\">\n") +
                       sizeof "<plist version=\"1.0\">\n" - 1);

std::vector<std::string> faultsOf(const std::string &content) {
  return propertyListFaults(kBeginning + content + "</plist>\n");
}

NSDictionary *platformReading(const std::string &bytes) {
  return [nsString(bytes) propertyListFromStringsFileFormat];
}

/// The placeholders in a string (%@, %1$d, {min}), in an order that does not depend on the
/// language.
std::multiset<std::string> places(const std::string &text) {
  static const std::regex kPlace(R"(%[0-9.$#+ -]*[A-Za-z@%]|\{[^}]*\})");
  std::multiset<std::string> found;
  for (std::sregex_iterator match(text.begin(), text.end(), kPlace), end; match != end; ++match)
    found.insert(match->str());
  return found;
}

} // namespace

TEST(PropertyListFiles, AreStrictlyValidAndHaveNoDuplicateKeys) {
  const std::vector<std::string> files = propertyLists();
  EXPECT_GE(files.size(), 4u);
  for (const std::string &file : files) {
    const std::string bytes = fileBytes(file);
    if (isXml(bytes))
      EXPECT_THAT(propertyListFaults(bytes), IsEmpty()) << file;
    else
      EXPECT_EQ(faultOf(braceEntries, bytes), "") << file;
  }
}

TEST(PropertyListFiles, EveryFaultIsReported) {
  EXPECT_THAT(faultsOf("<dict><key>a</key><string>1</string></dict>"), IsEmpty());
  EXPECT_THAT(propertyListFaults("<plist version=\"1.0\">\n<dict/>\n</plist>\n"),
              ElementsAre("it does not begin like a property list"));
  for (const char *content :
       {"<dict><key>a</key>", "<dict><key>a</key><string>1</dict>", "<dict>&nothing;</dict>", ""})
    EXPECT_FALSE(faultsOf(content).empty()) << content;
  EXPECT_THAT(faultsOf("<dict><key>a</key><string>1</string><key>a</key><string>2</string></dict>"),
              ElementsAre("the key \"a\" is duplicated in one dictionary"));
  EXPECT_THAT(faultsOf("<dict><key>a</key><strnig>1</strnig></dict>"),
              testing::Contains("<strnig> is not a value"));
  EXPECT_THAT(faultsOf("<dict><key>a</key><string>1</string>b</dict>"), testing::SizeIs(1));
  EXPECT_THAT(faultsOf("<dict><key>a</key><string x=\"y\">1</string></dict>"),
              ElementsAre("<string> has an attribute"));
  EXPECT_FALSE(faultsOf("<dict><key>a</key></dict>").empty());
  EXPECT_FALSE(faultsOf("<dict><string>1</string><key>a</key></dict>").empty());
  EXPECT_FALSE(faultsOf("<dict/><dict/>").empty());
}

TEST(TextFiles, EveryFaultIsReportedWithItsLine) {
  EXPECT_EQ(faultOf(stringsEntries, "/* a */\n\"A\" = \"b \\\"c\\\" \\\\ \\n\";\n"), "");
  for (const auto &[text, fault] : std::vector<std::pair<const char *, const char *>>{
           {"\"A\" = \"b\";\n\"A\" = \"c\";", "line 2: the key \"A\" is duplicated"},
           {"\"A\" = \"b\";\"A\"=\"c\";", "line 1: the key \"A\" is duplicated"},
           {"\"A\" = \"b\"\n\"B\" = \"c\";", "line 2: ';' is missing"},
           {"\"A\" \"b\";", "line 1: '=' is missing"},
           {"A = \"b\";", "line 1: a string is missing"},
           {"\n\"A\" = \"b;\n", "line 2: a string has no end"},
           {"\"A\" = \"\\q\";", "line 1: an unknown escape sequence"},
           {"/* \"A\" = \"b\";", "line 1: a comment has no end"},
           {"\"A\" = \"b\"; }", "line 1: something follows the last entry"}})
    EXPECT_EQ(faultOf(stringsEntries, text), fault) << text;
  EXPECT_EQ(faultOf(braceEntries, "{ A = b; \"A\" = c; }"), "line 1: the key \"A\" is duplicated");
  EXPECT_EQ(faultOf(braceEntries, "{ A = b; "), "line 1: '}' is missing");
}

TEST(StringsFiles, StrictReadingMatchesFoundations) {
  for (const std::string &language : languages()) {
    const auto entries = localizedStrings(language);
    NSDictionary *read =
        platformReading(fileBytes(resourcePath(language + ".lproj/Localizable.strings")).substr(3));
    EXPECT_EQ([read count], entries.size()) << language;
    for (const auto &[key, text] : entries)
      EXPECT_EQ(cxxString([read objectForKey:nsString(key)]), text) << language << " " << key;
  }
}

TEST(StringsFiles, EachStringHasThePlaceholdersOfTheEnglishOne) {
  EXPECT_EQ(places("50 %: %@ of %1$d, {min}"), (std::multiset<std::string>{"%@", "%1$d", "{min}"}));
  for (const std::string &language : languages())
    for (const auto &[key, text] : localizedStrings("en"))
      EXPECT_EQ(places(localizedStrings(language).at(key)), places(text)) << language << " " << key;
}

// One for GNUstep and one for macOS.
TEST(BundleDescriptions, DescribeTheSameBundle) {
  const TextEntries list = braceEntries(fileBytes(kPlugin + "/Info-gnustep.plist"));
  const std::map<std::string, std::string> here(list.begin(), list.end());
  std::string bytes = fileBytes(kPlugin + "/Info.plist.in");
  bytes = std::regex_replace(bytes, std::regex(R"(\$\{PROJECT_VERSION\})"), IMAGEPOSITION_VERSION);
  NSData *data = [NSData dataWithBytes:bytes.data() length:bytes.size()];
  NSDictionary *there = [NSPropertyListSerialization propertyListWithData:data
                                                                  options:NSPropertyListImmutable
                                                                   format:NULL
                                                                    error:NULL];
  const std::map<std::string, NSString *> keys = {{"NSExecutable", @"CFBundleExecutable"},
                                                  {"NSPrincipalClass", @"NSPrincipalClass"},
                                                  {"CFBundleIdentifier", @"CFBundleIdentifier"},
                                                  {"CFBundleName", @"CFBundleName"},
                                                  {"CFBundleVersion", @"CFBundleVersion"}};
  for (const auto &[key, value] : here) {
    ASSERT_EQ(keys.count(key), 1u) << key;
    EXPECT_EQ(value, cxxString([there objectForKey:keys.at(key)])) << key;
  }
  EXPECT_EQ(here.size(), keys.size());
  EXPECT_NE(NSClassFromString(nsString(here.at("NSPrincipalClass"))), Nil);
}
