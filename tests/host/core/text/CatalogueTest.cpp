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

/// A string with its translations; several if it has plural forms.
struct Entry {
  std::string english;
  std::string plural; // in English; empty without plural forms
  std::vector<std::string> translations;
};

/// The part of a line between its first and last quotation mark.
std::string betweenQuotes(const std::string &line) {
  const std::size_t first = line.find('"');
  return line.substr(first + 1, line.rfind('"') - first - 1);
}

/// Reads a catalogue as msgmerge writes it, one paragraph per entry. Skips the header.
std::vector<Entry> readCatalogue(const std::string &language) {
  std::ifstream file(std::string(IMAGEPOSITION_PO) + "/" + language + ".po");
  std::vector<Entry> entries(1);
  std::string *last = nullptr;
  for (std::string line; std::getline(file, line);) {
    if (line.empty())
      entries.emplace_back();
    else if (line.rfind("msgid ", 0) == 0)
      *(last = &entries.back().english) = betweenQuotes(line);
    else if (line.rfind("msgid_plural ", 0) == 0)
      *(last = &entries.back().plural) = betweenQuotes(line);
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

std::set<std::string> placeholdersIn(const std::string &text) {
  std::set<std::string> placeholders;
  for (std::size_t at = text.find('{'); at != std::string::npos; at = text.find('{', at + 1))
    placeholders.insert(text.substr(at, 3));
  return placeholders;
}

TEST(Catalogue, KeepsThePlaceholdersOfEachStringInItsTranslations) {
  for (const char *language : kLanguages) {
    const auto entries = readCatalogue(language);
    EXPECT_GT(entries.size(), 200U) << language;
    for (const Entry &entry : entries)
      for (const std::string &translation : entry.translations)
        EXPECT_TRUE(
            placeholdersIn(translation) == placeholdersIn(entry.english) ||
            (!entry.plural.empty() && placeholdersIn(translation) == placeholdersIn(entry.plural)))
            << language << ": " << entry.english;
  }
}

TEST(Catalogue, TranslatesEveryString) {
  for (const char *language : kLanguages)
    for (const Entry &entry : readCatalogue(language))
      for (const std::string &translation : entry.translations)
        EXPECT_FALSE(translation.empty()) << language << ": " << entry.english;
}

int windowOf(const std::string &english) {
  if (english == "&File:")
    return 3;
  if (english == "&Unit:")
    return 2;
  return english == "&User name:" || english == "&Password:" ? 1 : 0;
}

TEST(Catalogue, HasMnemonicsWhereEnglishHasThemAndNoneTwiceInAWindow) {
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

TEST(Catalogue, EndsATranslatedSentenceWithAFullStop) {
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
