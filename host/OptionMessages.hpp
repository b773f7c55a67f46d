/// What print-dialog says about options, conflicts, pages and presets.
#ifndef IMAGEPOSITION_HOST_OPTIONMESSAGES_HPP
#define IMAGEPOSITION_HOST_OPTIONMESSAGES_HPP

#include "host/Text.hpp"

#include <string>
#include <vector>

namespace imageposition::messages {

/// "a", "a and b", "a, b and c".
std::string inWords(const std::vector<std::string> &parts);
/// "a, b".
std::string inOrder(const std::string &first, const std::string &second);
/// "a, b, c"; empty for none.
std::string inOrder(const std::vector<std::string> &parts);
/// An option with a choice, by their texts.
std::string chosenOption(const std::string &option, const std::string &choice);

/// "name: value", for one of several values.
std::string named(const std::string &name, const std::string &value);
/// Of an option that takes several choices.
extern const Text kNothingChosen;

// Values of a person's own. `name` is the parameter's, `range` what may be entered.
extern const Text kPageWidth;
extern const Text kPageHeight;
/// "Custom: 100 × 200 mm".
std::string enteredValue(const std::string &value);
std::string widthByHeight(const std::string &width, const std::string &height);
std::string inInches(const std::string &number);
std::string inPoints(const std::string &number);
/// "10 to 20".
std::string fromTo(const std::string &low, const std::string &high);
std::string digits(const std::string &count);
std::string letters(const std::string &count);
std::string entryNoNumber(const std::string &name, const std::string &range);
std::string entryNotWhole(const std::string &name, const std::string &range);
std::string entryOutOfRange(const std::string &name, const std::string &range);
std::string entryLength(const std::string &name, const std::string &letters,
                        const std::string &range);
/// Of a text that has letters beyond ASCII.
std::string entryLengthInBytes(const std::string &name, const std::string &bytes,
                               const std::string &range);
std::string entryNoDigits(const std::string &name);
std::string entryHasBrackets(const std::string &name);
std::string entryUnusable(const std::string &name);

// Conflicts.
std::string conflict(const std::vector<std::string> &sides);
/// Follows the sentences of the first conflicts.
std::string moreConflicts(std::size_t others);
std::string conflictProposal(const std::vector<std::string> &changes);

// What a window has no room for.
std::string optionsNotShown(std::size_t count);
std::string linesNotShown(std::size_t count);
std::string presetsNotListed(std::size_t count);

// Pages.
extern const Text kNoPages;
std::string pagesNotUnderstood(const std::string &part);
extern const Text kPagesWithoutNumber;
extern const Text kPageZero;
std::string pageTooLarge(const std::string &number);
std::string pagesBackwards(int first, int last);

// Presets.
std::string presetNameUnusable(const std::string &typed);
std::string presetNameTooLong(int longest);
std::string presetMissing(const std::string &printer, const std::string &name);
std::string presetExists(const std::string &printer, const std::string &name);
std::string presetOfEverybody(const std::string &name, const std::string &path);
std::string presetTooLarge(const std::string &name);
std::string presetsUnreadable(const std::string &path, const std::string &reason);
std::string presetsUnwritable(const std::string &path, const std::string &reason);
std::string presetCannotHold(const std::string &setting, const std::string &value);
std::string presetKeepsNoPassword(const std::string &option);
std::string misfitOption(const std::string &option, const std::string &value);
std::string misfitChoice(const std::string &option, const std::string &value);
std::string misfitEntered(const std::string &option, const std::string &problem);
std::string misfitRange(const std::string &option, const std::string &value,
                        const std::string &lowest, const std::string &highest);

} // namespace imageposition::messages

#endif
