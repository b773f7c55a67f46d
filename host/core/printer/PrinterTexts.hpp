/// Messages about a printer's description, its options and their conflicts.
#ifndef IMAGEPOSITION_CORE_PRINTER_PRINTERTEXTS_HPP
#define IMAGEPOSITION_CORE_PRINTER_PRINTERTEXTS_HPP

#include "Text.hpp"

#include <string>
#include <vector>

namespace imageposition::messages {

// Mistakes on the command line.
std::string usage(const std::string &mistake);
std::string badOption(const std::string &argument);
std::string optionLocked(const std::string &name);

// Printers.
std::string ppdUnreadable(const std::string &path, const std::string &reason);
std::string ppdTooLarge(const std::string &path);
std::string ppdMalformed(const std::string &path, int line, const std::string &reason);
std::string ppdOfQueue(const std::string &queue);
std::string queueWithoutPpd(const std::string &queue, const std::string &reason);
extern const Text kNoDefaultPrinter;
std::string noPrinterOfEnvironment(const std::string &queue);
// Advice for the command line, also where CUPS cannot be reached.
extern const Text kOtherServer;
extern const Text kNamePrinter;

/// An option and a choice, by the names to show.
std::string chosenOption(const std::string &option, const std::string &choice);
/// For an option that accepts several choices.
extern const Text kNothingChosen;

// Custom values. `name` is the parameter's; `range` describes the accepted values.
extern const Text kPageWidth;
extern const Text kPageHeight;
/// "Custom: 100 × 200 mm".
std::string enteredValue(const std::string &value);
std::string widthByHeight(const std::string &width, const std::string &height);
/// "10 to 20".
std::string fromTo(const std::string &low, const std::string &high);
std::string digits(const std::string &count);
std::string letters(const std::string &count);
std::string entryNoNumber(const std::string &name, const std::string &range);
std::string notANumber(const std::string &name, const std::string &value);
std::string entryNotWhole(const std::string &name, const std::string &range);
std::string entryOutOfRange(const std::string &name, const std::string &range);
std::string entryLength(const std::string &name, const std::string &letters,
                        const std::string &range);
/// For a string with characters beyond ASCII.
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

// Presets.
std::string misfitOption(const std::string &option, const std::string &value);
std::string misfitChoice(const std::string &option, const std::string &value);
std::string misfitEntered(const std::string &option, const std::string &problem);
std::string broughtIntoRange(const std::string &option, const std::string &value,
                             const std::string &nearest, const std::string &range);

/// CUPS's name for options without a group.
extern const Text kGeneralGroup;

} // namespace imageposition::messages

#endif
