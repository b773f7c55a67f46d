#include "Language.hpp"

#include "PluginTrust.hpp"
#include "ProgramFolder.hpp"
#include "Strings.hpp"

#include <algorithm>
#include <clocale>
#include <cstdlib>
#include <filesystem>
#include <libintl.h>
#include <system_error>

/// gettext's change counter. Incrementing it discards cached translations.
extern "C" int _nl_msg_cat_cntr; // NOLINT(readability-identifier-naming)

namespace imageposition {

namespace fs = std::filesystem;

const char *const kTextDomain = "print-dialog";

namespace {

const char *const kEnglish = "en";

/// GNUstep's traditional names of languages.
struct Name {
  const char *gnustep;
  const char *catalogue;
};
const Name kNames[] = {
    {"Chinese", "zh_CN"},
    {"SimplifiedChinese", "zh_CN"},
    {"TraditionalChinese", "zh_TW"},
    {"Dutch", "nl"},
    {"English", kEnglish},
    {"French", "fr"},
    {"German", "de"},
    {"Italian", "it"},
    {"Japanese", "ja"},
    {"Korean", "ko"},
    {"Portuguese", "pt"},
    {"Russian", "ru"},
    {"Spanish", "es"},
    {"Swedish", "sv"},
    {"C", kEnglish},
    {"POSIX", kEnglish},
};

std::vector<std::string> split(const std::string &text, char separator) {
  std::vector<std::string> parts;
  std::size_t start = 0;
  while (start <= text.size()) {
    const std::size_t end = std::min(text.find(separator, start), text.size());
    if (end > start)
      parts.push_back(text.substr(start, end - start));
    start = end + 1;
  }
  return parts;
}

std::string localeOf(const Variables &variables) {
  for (const char *name : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
    const char *const value = variables(name);
    if (value != nullptr && *value != '\0')
      return value;
  }
  return {};
}

bool hasCatalogue(const std::string &language, const std::string &folder) {
  std::error_code ignored;
  const fs::path file = fs::path(folder) / language / "LC_MESSAGES" / kTextDomain;
  return fs::exists(file.string() + ".mo", ignored);
}

void setVariable(const char *name, const std::string &value) {
  const char *const before = std::getenv(name);
  if (before == nullptr || before != value)
    setenv(name, value.c_str(), 1);
}

} // namespace

std::string catalogueName(const std::string &language) {
  std::string name = language.substr(0, language.find_first_of(".@"));
  std::replace(name.begin(), name.end(), '_', '-');
  for (const Name &known : kNames)
    if (name == known.gnustep)
      return known.catalogue;
  std::string base = name.substr(0, name.find('-'));
  if (base != "zh")
    return base;
  for (const char *traditional : {"zh-Hant", "zh-TW", "zh-HK", "zh-MO"})
    if (startsWith(name, traditional))
      return "zh_TW";
  return "zh_CN";
}

std::string bundleName(const std::string &language) {
  if (language == "zh_CN")
    return "zh-Hans";
  return language == "zh_TW" ? "zh-Hant" : language;
}

std::vector<std::string> wantedLanguages(const Variables &variables) {
  const std::string locale = localeOf(variables);
  if (locale == "C" || locale == "POSIX")
    return {kEnglish};
  std::vector<std::string> wanted;
  const char *const list = variables("LANGUAGE");
  for (const std::string &language : split(list != nullptr ? list : "", ':'))
    wanted.push_back(catalogueName(language));
  if (!locale.empty())
    wanted.push_back(catalogueName(locale));
  return wanted;
}

std::string chosenLanguage(const std::vector<std::string> &wanted, const std::string &folder) {
  for (const std::string &language : wanted)
    if (language == kEnglish || hasCatalogue(language, folder))
      return language;
  return wanted.empty() ? kEnglish : wanted.front();
}

void speak(const std::string &language, const std::string &folder) {
  setVariable("LANGUAGE", language);
  // In the "C" locale, CUPS reads this variable first.
  std::setlocale(LC_MESSAGES, "C");
  setVariable("LC_MESSAGES", language);
  bindtextdomain(kTextDomain, folder.c_str());
  bind_textdomain_codeset(kTextDomain, "UTF-8");
  ++_nl_msg_cat_cntr;
}

std::string catalogueFolder() {
  for (const char *name : {"locale", IMAGEPOSITION_LOCALES_FROM_PROGRAM}) {
    std::error_code ignored;
    std::string folder = besideProgram(name);
    // gettext does not validate catalogues, and the user trusts what the dialog says.
    if (!folder.empty() && fs::is_directory(folder, ignored) &&
        !untrustedPlace(folder, TrustedPeople::here()))
      return folder;
  }
  return IMAGEPOSITION_LOCALE_FOLDER;
}

} // namespace imageposition
