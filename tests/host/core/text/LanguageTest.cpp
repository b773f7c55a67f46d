#include "Language.hpp"

#include <cups/cups.h>
#include <gmock/gmock.h>

#include <cstdlib>
#include <map>

using namespace imageposition;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

std::vector<std::string> wanted(const std::map<std::string, const char *> &variables) {
  return wantedLanguages([&](const char *name) -> const char * {
    const auto found = variables.find(name);
    return found == variables.end() ? nullptr : found->second;
  });
}

TEST(Language, ComesFromTheMostSpecificEnvironmentVariable) {
  EXPECT_THAT(wanted({}), IsEmpty());
  EXPECT_THAT(wanted({{"LANG", "ja_JP.UTF-8"}}), ElementsAre("ja"));
  EXPECT_THAT(wanted({{"LANG", "ja_JP.UTF-8"}, {"LC_MESSAGES", "de_AT"}}), ElementsAre("de"));
  EXPECT_THAT(wanted({{"LC_ALL", "fr_FR@euro"}, {"LC_MESSAGES", "de_AT"}}), ElementsAre("fr"));
  EXPECT_THAT(wanted({{"LC_ALL", ""}, {"LANG", "it_IT"}}), ElementsAre("it"));
  EXPECT_THAT(wanted({{"LANGUAGE", "es:zh_CN"}, {"LANG", "it_IT"}}),
              ElementsAre("es", "zh_CN", "it"));
  EXPECT_THAT(wanted({{"LANGUAGE", "de"}}), ElementsAre("de"));
  EXPECT_THAT(wanted({{"LANGUAGE", ":::de::"}, {"LANG", "C.UTF-8"}}), ElementsAre("de", "en"));
}

TEST(Language, IsEnglishInTheCLocale) {
  EXPECT_THAT(wanted({{"LC_ALL", "C"}, {"LANGUAGE", "de"}}), ElementsAre("en"));
  EXPECT_THAT(wanted({{"LANG", "POSIX"}}), ElementsAre("en"));
}

TEST(Language, IsConvertedToTheNameOfItsCatalogue) {
  const std::map<std::string, std::string> expected{{"de_DE.UTF-8", "de"},
                                                    {"de", "de"},
                                                    {"German", "de"},
                                                    {"Japanese", "ja"},
                                                    {"zh_CN.UTF-8", "zh_CN"},
                                                    {"zh", "zh_CN"},
                                                    {"zh-Hans", "zh_CN"},
                                                    {"zh_SG", "zh_CN"},
                                                    {"zh-Hans-CN", "zh_CN"},
                                                    {"zh_TW", "zh_TW"},
                                                    {"zh-Hant-HK", "zh_TW"},
                                                    {"SimplifiedChinese", "zh_CN"},
                                                    {"English", "en"},
                                                    {"C.UTF-8", "en"},
                                                    {"pt_BR", "pt"},
                                                    {"", ""},
                                                    {"_", ""}};
  for (const auto &[name, catalogue] : expected)
    EXPECT_EQ(catalogueName(name), catalogue) << name;
}

TEST(Language, IsTheFirstRequestedOneThatHasACatalogue) {
  EXPECT_EQ(chosenLanguage({"nl", "de", "fr"}, IMAGEPOSITION_CATALOGUES), "de");
  EXPECT_EQ(chosenLanguage({"en", "de"}, IMAGEPOSITION_CATALOGUES), "en");
  EXPECT_EQ(chosenLanguage({"nl"}, IMAGEPOSITION_CATALOGUES), "nl");
  EXPECT_EQ(chosenLanguage({}, IMAGEPOSITION_CATALOGUES), "en");
}

/// Runs in a separate process, because CUPS caches the language of the environment.
[[noreturn]] void exitWithCupsLanguageFor(const std::string &language) {
  setenv("LC_ALL", "fr_FR.UTF-8", 1);
  speak(language, IMAGEPOSITION_CATALOGUES);
  std::exit(cupsLangDefault()->language == language ? 0 : 1);
}

TEST(Language, IsAlsoTheLanguageOfCupsInAnyLocale) {
  for (const char *language : {"de", "ja", "zh_CN", "en"})
    EXPECT_EXIT(exitWithCupsLanguageFor(language), testing::ExitedWithCode(0), "") << language;
}

} // namespace
