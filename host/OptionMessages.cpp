#include "host/OptionMessages.hpp"

namespace imageposition::messages {

std::string inWords(const std::vector<std::string> &parts) {
  if (parts.size() < 2)
    return inOrder(parts);
  return text("{1} and {2}").with(inOrder({parts.begin(), parts.end() - 1}), parts.back());
}

std::string inOrder(const std::string &first, const std::string &second) {
  return text("{1}, {2}").with(first, second);
}

std::string inOrder(const std::vector<std::string> &parts) {
  if (parts.size() < 2)
    return parts.empty() ? "" : parts.front();
  // Half by half: one by one each would be copied as often as others follow.
  const auto middle = parts.begin() + static_cast<std::ptrdiff_t>(parts.size() / 2);
  return inOrder(inOrder({parts.begin(), middle}), inOrder({middle, parts.end()}));
}

std::string chosenOption(const std::string &option, const std::string &choice) {
  return text("\"{1}: {2}\"").with(option, choice);
}

std::string named(const std::string &name, const std::string &value) {
  return text("{1}: {2}").with(name, value);
}
const Text kNothingChosen = textIn("choices", "None");

const Text kPageWidth = text("Width");
const Text kPageHeight = text("Height");
std::string enteredValue(const std::string &value) { return text("Custom: {1}").with(value); }
std::string widthByHeight(const std::string &width, const std::string &height) {
  return text("{1} × {2}").with(width, height);
}
std::string inInches(const std::string &number) { return text("{1} in").with(number); }
std::string inPoints(const std::string &number) { return text("{1} pt").with(number); }
std::string fromTo(const std::string &low, const std::string &high) {
  return text("{1} to {2}").with(low, high);
}
std::string digits(const std::string &count) { return text("Digits: {1}").with(count); }
std::string letters(const std::string &count) { return text("Letters: {1}").with(count); }
std::string entryNoNumber(const std::string &name, const std::string &range) {
  return text("{1}: that is no number. Enter {2}.").with(name, range);
}
std::string entryNotWhole(const std::string &name, const std::string &range) {
  return text("{1}: that is no whole number. Enter {2}.").with(name, range);
}
std::string entryOutOfRange(const std::string &name, const std::string &range) {
  return text("{1}: that is out of range. Enter {2}.").with(name, range);
}
std::string entryLength(const std::string &name, const std::string &letters,
                        const std::string &range) {
  // Translators: {1} is the name of a field, such as "Password"; {2} a number, {3} one or "4 to
  // 16".
  return text("{1}: that has a length of {2}. The printer takes {3}.").with(name, letters, range);
}
std::string entryLengthInBytes(const std::string &name, const std::string &bytes,
                               const std::string &range) {
  // Translators: as above, for a text with letters of which UTF-8 makes several bytes.
  return text("{1}: that has a length of {2}. The printer takes {3}; a letter such as é counts as "
              "two or more.")
      .with(name, bytes, range);
}
std::string entryNoDigits(const std::string &name) {
  return text("{1}: enter digits only.").with(name);
}
std::string entryHasBrackets(const std::string &name) {
  return text("{1}: leave out curly brackets, which CUPS cannot carry there.").with(name);
}
std::string entryUnusable(const std::string &name) {
  return text("{1}: no job can carry that. Enter something else.").with(name);
}

std::string conflict(const std::vector<std::string> &sides) {
  if (sides.size() == 1)
    return text("The printer cannot do {1}.").with(sides.front());
  return text("The printer cannot combine {1}.").with(inWords(sides));
}
std::string moreConflicts(std::size_t others) {
  // Translators: follows sentences such as "The printer cannot combine ...".
  return counted(static_cast<long>(others), "There is {1} more such conflict.",
                 "There are {1} more such conflicts.");
}
std::string conflictProposal(const std::vector<std::string> &changes) {
  return text("Change to {1}.").with(inWords(changes));
}

std::string optionsNotShown(std::size_t count) {
  return counted(static_cast<long>(count),
                 "{1} more option has no room here. Set it with -o on the command line.",
                 "{1} more options have no room here. Set them with -o on the command line.");
}
std::string linesNotShown(std::size_t count) {
  // Translators: at the end of a long list.
  return counted(static_cast<long>(count), "And {1} more.", "And {1} more.");
}
std::string presetsNotListed(std::size_t count) {
  // Translators: the last, grey item of a menu of presets.
  return counted(static_cast<long>(count), "{1} more preset", "{1} more presets");
}

const Text kNoPages = text("No pages are named. Write, for example, 1-3, 7.");
std::string pagesNotUnderstood(const std::string &part) {
  return text("\"{1}\" is no page number. Write pages as, for example, 1-3, 7.").with(part);
}
const Text kPagesWithoutNumber = text(
    "A hyphen needs a page number on one side at least. Write, for example, 5- for page 5 and all "
    "that follow.");
const Text kPageZero = text("Pages are counted from 1. Write, for example, 1-3.");
std::string pageTooLarge(const std::string &number) {
  return text("Page {1} is more than a document can have. Write, for example, 5- for page 5 and "
              "all that follow.")
      .with(number);
}
std::string pagesBackwards(int first, int last) {
  return text("{1}-{2} runs backwards. Write {2}-{1}.").with(first, last);
}

std::string presetNameUnusable(const std::string &typed) {
  if (typed.empty())
    return text("A preset needs a name. Write, for example, Two-sided.");
  return text("\"{1}\" cannot be the name of a preset. Use letters and digits, for example "
              "Two-sided.")
      .with(typed);
}
std::string presetNameTooLong(int longest) {
  return counted(longest, "The name of a preset has at most {1} byte. Choose a shorter one.",
                 "The name of a preset has at most {1} bytes. Choose a shorter one.");
}
std::string presetMissing(const std::string &printer, const std::string &name) {
  return text("\"{1}\" has no preset \"{2}\"; it may have been renamed or deleted meanwhile. "
              "Choose another one.")
      .with(printer, name);
}
std::string presetExists(const std::string &printer, const std::string &name) {
  return text("\"{1}\" has a preset \"{2}\" already. Choose another name.").with(printer, name);
}
std::string presetOfEverybody(const std::string &name, const std::string &path) {
  return text("The preset \"{1}\" is everybody's: it stands in \"{2}\", which an administrator can "
              "change. Save one of another name instead.")
      .with(name, path);
}
std::string presetTooLarge(const std::string &name) {
  return text("The preset \"{1}\" has more settings than CUPS can read back. Set some to the "
              "printer's defaults.")
      .with(name);
}
std::string presetsUnreadable(const std::string &path, const std::string &reason) {
  return text("The presets in \"{1}\" cannot be read: {2}. Check its rights.").with(path, reason);
}
std::string presetsUnwritable(const std::string &path, const std::string &reason) {
  return text("The presets in \"{1}\" cannot be changed: {2}. Check the rights and the room on the "
              "disk.")
      .with(path, reason);
}
std::string presetCannotHold(const std::string &setting, const std::string &value) {
  return text("The preset does not keep \"{1}\": CUPS's file cannot hold the value \"{2}\".")
      .with(setting, value);
}
std::string presetKeepsNoPassword(const std::string &option) {
  return text("The preset does not keep \"{1}\": everybody who can read CUPS's file would read the "
              "password.")
      .with(option);
}
std::string misfitOption(const std::string &option, const std::string &value) {
  return text("\"{1}\" ({2}) was left out: this printer has no such option.").with(option, value);
}
std::string misfitChoice(const std::string &option, const std::string &value) {
  return text("\"{1}\" was left as it is: this printer does not offer \"{2}\".")
      .with(option, value);
}
std::string misfitEntered(const std::string &option, const std::string &problem) {
  return text("\"{1}\" was left as it is: {2}").with(option, problem);
}
std::string misfitRange(const std::string &option, const std::string &value,
                        const std::string &lowest, const std::string &highest) {
  return text("\"{1}\" was left as it is: {2} is not between {3} and {4}, which this printer "
              "allows.")
      .with(option, value, lowest, highest);
}

} // namespace imageposition::messages
