// Which of the bundle's languages a user gets, by the system's name for the language.
#import "ResourceFiles.h"

#import "TestBundle.h"
#import "Text.h"

#include <gtest/gtest.h>

using namespace imageposition::test;

namespace {

class LanguageLookup : public testing::TestWithParam<std::pair<std::string, std::string>> {
protected:
  void SetUp() override {
    languagesBefore_ = [[NSUserDefaults userLanguages] retain];
    [NSUserDefaults setUserLanguages:[NSArray arrayWithObject:nsString(GetParam().first)]];
    for (const std::string &language : languages())
      bundle_.copy(resourcePath(language + ".lproj"));
  }

  void TearDown() override {
    [NSUserDefaults setUserLanguages:languagesBefore_];
    [languagesBefore_ release];
  }

  TestBundle bundle_;

private:
  NSArray *languagesBefore_ = nil;
};

} // namespace

INSTANTIATE_TEST_SUITE_P(
    Names, LanguageLookup,
    testing::Values(std::pair("English", "en"), std::pair("German", "de"), std::pair("de", "de"),
                    std::pair("French", "fr"), std::pair("Spanish", "es"),
                    std::pair("Italian", "it"), std::pair("Japanese", "ja"), std::pair("ja", "ja"),
                    std::pair("zh_CN", "zh-Hans"), std::pair("zh-Hans", "zh-Hans"),
                    std::pair("SimplifiedChinese", "zh-Hans"), std::pair("Klingon", "en")));

TEST_P(LanguageLookup, FindsTheStrings) {
  EXPECT_EQ(cxxString([bundle_.bundle() localizedStringForKey:@"PluginName" value:nil table:nil]),
            localizedStrings(GetParam().second).at("PluginName"));
}
