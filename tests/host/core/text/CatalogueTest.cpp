#include "Mnemonic.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <fstream>
#include <map>
#include <set>
#include <string>
#include <utility>
#include <vector>

using namespace imageposition;

namespace {

const char *const kLanguages[] = {"de", "es", "fr", "it", "ja", "zh_CN"};

/// A text with its translations, of which there are several for a text that goes with a number.
struct Entry {
  std::string english;
  std::vector<std::string> translations;
};

/// What stands between a line's first and last quotation mark.
std::string betweenQuotes(const std::string &line) {
  const std::size_t first = line.find('"');
  return line.substr(first + 1, line.rfind('"') - first - 1);
}

/// A catalogue as msgmerge writes it: an entry a paragraph. Its description is left out.
std::vector<Entry> readCatalogue(const std::string &language) {
  std::ifstream file(std::string(IMAGEPOSITION_PO) + "/" + language + ".po");
  std::vector<Entry> entries(1);
  std::string *last = nullptr;
  for (std::string line; std::getline(file, line);) {
    if (line.empty())
      entries.emplace_back();
    else if (line.rfind("msgid ", 0) == 0)
      *(last = &entries.back().english) = betweenQuotes(line);
    else if (line.rfind("msgstr", 0) == 0)
      *(last = &entries.back().translations.emplace_back()) = betweenQuotes(line);
    else if (line[0] == '"' && last != nullptr)
      *last += betweenQuotes(line);
    else
      last = nullptr;
  }
  entries.erase(entries.begin());
  return entries;
}

std::set<std::string> marksOf(const std::string &text) {
  std::set<std::string> marks;
  for (std::size_t at = text.find('{'); at != std::string::npos; at = text.find('{', at + 1))
    marks.insert(text.substr(at, 3));
  return marks;
}

TEST(Catalogue, HasTheMarksOfEachTextInItsTranslation) {
  for (const char *language : kLanguages) {
    const auto entries = readCatalogue(language);
    EXPECT_GT(entries.size(), 200U) << language;
    for (const Entry &entry : entries)
      for (const std::string &translation : entry.translations)
        EXPECT_EQ(marksOf(translation), marksOf(entry.english))
            << language << ": " << entry.english;
  }
}

TEST(Catalogue, TranslatesEveryText) {
  for (const char *language : kLanguages)
    for (const Entry &entry : readCatalogue(language))
      for (const std::string &translation : entry.translations)
        EXPECT_FALSE(translation.empty()) << language << ": " << entry.english;
}

int windowOf(const std::string &english) {
  if (english == "&Unit:")
    return 2;
  return english == "&User name:" || english == "&Password:" ? 1 : 0;
}

TEST(Catalogue, MarksAKeyWhereEnglishDoesAndNoneTwiceInAWindow) {
  for (const char *language : kLanguages) {
    std::map<std::pair<int, std::string>, std::string> taken; // by window and key
    for (const Entry &entry : readCatalogue(language)) {
      const bool hasKey = !readMnemonic(entry.english).key.empty();
      const std::string key = readMnemonic(entry.translations.at(0)).key;
      EXPECT_EQ(!key.empty(), hasKey) << language << ": " << entry.translations[0];
      if (!hasKey)
        continue;
      std::string small = key;
      std::transform(small.begin(), small.end(), small.begin(),
                     [](unsigned char letter) { return std::tolower(letter); });
      const auto [other, isNew] =
          taken.emplace(std::pair(windowOf(entry.english), small), entry.english);
      EXPECT_TRUE(isNew) << language << ": " << key << " for " << entry.english << " and "
                         << other->second;
    }
  }
}

TEST(Catalogue, EndsASentenceAsASentence) {
  for (const char *language : kLanguages)
    for (const Entry &entry : readCatalogue(language)) {
      const std::string &english = entry.english;
      const std::string &translation = entry.translations.at(0);
      if (english.size() > 20 && english.back() == '.' && english[english.size() - 2] != '.') {
        EXPECT_TRUE(translation.back() == '.' || translation.rfind("。") == translation.size() - 3)
            << language << ": " << translation;
      }
    }
}

} // namespace
