/// Options that accept several choices at once ("PickMany" in a PPD).
///
/// CUPS passes them to filters in one value, "Staple,Fold". Its marking functions do not support
/// such lists and can only add to the default, so these functions mark the choices.
#ifndef IMAGEPOSITION_CORE_PRINTER_CHOICELIST_HPP
#define IMAGEPOSITION_CORE_PRINTER_CHOICELIST_HPP

#include "Strings.hpp"

#include <cups/ppd.h>

#include <set>
#include <string>
#include <vector>

namespace imageposition {

using ChoiceList = std::vector<std::string>;

/// Keywords, compared without regard to case.
using ChoiceSet = std::set<std::string, IgnoringCase>;

/// Splits at commas, trims blanks and drops empty parts.
ChoiceList splitChoices(const std::string &value);
std::string joinChoices(const ChoiceList &choices);

/// Whether the choice is "None", "Off" or "False", which excludes all others of its option.
bool isNone(const std::string &choice);

/// The choices that the option has, in the PPD's spelling and order.
ChoiceList inOrder(const ppd_option_t &option, const ChoiceList &choices);

/// Whether every part is a choice of the option.
bool areChoices(const ppd_option_t &option, const ChoiceList &choices);

/// Marks exactly these choices of the option. Ignores parts that are not choices; returns false and
/// changes nothing if none is one.
bool markChoices(ppd_file_t *ppd, ppd_option_t &option, const ChoiceList &choices);

/// The marked choices, in the PPD's order.
ChoiceList markedChoices(const ppd_option_t &option);

/// The marked choice, or a list for an option that accepts several; empty for none.
std::string markedChoice(ppd_file_t *ppd, const ppd_option_t &option);

/// Adds or removes a choice, in the PPD's order. Adding "None" removes all others, and adding
/// another removes "None". Removing the last one adds "None", if the option has it.
ChoiceList withChoice(const ppd_option_t &option, const ChoiceList &choices,
                      const std::string &choice, bool on);

/// Removes these choices. An empty result becomes "None", if the option has it.
ChoiceList withoutChoices(const ppd_option_t &option, const ChoiceList &choices,
                          const ChoiceSet &without);

} // namespace imageposition

#endif
