/// Which language the program speaks.
#ifndef IMAGEPOSITION_HOST_LANGUAGE_HPP
#define IMAGEPOSITION_HOST_LANGUAGE_HPP

#include <functional>
#include <string>
#include <vector>

namespace imageposition {

/// The catalogues' name.
extern const char *const kTextDomain;

using Variables = std::function<const char *(const char *name)>;

/// What the environment asks for, the best first, as catalogues are named: "de", "zh_CN". LANGUAGE
/// comes before LC_ALL, LC_MESSAGES and LANG, unless these say "C": that is a wish for English.
std::vector<std::string> wantedLanguages(const Variables &variables);

/// The name of a language as catalogues are named, from the platform's ("Japanese", "zh-Hans") or a
/// locale's ("de_DE.UTF-8"). Of the variants of a language only those of Chinese are kept.
std::string catalogueName(const std::string &language);

/// The name of a catalogue's language as the platform's bundles are named.
std::string bundleName(const std::string &language);

/// The first of `wanted` that there is a catalogue for in `folder`, English without one included;
/// the first at all when there is none.
std::string chosenLanguage(const std::vector<std::string> &wanted, const std::string &folder);

/// Has texts looked up in `language` from now on, in this folder's catalogues, and CUPS's own texts
/// and those of printer descriptions too. Sets environment variables: before other threads start.
void speak(const std::string &language, const std::string &folder);

/// Where this program's catalogues are: beside it, or where they are installed with it.
std::string catalogueFolder();

} // namespace imageposition

#endif
