#include "host/OptionMessages.hpp"

namespace imageposition::messages {

std::string inWords(const std::vector<std::string> &parts) {
  std::string text;
  for (std::size_t i = 0; i < parts.size(); i++) {
    if (i > 0)
      text += i + 1 == parts.size() ? " and " : ", ";
    text += parts[i];
  }
  return text;
}

std::string inOrder(const std::string &first, const std::string &second) {
  return text("{1}, {2}").with(first, second);
}

std::string chosenOption(const std::string &option, const std::string &choice) {
  return "\"" + option + ": " + choice + "\"";
}

std::string conflict(const std::vector<std::string> &sides) {
  if (sides.size() == 1)
    return "The printer cannot do " + sides.front() + ".";
  return "The printer cannot combine " + inWords(sides) + ".";
}
std::string conflictProposal(const std::vector<std::string> &changes) {
  return "Change to " + inWords(changes) + ".";
}

const Text kNoPages = text("No pages are named. Write, for example, 1-3, 7.");
std::string pagesNotUnderstood(const std::string &part) {
  return "\"" + part + "\" is no page number. Write pages as, for example, 1-3, 7.";
}
const Text kPagesWithoutNumber = text(
    "A hyphen needs a page number on one side at least. Write, for example, 5- for page 5 and all "
    "that follow.");
const Text kPageZero = text("Pages are counted from 1. Write, for example, 1-3.");
std::string pageTooLarge(const std::string &number) {
  return "Page " + number +
         " is more than a document can have. Write, for example, 5- for page 5 and all that "
         "follow.";
}
std::string pagesBackwards(int first, int last) {
  const std::string low = std::to_string(last);
  const std::string high = std::to_string(first);
  return high + "-" + low + " runs backwards. Write " + low + "-" + high + ".";
}

std::string presetNameUnusable(const std::string &typed) {
  return typed.empty() ? "A preset needs a name. Write, for example, Two-sided."
                       : "\"" + typed +
                             "\" cannot be the name of a preset. Use letters and digits, for "
                             "example Two-sided.";
}
std::string presetNameTooLong(int longest) {
  return "The name of a preset has at most " + std::to_string(longest) +
         " bytes. Choose a shorter one.";
}
std::string presetMissing(const std::string &printer, const std::string &name) {
  return "\"" + printer + "\" has no preset \"" + name +
         "\"; it may have been renamed or deleted meanwhile. Choose another one.";
}
std::string presetExists(const std::string &printer, const std::string &name) {
  return "\"" + printer + "\" has a preset \"" + name + "\" already. Choose another name.";
}
std::string presetOfEverybody(const std::string &name, const std::string &path) {
  return "The preset \"" + name + "\" is everybody's: it stands in \"" + path +
         "\", which an administrator can change. Save one of another name instead.";
}
std::string presetTooLarge(const std::string &name) {
  return "The preset \"" + name +
         "\" has more settings than CUPS can read back. Set some to the printer's defaults.";
}
std::string presetsUnreadable(const std::string &path, const std::string &reason) {
  return "The presets in \"" + path + "\" cannot be read: " + reason + ". Check its rights.";
}
std::string presetsUnwritable(const std::string &path, const std::string &reason) {
  return "The presets in \"" + path + "\" cannot be changed: " + reason +
         ". Check the rights and the room on the disk.";
}
std::string presetCannotHold(const std::string &setting, const std::string &value) {
  return "The preset does not keep \"" + setting + "\": CUPS's file cannot hold the value \"" +
         value + "\".";
}
std::string misfitOption(const std::string &option, const std::string &value) {
  return "\"" + option + "\" (" + value + ") was left out: this printer has no such option.";
}
std::string misfitChoice(const std::string &option, const std::string &value) {
  return "\"" + option + "\" was left as it is: this printer does not offer \"" + value + "\".";
}
std::string misfitRange(const std::string &option, const std::string &value,
                        const std::string &lowest, const std::string &highest) {
  return "\"" + option + "\" was left as it is: " + value + " is not between " + lowest + " and " +
         highest + ", which this printer allows.";
}

} // namespace imageposition::messages
