#include "PrinterTexts.hpp"

#include "Phrases.hpp"

namespace imageposition::messages {

std::string usage(const std::string &mistake) {
  const std::string sentence =
      mistake.empty() || withoutStop(mistake) != mistake ? mistake : text("{1}.").with(mistake);
  return text("{1} See print-dialog --help.").with(sentence);
}
std::string badOption(const std::string &argument) {
  return text("\"{1}\" is not a job option. Use NAME=VALUE.").with(argument);
}
std::string optionLocked(const std::string &name) {
  return text("The ticket locks \"{1}\". Omit -o {1}, or use another ticket.").with(name);
}
std::string ppdUnreadable(const std::string &path, const std::string &reason) {
  return text("Cannot read the printer description \"{1}\": {2}. Check its name and permissions.")
      .with(path, reason);
}
std::string ppdTooLarge(const std::string &path) {
  return text("\"{1}\" is too large for a printer description and would take too long to read. Use "
              "the one supplied with the printer driver.")
      .with(path);
}
std::string ppdMalformed(const std::string &path, int line, const std::string &reason) {
  return text("\"{1}\" is not a valid printer description: line {2}: {3}. Specify a PPD file. "
              "cupstestppd checks PPD files.")
      .with(path, line, reason);
}
std::string ppdOfQueue(const std::string &queue) { return text("PPD of queue {1}").with(queue); }
const Text kOtherServer = text("Or set CUPS_SERVER, or use --ppd with a printer description.");
std::string queueWithoutPpd(const std::string &queue, const std::string &reason) {
  return text("CUPS has no printer description for the queue \"{1}\": {2}.")
      .with(queue, withoutStop(reason));
}
const Text kNoDefaultPrinter = text("There is no default printer.");
std::string noPrinterOfEnvironment(const std::string &queue) {
  return text(
             "The environment (LPDEST or PRINTER) names the printer \"{1}\", which does not exist.")
      .with(queue);
}
const Text kNamePrinter = text("Specify one with -d QUEUE (lpstat -e lists the queues) or --ppd "
                               "FILE.");
std::string chosenOption(const std::string &option, const std::string &choice) {
  return text("\"{1}: {2}\"").with(option, choice);
}
const Text kNothingChosen = textIn("choices", "None");
const Text kPageWidth = text("Width");
const Text kPageHeight = text("Height");
std::string enteredValue(const std::string &value) { return text("Custom: {1}").with(value); }
std::string widthByHeight(const std::string &width, const std::string &height) {
  return text("{1} × {2}").with(width, height);
}
std::string fromTo(const std::string &low, const std::string &high) {
  return text("{1} to {2}").with(low, high);
}
std::string digits(const std::string &count) { return text("Digits: {1}").with(count); }
std::string letters(const std::string &count) { return text("Letters: {1}").with(count); }
std::string entryNoNumber(const std::string &name, const std::string &range) {
  return text("{1} must be a number. Enter {2}.").with(name, range);
}
std::string notANumber(const std::string &name, const std::string &value) {
  return text("{1}: \"{2}\" is not a number.").with(name, value);
}
std::string entryNotWhole(const std::string &name, const std::string &range) {
  return text("{1} must be a whole number. Enter {2}.").with(name, range);
}
std::string entryOutOfRange(const std::string &name, const std::string &range) {
  return text("{1} is out of range. Enter {2}.").with(name, range);
}
std::string entryLength(const std::string &name, const std::string &letters,
                        const std::string &range) {
  // Translators: {1} is the name of a field, such as "Password"; {2} a number, {3} one or "4 to
  // 16".
  return text("{1} has a length of {2}. The printer accepts {3}.").with(name, letters, range);
}
std::string entryLengthInBytes(const std::string &name, const std::string &bytes,
                               const std::string &range) {
  // Translators: as above, for a text with letters of which UTF-8 makes several bytes.
  return text("{1} has a length of {2}. The printer accepts {3}, and a letter such as é counts as "
              "two or more.")
      .with(name, bytes, range);
}
std::string entryNoDigits(const std::string &name) {
  return text("{1} must consist of digits.").with(name);
}
std::string entryHasBrackets(const std::string &name) {
  return text("{1} must not contain curly brackets, which CUPS does not allow there.").with(name);
}
std::string entryUnusable(const std::string &name) {
  return text("{1} has a value that a print job cannot hold. Enter another value.").with(name);
}
std::string conflict(const std::vector<std::string> &sides) {
  if (sides.size() == 1)
    return text("The printer cannot do {1}.").with(sides.front());
  return text("The printer cannot combine {1}.").with(inWords(sides));
}
std::string moreConflicts(std::size_t others) {
  // Translators: follows sentences such as "The printer cannot combine ...".
  return counted(static_cast<long>(others), "There is {1} more conflict.",
                 "There are {1} more conflicts.");
}
std::string conflictProposal(const std::vector<std::string> &changes) {
  return text("Change to {1}.").with(inWords(changes));
}
std::string misfitOption(const std::string &option, const std::string &value) {
  return text("Left out \"{1}\" ({2}): this printer has no such option.").with(option, value);
}
std::string misfitChoice(const std::string &option, const std::string &value) {
  return text("Set \"{1}\" to this printer's default: the printer does not offer \"{2}\".")
      .with(option, value);
}
std::string misfitEntered(const std::string &option, const std::string &problem) {
  return text("Set \"{1}\" to this printer's default: {2}").with(option, problem);
}
std::string broughtIntoRange(const std::string &option, const std::string &value,
                             const std::string &nearest, const std::string &range) {
  // Translators: {2} and {3} are numbers, {4} is a range such as "-50 to 50".
  return text("Set \"{1}\" to {3} instead of {2}: this printer accepts {4}.")
      .with(option, value, nearest, range);
}
const Text kGeneralGroup = text("General");

} // namespace imageposition::messages
