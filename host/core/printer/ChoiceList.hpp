/// Options of which several choices hold at once ("PickMany" in a PPD).
///
/// CUPS carries them in one value, "Staple,Fold", to the filters. Its own marking of a PPD knows no
/// such list and only ever adds to the default, so that marking is done here.
#ifndef IMAGEPOSITION_HOST_CHOICELIST_HPP
#define IMAGEPOSITION_HOST_CHOICELIST_HPP

#include "Strings.hpp"

#include <cups/ppd.h>

#include <set>
#include <string>
#include <vector>

namespace imageposition {

using ChoiceList = std::vector<std::string>;

/// By keyword, whose case does not matter.
using ChoiceSet = std::set<std::string, IgnoringCase>;

/// At commas, without blanks around; no empty parts.
ChoiceList splitChoices(const std::string &value);
std::string joinChoices(const ChoiceList &choices);

/// "None", "Off" and "False", which exclude all other choices of their option.
bool isNone(const std::string &choice);

/// Those that the option has, as the PPD writes them and in its order.
ChoiceList inOrder(const ppd_option_t &option, const ChoiceList &choices);

/// Whether every part is a choice of the option.
bool areChoices(const ppd_option_t &option, const ChoiceList &choices);

/// Marks these choices of such an option, as the PPD writes them, and no others. Parts that are no
/// choices are passed over; false, and nothing changes, when there are only such.
bool markChoices(ppd_file_t *ppd, ppd_option_t &option, const ChoiceList &choices);

/// In the PPD's order.
ChoiceList markedChoices(const ppd_option_t &option);

/// The choice that is marked, of such an option a list of them; empty for none.
std::string markedChoice(ppd_file_t *ppd, const ppd_option_t &option);

/// The list with a choice more or less, in the PPD's order: "None" takes all others away, any other
/// takes "None" away, and where the last one goes "None" comes, if the option has it.
ChoiceList withChoice(const ppd_option_t &option, const ChoiceList &choices,
                      const std::string &choice, bool on);

/// The list without all of these choices; "None" comes as above.
ChoiceList withoutChoices(const ppd_option_t &option, const ChoiceList &choices,
                          const ChoiceSet &without);

} // namespace imageposition

#endif
