#include "MissingTexts.hpp"

#include "CupsHandles.hpp"
#include "CupsWords.hpp"
#include "Utf.hpp"

#include <cups/cups.h>
#include <cups/pwg.h>

#include <algorithm>
#include <cctype>
#include <cstring>
#include <string_view>
#include <vector>

namespace imageposition {

namespace {

bool isKeyword(const char *text, const char *keyword) {
  return *text == '\0' || std::strcmp(text, keyword) == 0;
}

/// Calls `visit` with every option, including those of subgroups.
template <typename Group, typename Visitor> void visitOptions(Group &group, Visitor visit) {
  for (int i = 0; i < group.num_options; i++)
    visit(group.options[i]);
  for (int i = 0; i < group.num_subgroups; i++)
    visitOptions(group.subgroups[i], visit);
}

/// For a user with "de_AT", both "de" and "de_AT" are `Users`.
Translation::Language languageOf(std::string_view name) {
  const std::string_view users = cupsLangDefault()->language;
  if (name == users || name == users.substr(0, users.find('_')))
    return Translation::Language::Users;
  return name == "C" || name == "en" ? Translation::Language::English
                                     : Translation::Language::Other;
}

/// Removes the part of `text` up to and including `end`, and returns it without `end`. Empty, and
/// `text` is unchanged, if it lacks that character.
std::string_view cutBefore(std::string_view &text, char end) {
  const std::size_t at = text.find(end);
  if (at == std::string_view::npos)
    return {};
  const std::string_view part = text.substr(0, at);
  text.remove_prefix(at + 1);
  return part;
}

/// Reads `*de.Translation Duplex/Doppelseitig: ""` and `*de.Duplex None/Aus: ""`.
void readLine(std::string_view line, Translations &translations) {
  if (line.substr(0, 1) != "*")
    return;
  line.remove_prefix(1);
  const std::string_view language = cutBefore(line, '.');
  std::string_view option = cutBefore(line, ' ');
  std::string_view choice = cutBefore(line, '/');
  const std::string_view text = cutBefore(line, ':');
  if (language.empty() || option.empty() || choice.empty() || text.empty() ||
      language.find(' ') != std::string_view::npos)
    return;
  if (option == "Translation") {
    option = choice;
    choice = {};
  }
  const Translation translation{languageOf(language), std::string(text)};
  const auto [known, isNew] =
      translations.try_emplace({std::string(option), std::string(choice)}, translation);
  if (!isNew && translation.language < known->second.language)
    known->second = translation;
}

/// IPP's names for options of PPDs that CUPS generates, and for choices with different names there.
struct IppName {
  const char *option;
  const char *choice; // empty for the option itself
  const char *attribute;
  const char *value;
};
constexpr IppName kIppNames[] = {
    {"PageSize", "", "media", ""},
    {"PageRegion", "", "media", ""},
    {"InputSlot", "", "media-source", ""},
    {"MediaType", "", "media-type", ""},
    {"OutputBin", "", "output-bin", ""},
    {"cupsFinishingTemplate", "", "finishing-template", ""},
    {"cupsPrintQuality", "", "print-quality", ""},
    {"cupsPrintQuality", "Draft", "print-quality", "3"},
    {"cupsPrintQuality", "Normal", "print-quality", "4"},
    {"cupsPrintQuality", "High", "print-quality", "5"},
    {"ColorModel", "", "print-color-mode", ""},
    {"ColorModel", "Gray", "print-color-mode", "monochrome"},
    {"ColorModel", "RGB", "print-color-mode", "color"},
    {"Duplex", "", "sides", ""},
    {"Duplex", "None", "sides", "one-sided"},
    {"Duplex", "DuplexNoTumble", "sides", "two-sided-long-edge"},
    {"Duplex", "DuplexTumble", "sides", "two-sided-short-edge"},
};

const IppName *findIppName(const std::string &option, const std::string &choice) {
  const auto *const found =
      std::find_if(std::begin(kIppNames), std::end(kIppNames), [&](const IppName &name) {
        return option == name.option && choice == name.choice;
      });
  return found != std::end(kIppNames) ? found : nullptr;
}

cups_size_t toCupsSize(const ppd_size_t &size) {
  const auto fromPoints = [](float points) { return PWG_FROM_POINTS(points); };
  cups_size_t result{};
  result.width = fromPoints(size.width);
  result.length = fromPoints(size.length);
  result.left = fromPoints(size.left);
  result.bottom = fromPoints(size.bottom);
  result.right = fromPoints(size.width - size.right);
  result.top = fromPoints(size.length - size.top);
  if (const pwg_media_t *const known = pwgMediaForSize(result.width, result.length))
    std::snprintf(result.media, sizeof result.media, "%s", known->pwg);
  return result;
}

/// A keyword such as "A4" is clearer than dimensions.
bool isLessThanKeyword(const std::string &word, const std::string &keyword) {
  const auto isDigit = [](char c) { return std::isdigit(static_cast<unsigned char>(c)) != 0; };
  return !word.empty() && isDigit(word.front()) && !isDigit(keyword.front());
}

/// A string of the PPD to replace.
struct Text {
  char (&place)[PPD_MAX_TEXT];
  std::string keyword;
  std::string otherwise; ///< Used if CUPS has no translation.
  Term term;
};

Term ippTerm(ppd_file_t &ppd, const std::string &option, const std::string &choice) {
  Term term;
  const bool isSize = option == "PageSize" || option == "PageRegion";
  if (isSize && !choice.empty()) {
    const ppd_size_t *const size = ppdPageSize(&ppd, choice.c_str());
    if (size != nullptr && size->width > 0 && size->length > 0) // "Custom" has none
      term.size = toCupsSize(*size);
  } else if (const IppName *const name = findIppName(option, choice)) {
    term.attribute = name->attribute;
    term.value = name->value;
  } else if (const IppName *const ofOption = findIppName(option, "")) {
    term.attribute = ofOption->attribute;
    term.value = ippKeyword(choice);
  }
  return term;
}

/// Collects the strings of a PPD that are not in the user's language.
class Collector {
public:
  Collector(ppd_file_t &ppd, const Translations &translations)
      : ppd_(ppd), translations_(translations) {}

