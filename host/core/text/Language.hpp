/// Selects the language of the user interface.
#ifndef IMAGEPOSITION_CORE_TEXT_LANGUAGE_HPP
#define IMAGEPOSITION_CORE_TEXT_LANGUAGE_HPP

#include <functional>
#include <string>
#include <vector>

namespace imageposition {

/// The gettext domain.
extern const char *const kTextDomain;

/// Looks up an environment variable, as `getenv` does.
using Variables = std::function<const char *(const char *name)>;

/// Returns the languages that the environment requests, the preferred one first, as catalogue
/// names: "de", "zh_CN". LANGUAGE takes precedence over LC_ALL, LC_MESSAGES and LANG, unless these
/// are "C", which means English.
std::vector<std::string> wantedLanguages(const Variables &variables);

/// Converts GNUstep's name of a language ("Japanese", "zh-Hans") or a locale ("de_DE.UTF-8") to the
/// name of a catalogue. Keeps regional variants only for Chinese.
std::string catalogueName(const std::string &language);

/// Converts the name of a catalogue to the name of a bundle's .lproj folder.
std::string bundleName(const std::string &language);

/// Returns the first of `wanted` that has a catalogue in `folder`; English needs none. Without a
/// match, returns the first of `wanted`, or English if it is empty.
std::string chosenLanguage(const std::vector<std::string> &wanted, const std::string &folder);

/// Translates strings to `language` from now on, with the catalogues in `folder`. Also sets the
/// language of CUPS's messages and of printer descriptions. Sets environment variables, so it must
/// be called before other threads start.
void speak(const std::string &language, const std::string &folder);

/// Returns the folder of the program's catalogues: relative to the program if there is one that can
/// be trusted, otherwise where they are installed.
std::string catalogueFolder();

} // namespace imageposition

#endif
