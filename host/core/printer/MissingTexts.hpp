/// Names for options whose description has none in the user's language.
///
/// For a driverless printer, CUPS generates a PPD in the language of its server process. In other
/// languages, its options have only their keywords.
#ifndef IMAGEPOSITION_CORE_PRINTER_MISSINGTEXTS_HPP
#define IMAGEPOSITION_CORE_PRINTER_MISSINGTEXTS_HPP

#include <cups/ppd.h>

#include <map>
#include <string>
#include <utility>

namespace imageposition {

/// Whether some option has no name but its keyword.
bool isMissingTexts(const ppd_file_t &ppd);

/// The name of an option or a choice in one of a PPD file's languages.
struct Translation {
  enum class Language { Users, English, Other };

  Language language;
  std::string text;
};

/// By the keywords of option and choice; the latter is empty for the option itself. If there are
/// several languages, the first in the order of `Translation::Language`.
using Translations = std::map<std::pair<std::string, std::string>, Translation>;

/// Reads a PPD file, which may be compressed; libcups keeps only some of its languages. Empty for
/// an unreadable file.
Translations readTranslations(const std::string &path);

/// Gives each option and choice without a name in the user's language the first available of:
/// CUPS's translation, its name in another language, its keyword. Asks CUPS only if `queue` is not
/// empty. Call `ppdLocalize` first.
void fillMissingTexts(ppd_file_t &ppd, const Translations &translations, const std::string &queue);

/// The IPP keyword from which CUPS derived the choice: "by-pass-tray" for "ByPassTray".
std::string ippKeyword(const std::string &choice);

} // namespace imageposition

#endif
