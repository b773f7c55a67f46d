#include "SettingTable.hpp"

#include "JobSettingsTexts.hpp"
#include "Strings.hpp"

#include <algorithm>

namespace imageposition {

namespace {

using Group = JobSetting::Group;
using messages::kAsBooklet;
using messages::kNoBooklet;

bool isFalse(const std::string &value) { return contains({"false", "no", "off"}, value); }

/// The setting's value in the form of its choices.
std::string likeChoice(const JobSetting &setting, const std::string &value) {
  for (const SettingChoice &choice : setting.choices)
    if (isSame(choice.value, value))
      return choice.value;
  if (isSame(setting.name, "booklet") && (isTrue(value) || isFalse(value)))
    return isTrue(value) ? "true" : "false";
  if (isSame(setting.name, "print-scaling") && isSame(value, "auto-fit"))
    return "auto";
  return value;
}

struct Alias {
  const char *name;
  const char *setting;
  const char *onValue;  // what it stands for if it is true, or has the value `word`
  const char *offValue; // the same if it is false, or has `offWord`; null if it stands for nothing
  const char *word, *offWord;
};

/// In the order in which the filters look for them.
constexpr Alias kOverriding[] = {{"landscape", "orientation-requested", "4", "3", "true", "false"}};
constexpr Alias kOverridden[] = {
    {"fit-to-page", "print-scaling", "fit", nullptr, "true", "false"},
    {"fitplot", "print-scaling", "fit", nullptr, "true", "false"},
    {"fill", "print-scaling", "fill", nullptr, "true", "false"},
    {"page-delivery", "outputorder", "reverse", "normal", "reverse-order", "same-order"}};

template <std::size_t kSize>
std::optional<std::string> valueOfAliases(const PrintSettingsStore &settings,
                                          const JobSetting &setting,
                                          const Alias (&aliases)[kSize]) {
  for (const Alias &alias : aliases) {
    const char *const stored =
        isSame(alias.setting, setting.name) ? settings.get(alias.name) : nullptr;
    if (stored == nullptr)
      continue;
    const std::string value = isTrue(stored) ? "true" : isFalse(stored) ? "false" : stored;
    if (isSame(value, alias.word))
      return alias.onValue;
    if (isSame(value, alias.offWord) && alias.offValue != nullptr)
      return alias.offValue;
  }
  return std::nullopt;
}

std::vector<JobSetting> layoutSettings() {
  return {
      {"orientation-requested",
       messages::kOrientation,
       Group::Layout,
       "",
       {{"", messages::kOrientationOfDocument},
        {"3", messages::kPortrait},
        {"4", messages::kLandscape},
        {"5", messages::kReverseLandscape},
        {"6", messages::kReversePortrait}},
       {},
       {"landscape"}},
      // The filters apply "scaling" and "natural-scaling", a percentage, to images alone.
      {"print-scaling",
       messages::kScaling,
       Group::Layout,
       "auto",
       {{"auto", messages::kScalingAutomatic},
        {"none", messages::kActualSize},
        {"fit", messages::kFitToPage},
        {"fill", messages::kFillPage}},
       {"auto-fit"},
       {"fit-to-page", "fitplot", "fill"}},
      {"number-up",
       messages::kPagesPerSide,
       Group::Layout,
       "1",
       {{"1", {}}, {"2", {}}, {"4", {}}, {"6", {}}, {"9", {}}, {"16", {}}},
       {}, // the filters know others, but CUPS refuses them
       {}},
      {"number-up-layout",
       messages::kPageOrder,
       Group::Layout,
       "lrtb",
       {{"lrtb", messages::kRightThenDown},
        {"tblr", messages::kDownThenRight},
        {"rltb", messages::kLeftThenDown},
        {"tbrl", messages::kDownThenLeft},
        {"lrbt", messages::kRightThenUp},
        {"btlr", messages::kUpThenRight},
        {"rlbt", messages::kLeftThenUp},
        {"btrl", messages::kUpThenLeft}},
       {},
       {}},
      {"page-border",
       messages::kBorder,
       Group::Layout,
       "none",
       {{"none", messages::kNoBorder},
        {"single", messages::kThinLine},
        {"single-thick", messages::kThickLine},
        {"double", messages::kTwoThinLines},
        {"double-thick", messages::kTwoThickLines}},
       {},
       {}},
      {"booklet",
       messages::kBooklet,
       Group::Layout,
       "false",
       {{"false", kNoBooklet}, {"true", kAsBooklet}},
       {"yes", "on", "no", "off", "shuffle-only"},
       {}},
      {"outputorder",
       messages::kSheetOrder,
       Group::Layout,
       "normal",
       {{"normal", messages::kFirstPageFirst}, {"reverse", messages::kLastPageFirst}},
       {},
       {"page-delivery"}},
  };
}

std::vector<JobSetting> allSettings() {
  std::vector<JobSetting> all = layoutSettings();
  all.push_back({"job-hold-until",
                 messages::kWhenToPrint,
                 Group::Job,
                 "no-hold",
                 {{"no-hold", messages::kNow},
                  {"indefinite", messages::kOnHold},
                  {"day-time", messages::kDayTime},
                  {"evening", messages::kEvening},
                  {"night", messages::kNight},
                  {"weekend", messages::kWeekend},
                  {"second-shift", messages::kSecondShift},
                  {"third-shift", messages::kThirdShift}},
                 {},
                 {}});
  all.push_back({"job-priority",
                 messages::kPriority,
                 Group::Job,
                 "50",
                 {{"30", messages::kLowPriority},
                  {"50", messages::kNormalPriority},
                  {"80", messages::kHighPriority},
                  {"100", messages::kUrgent}},
                 {},
                 {}});
  return all;
}

} // namespace

const std::vector<JobSetting> &jobSettings() {
  static const std::vector<JobSetting> kSettings = allSettings();
  return kSettings;
}

const JobSetting *findSetting(const std::string &name) {
  for (const JobSetting &setting : jobSettings())
    if (isSame(setting.name, name))
      return &setting;
  return nullptr;
}

std::optional<std::string> valueIn(const PrintSettingsStore &settings, const JobSetting &setting) {
  if (auto value = valueOfAliases(settings, setting, kOverriding))
    return value;
  if (const char *const value = settings.get(setting.name); value != nullptr && *value != '\0')
    return likeChoice(setting, value);
  return valueOfAliases(settings, setting, kOverridden);
}

} // namespace imageposition
