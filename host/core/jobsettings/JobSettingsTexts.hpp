/// Names of the job's settings and of their values, and messages about them.
#ifndef IMAGEPOSITION_CORE_JOBSETTINGS_JOBSETTINGSTEXTS_HPP
#define IMAGEPOSITION_CORE_JOBSETTINGS_JOBSETTINGSTEXTS_HPP

#include "Text.hpp"

#include <cstddef>
#include <string>
#include <vector>

namespace imageposition::messages {

extern const Text kMorePane;
/// The same with the number of settings that differ from the default, if there are any.
std::string morePane(std::size_t differing);

extern const Text kLayoutGroup;
extern const Text kOrientation, kOrientationOfDocument, kPortrait, kLandscape, kReverseLandscape,
    kReversePortrait;
extern const Text kScaling, kScalingAutomatic, kActualSize, kFitToPage, kFillPage;
extern const Text kPagesPerSide;
extern const Text kPageOrder, kRightThenDown, kDownThenRight, kLeftThenDown, kDownThenLeft,
    kRightThenUp, kUpThenRight, kLeftThenUp, kUpThenLeft;
extern const Text kBorder, kNoBorder, kThinLine, kThickLine, kTwoThinLines, kTwoThickLines;
extern const Text kBooklet, kNoBooklet, kAsBooklet;
extern const Text kSheetOrder, kFirstPageFirst, kLastPageFirst;

extern const Text kJobGroup;
extern const Text kWhenToPrint, kNow, kOnHold, kDayTime, kEvening, kNight, kWeekend, kSecondShift,
    kThirdShift, kAtATime, kHour, kMinute;
/// `time` is local, as "18:30".
std::string atTime(const std::string &time);
extern const Text kPriority, kLowPriority, kNormalPriority, kHighPriority, kUrgent, kAnotherNumber;
extern const Text kFirstCover, kLastCover, kNoCover;
/// The name of a cover page that CUPS has; others are shown as they are.
std::string coverName(const std::string &cover);
extern const Text kJobTitle, kAnotherTitle;

/// For a booklet, when the two-sided option was changed to `choice`.
std::string bookletSides(const std::string &option, const std::string &choice);
extern const Text kBookletOneSided;

/// For a setting with a value that CUPS or the printer does not know. `known` are some that exist.
std::string unknownValue(const std::string &name, const std::string &value,
                         const std::vector<std::string> &known);
/// For a custom value that the printer does not accept; `problem` is a sentence.
std::string refusedValue(const std::string &name, const std::string &value,
                         const std::string &problem);

} // namespace imageposition::messages

#endif