  void add(ppd_option_t &option) {
    add(option.text, option.keyword, "");
    for (int i = 0; i < option.num_choices; i++)
      add(option.choices[i].text, option.keyword, option.choices[i].choice);
  }

  std::vector<Text> texts;

private:
  void add(char (&place)[PPD_MAX_TEXT], const std::string &option, const std::string &choice) {
    const std::string &keyword = choice.empty() ? option : choice;
    const auto found = translations_.find({option, choice});
    const Translation *const translation = found != translations_.end() ? &found->second : nullptr;
    if (translation != nullptr && translation->language == Translation::Language::Users)
      return;
    Text text{place, keyword, keyword, {}};
    if (!isKeyword(place, keyword.c_str()))
      text.otherwise = text.term.message = place;
    else if (translation == nullptr || translation->language == Translation::Language::Other)
      text.term = ippTerm(ppd_, option, choice);
    else
      text.term.message = translation->text;
    if (translation != nullptr && text.otherwise == keyword)
      text.otherwise = translation->text;
    texts.push_back(std::move(text));
  }

  ppd_file_t &ppd_;
  const Translations &translations_;
};

void write(const std::string &text, char (&place)[PPD_MAX_TEXT]) {
  const std::string_view part = utf8Prefix(text, sizeof place - 1);
  part.copy(place, part.size());
  place[part.size()] = '\0';
}

} // namespace

bool isMissingTexts(const ppd_file_t &ppd) {
  bool isMissing = false;
  for (int i = 0; i < ppd.num_groups; i++)
    visitOptions(ppd.groups[i], [&](const ppd_option_t &option) {
      // "PageRegion" is never shown.
      isMissing = isMissing || (isKeyword(option.text, option.keyword) &&
                                std::strcmp(option.keyword, "PageRegion") != 0);
    });
  return isMissing;
}

Translations readTranslations(const std::string &path) {
  const CupsFile file(cupsFileOpen(path.c_str(), "r"));
  Translations translations;
  char line[1024];
  while (file && cupsFileGets(file.get(), line, sizeof line) != nullptr)
    readLine(line, translations);
  return translations;
}

void fillMissingTexts(ppd_file_t &ppd, const Translations &translations, const std::string &queue) {
  Collector collector(ppd, translations);
  for (int i = 0; i < ppd.num_groups; i++)
    visitOptions(ppd.groups[i], [&](ppd_option_t &option) { collector.add(option); });
  std::vector<Term> terms;
  for (const Text &text : collector.texts)
    terms.push_back(text.term);
  std::vector<std::string> words(terms.size());
  if (!queue.empty())
    words = wordsOfCups(queue, terms);
  for (std::size_t i = 0; i < words.size(); i++) {
    const Text &text = collector.texts[i];
    const bool isUsable =
        !words[i].empty() && !(text.term.size && isLessThanKeyword(words[i], text.keyword));
    write(isUsable ? words[i] : text.otherwise, text.place);
  }
}

std::string ippKeyword(const std::string &choice) {
  std::string keyword;
  char before = '-';
  for (const char c : choice) {
    const auto byte = static_cast<unsigned char>(c);
    const bool isFirstDigit =
        std::isdigit(byte) != 0 && std::isalpha(static_cast<unsigned char>(before)) != 0;
    if ((std::isupper(byte) != 0 && before != '-') || isFirstDigit)
      keyword += '-';
    keyword += static_cast<char>(std::tolower(byte));
    before = c;
  }
  return keyword;
}

} // namespace imageposition
