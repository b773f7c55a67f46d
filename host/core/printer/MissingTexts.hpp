/// Texts for options whose description has none in the user's language.
///
/// CUPS describes a printer that needs no driver in the language of its own process, and names
/// options by their keywords for everybody else.
#ifndef IMAGEPOSITION_HOST_MISSINGTEXTS_HPP
#define IMAGEPOSITION_HOST_MISSINGTEXTS_HPP

#include <cups/ppd.h>

#include <map>
#include <string>
#include <utility>

namespace imageposition {

/// Whether some option has only its keyword to show.
bool isMissingTexts(const ppd_file_t &ppd);

/// What a PPD file calls an option or a choice in one of its languages.
struct Translation {
  enum class Language { Users, English, Other };

  Language language;
  std::string text;
};

/// By the keywords of option and choice; the latter is empty for the option itself. Of several
/// languages the first in the order of `Translation::Language`.
using Translations = std::map<std::pair<std::string, std::string>, Translation>;

/// From a PPD file, compressed or not; libcups keeps only some of its languages. Empty for a file
/// that cannot be read.
Translations readTranslations(const std::string &path);

/// Gives each option and choice that has no text in the user's language the first of these: CUPS's
/// word for it, its text in another language, its keyword. CUPS is asked only about a queue; empty
/// for none. The PPD must have been localized.
void fillMissingTexts(ppd_file_t &ppd, const Translations &translations, const std::string &queue);

/// "by-pass-tray" for "ByPassTray": IPP's name for a choice that CUPS has named after it.
std::string ippKeyword(const std::string &choice);

} // namespace imageposition

#endif
