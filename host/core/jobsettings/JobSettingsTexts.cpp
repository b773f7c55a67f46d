#include "JobSettingsTexts.hpp"

#include "Phrases.hpp"
#include "Strings.hpp"
#include "VisibleText.hpp"

#include <utility>

namespace imageposition::messages {

// Translators: the title of a group of settings that are seldom changed.
const Text kMorePane = textIn("settings", "More");
std::string morePane(std::size_t differing) {
  if (differing == 0)
    return kMorePane;
  // Translators: the same; {1} of the settings are not at their defaults.
  return counted(static_cast<long>(differing), "More ({1} changed)", "More ({1} changed)");
}

const Text kLayoutGroup = text("Layout");
const Text kOrientation = text("Orientation");
const Text kOrientationOfDocument = text("As in the document");
const Text kPortrait = text("Portrait");
const Text kLandscape = text("Landscape");
const Text kReverseLandscape = text("Reverse landscape");
const Text kReversePortrait = text("Reverse portrait");
const Text kScaling = text("Scaling");
const Text kScalingAutomatic = textIn("scaling", "Automatic");
const Text kActualSize = textIn("scaling", "Actual size");
const Text kFitToPage = textIn("scaling", "Fit to page");
const Text kFillPage = textIn("scaling", "Fill the page");
const Text kPagesPerSide = text("Pages per side");
// Translators: how several pages are placed on one side of a sheet.
const Text kPageOrder = text("Order of pages");
const Text kRightThenDown = textIn("order of pages", "Right, then down");
const Text kDownThenRight = textIn("order of pages", "Down, then right");
const Text kLeftThenDown = textIn("order of pages", "Left, then down");
const Text kDownThenLeft = textIn("order of pages", "Down, then left");
const Text kRightThenUp = textIn("order of pages", "Right, then up");
const Text kUpThenRight = textIn("order of pages", "Up, then right");
const Text kLeftThenUp = textIn("order of pages", "Left, then up");
const Text kUpThenLeft = textIn("order of pages", "Up, then left");
const Text kBorder = text("Border around pages");
const Text kNoBorder = textIn("border", "None");
const Text kThinLine = textIn("border", "Thin line");
const Text kThickLine = textIn("border", "Thick line");
const Text kTwoThinLines = textIn("border", "Two thin lines");
const Text kTwoThickLines = textIn("border", "Two thick lines");
const Text kBooklet = text("Booklet");
const Text kNoBooklet = textIn("printer option", "Off");
const Text kAsBooklet = textIn("printer option", "On");
const Text kSheetOrder = text("Printing order");
const Text kFirstPageFirst = text("First page first");
const Text kLastPageFirst = text("Last page first");

const Text kJobGroup = textIn("group of settings", "Job");
const Text kWhenToPrint = text("When to print");
const Text kNow = textIn("when to print", "Now");
const Text kOnHold = textIn("when to print", "On hold until released");
// Translators: this and the next ones are the times of day at which CUPS prints a job.
const Text kDayTime = textIn("when to print", "In the daytime (from 6:00)");
const Text kEvening = textIn("when to print", "In the evening (from 18:00)");
const Text kNight = textIn("when to print", "At night (from 18:00)");
const Text kWeekend = textIn("when to print", "At the weekend");
const Text kSecondShift = textIn("when to print", "Second shift (from 16:00)");
const Text kThirdShift = textIn("when to print", "Third shift (from 0:00)");
const Text kAtATime = textIn("when to print", "At a time…");
const Text kHour = text("Hour (local time)");
const Text kMinute = text("Minute");
std::string atTime(const std::string &time) {
  // Translators: when to print; {1} is a time such as 18:30.
  return text("At {1} (local time)").with(time);
}
const Text kPriority = text("Priority");
const Text kLowPriority = textIn("priority", "Low");
const Text kNormalPriority = textIn("priority", "Normal");
const Text kHighPriority = textIn("priority", "High");
const Text kUrgent = textIn("priority", "Urgent");
const Text kAnotherNumber = textIn("priority", "A number…");
const Text kFirstCover = text("Cover page before");
const Text kLastCover = text("Cover page after");
const Text kNoCover = textIn("cover page", "None");
std::string coverName(const std::string &cover) {
  static const std::pair<const char *, Text> kNames[] = {
      {"none", kNoCover},
      // Translators: this and the next ones are the cover pages that CUPS has.
      {"standard", textIn("cover page", "Standard")},
      {"form", textIn("cover page", "Form")},
      {"classified", textIn("cover page", "Classified")},
      {"confidential", textIn("cover page", "Confidential")},
      {"secret", textIn("cover page", "Secret")},
      {"topsecret", textIn("cover page", "Top secret")},
      {"unclassified", textIn("cover page", "Unclassified")}};
  for (const auto &[name, text] : kNames)
    if (isSame(name, cover))
      return text;
  return visible(cover);
}
const Text kJobTitle = text("Title of the job");
const Text kAnotherTitle = text("Another title…");

std::string bookletSides(const std::string &option, const std::string &choice) {
  return text("\"{1}\" is now \"{2}\", because a booklet needs it.").with(option, choice);
}
const Text kBookletOneSided = text(
    "A booklet is folded from sheets that are printed on both sides. This printer cannot print "
    "them by itself.");

std::string unknownValue(const std::string &name, const std::string &value,
                         const std::vector<std::string> &known) {
  if (known.empty())
    return text("\"{2}\" is not a value of \"{1}\". The printer may refuse or ignore it.")
        .with(name, value);
  // Translators: {3} is a list of values.
  return text("\"{2}\" is not a value of \"{1}\". The printer may refuse or ignore it. Valid "
              "values include: {3}.")
      .with(name, value, inOrder(known));
}
std::string refusedValue(const std::string &name, const std::string &value,
                         const std::string &problem) {
  return text("\"{2}\" is not a value of \"{1}\". The printer may refuse or ignore it. {3}")
      .with(name, value, problem);
}

} // namespace imageposition::messages
