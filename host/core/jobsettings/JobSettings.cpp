#include "JobSettings.hpp"

#include "JobSettingsTexts.hpp"
#include "JobTexts.hpp"
#include "PrinterTexts.hpp"
#include "ReleaseTime.hpp"
#include "Strings.hpp"
#include "ValueCheck.hpp"
#include "VisibleText.hpp"

#include <algorithm>
#include <charconv>
#include <cstdlib>
#include <utility>

namespace imageposition {

namespace {

constexpr int kMostPerSide = 16; // of cups-filters

constexpr const char *kCovers = "job-sheets";
// Keywords of options that are two parts of one setting.
constexpr const char *kFirstCover = "job-sheets-first";
constexpr const char *kLastCover = "job-sheets-last";
constexpr const char *kNone = "none";
constexpr const char *kShortEdge = "DuplexTumble";
constexpr double kLongestTitle = 255; // bytes, of IPP's type "name"

CustomParameter parameter(const char *name, const Text &text, CustomParameter::Kind kind,
                          double minimum, double maximum) {
  CustomParameter result;
  result.name = name;
  result.text = text;
  result.kind = kind;
  result.minimum = minimum;
  result.maximum = maximum;
  return result;
}

/// How to enter another value than the choices; none for most settings.
std::optional<CustomOption> customValueOf(const std::string &name) {
  using Kind = CustomParameter::Kind;
  if (name == "job-hold-until")
    return CustomOption{name,
                        false,
                        {parameter("Hour", messages::kHour, Kind::Integer, 0, 23),
                         parameter("Minute", messages::kMinute, Kind::Integer, 0, 59)}};
  if (name == "job-priority")
    return CustomOption{
        name, false, {parameter("Priority", messages::kPriority, Kind::Integer, 1, 100)}};
  if (name == kTitleSetting)
    return CustomOption{
        name, false, {parameter("Title", messages::kJobTitle, Kind::Text, 1, kLongestTitle)}};
  return std::nullopt;
}

std::string commandOf(const std::string &name) {
  if (name == "job-hold-until")
    return messages::kAtATime;
  if (name == "job-priority")
    return messages::kAnotherNumber;
  return name == kTitleSetting ? messages::kAnotherTitle.str() : "";
}

/// A value that is not among the choices, in words.
std::string textOfOther(const std::string &name, const std::string &value) {
  const auto time =
      name == "job-hold-until" ? localReleaseTime(value, std::time(nullptr)) : std::nullopt;
  return time ? messages::atTime(time->text()) : visible(value);
}

/// "first" and "last" of "first,last".
std::pair<std::string, std::string> coversIn(const char *sheets) {
  const ChoiceList list = splitChoices(sheets != nullptr ? sheets : "");
  return {!list.empty() ? list.front() : kNone, list.size() > 1 ? list[1] : kNone};
}

/// Adds the chosen value if it is not listed.
void listChosen(PrinterOption &option, const std::string &text) {
  for (const OptionChoice &choice : option.choices)
    if (isSame(choice.keyword, option.chosen)) {
      option.chosen = choice.keyword;
      return;
    }
  option.choices.push_back({option.chosen, text});
}

/// Hour and minute as the user entered them; none if they are not.
std::optional<TimeOfDay> enteredTime(const CustomOption &custom, const std::string &value) {
  const auto entries = readCustomValue(custom, value);
  if (!entries || entries->size() != 2)
    return std::nullopt;
  return TimeOfDay{std::atoi((*entries)[0].c_str()), std::atoi((*entries)[1].c_str())};
}

} // namespace

JobSettings::JobSettings(PrinterDescription &printer, PrintSettingsStore &job,
                         JobSettingsContext context)
    : printer_(printer), job_(job), context_(std::move(context)) {}

bool JobSettings::isPrinters(const JobSetting &setting) const {
  return isPrinterOption(printer_, setting.name);
}

std::string JobSettings::usual(const JobSetting &setting) const {
  if (auto value = valueIn(printer_.queueDefaults(), setting))
    return *value;
  const bool isReversed = isSame(setting.name, "outputorder") &&
                          contains(printer_.attributeValues("DefaultOutputOrder"), "Reverse");
  return isReversed ? "reverse" : setting.usual;
}

std::string JobSettings::effective(const char *name) const {
  const JobSetting &setting = *findSetting(name);
  return valueIn(job_, setting).value_or(usual(setting));
}

int JobSettings::pagesPerSide() const {
  const std::string number = effective("number-up");
  int pages = 0;
  std::from_chars(number.data(), number.data() + number.size(), pages);
  const bool isKnown = effective("booklet") != "true" && pages > 0 && pages <= kMostPerSide;
  return isKnown ? pages : 0;
}

PrinterOption JobSettings::option(const JobSetting &setting) const {
  PrinterOption option;
  option.keyword = setting.name;
  option.text = setting.text;
  option.defaultChoice = usual(setting);
  option.chosen = valueIn(job_, setting).value_or(option.defaultChoice);
  option.custom = customValueOf(option.keyword);
  option.takesCustomValue = option.custom.has_value();
  option.enterText = commandOf(option.keyword);
  for (const SettingChoice &choice : setting.choices)
    if (*choice.value != '\0' || option.defaultChoice.empty()) // otherwise nothing stands for it
      option.choices.push_back(
          {choice.value, choice.text ? choice.text->str() : std::string(choice.value)});
  listChosen(option, textOfOther(option.keyword, option.chosen));
  const auto isLocked = [&](const char *name) { return job_.isLocked(name); };
  option.isLocked = isLocked(setting.name) ||
                    std::any_of(setting.aliases.begin(), setting.aliases.end(), isLocked);
  const bool isBooklet = effective("booklet") == "true";
  const bool isSeveral = !isBooklet && effective("number-up") != "1";
  if ((option.keyword == "number-up" && isBooklet) ||
      (option.keyword == "number-up-layout" && !isSeveral))
    option.isLocked = true;
  return option;
}

PrinterOption JobSettings::coverPage(bool isLast) const {
  const auto part = [=](const char *sheets) {
    const auto covers = coversIn(sheets);
    return isLast ? covers.second : covers.first;
  };
  PrinterOption option;
  option.keyword = isLast ? kLastCover : kFirstCover;
  option.text = isLast ? messages::kLastCover : messages::kFirstCover;
  option.defaultChoice = part(printer_.queueDefaults().get(kCovers));
  const char *const stored = job_.get(kCovers);
  option.chosen = stored != nullptr ? part(stored) : option.defaultChoice;
  option.choices.push_back({kNone, messages::kNoCover});
  for (const std::string &cover : context_.coverPages)
    if (!isSame(cover, kNone))
      option.choices.push_back({cover, messages::coverName(cover)});
  listChosen(option, messages::coverName(option.chosen));
  option.isLocked = job_.isLocked(kCovers);
  return option;
}

PrinterOption JobSettings::title() const {
  PrinterOption option;
  option.keyword = kTitleSetting;
  option.text = messages::kJobTitle;
  option.choices.push_back({"", visible(context_.title)});
  const char *const stored = job_.get(kTitleSetting);
  option.chosen = stored != nullptr ? stored : "";
  option.custom = customValueOf(kTitleSetting);
  option.takesCustomValue = true;
  option.enterText = commandOf(kTitleSetting);
  listChosen(option, visible(option.chosen));
  option.isLocked = job_.isLocked(kTitleSetting);
  return option;
}

std::vector<OptionGroup> JobSettings::listed() const {
  OptionGroup layout{"layout", messages::kLayoutGroup, {}};
  OptionGroup job{"job", messages::kJobGroup, {}};
  for (const JobSetting &setting : jobSettings())
    if (!isPrinters(setting))
      (setting.group == JobSetting::Group::Layout ? layout : job)
          .options.push_back(option(setting));
  for (const bool isLast : {false, true})
    job.options.push_back(coverPage(isLast));
  if (!context_.title.empty())
    job.options.push_back(title());
  return {std::move(layout), std::move(job)};
}

std::optional<PrinterOption> JobSettings::find(const std::string &keyword) const {
  for (OptionGroup &group : listed())
    for (PrinterOption &option : group.options)
      if (isSame(option.keyword, keyword))
        return std::optional<PrinterOption>(std::move(option));
  return std::nullopt;
}

bool JobSettings::store(const PrinterOption &option, const std::string &value) {
  if (const JobSetting *const setting = findSetting(option.keyword))
    for (const char *alias : setting->aliases)
      job_.remove(alias); // or the job would contradict itself
  if (value != option.defaultChoice)
    return job_.set(option.keyword, value) == PrintSettingsStore::Outcome::Stored;
  job_.remove(option.keyword);
  return true;
}

bool JobSettings::storeCoverPage(bool isLast, const std::string &cover) {
  const std::string first = isLast ? coverPage(false).chosen : cover;
  const std::string last = isLast ? cover : coverPage(true).chosen;
  if (first == coverPage(false).defaultChoice && last == coverPage(true).defaultChoice) {
    job_.remove(kCovers);
    return true;
  }
  return job_.set(kCovers, first + "," + last) == PrintSettingsStore::Outcome::Stored;
}

/// A booklet's back sides are printed upside down when the sheet is turned over its long edge.
std::string JobSettings::makeTwoSided() {
  PrinterOptions options(printer_, job_);
  const auto sides = options.twoSided();
  if (!sides)
    return messages::kBookletOneSided;
  const bool wasChosen = isSame(sides->chosen, kShortEdge);
  if (wasChosen || !options.choose(sides->keyword, kShortEdge))
    return {};
  return messages::bookletSides(sides->text, sides->textOf(kShortEdge));
}

std::optional<std::string> JobSettings::choose(const std::string &keyword,
                                               const std::string &choice) {
  const auto option = find(keyword);
  if (!option || option->isLocked)
    return std::nullopt;
  std::string value = choice;
  if (option->custom && isEnteredValue(choice)) {
    if (!customValueProblem(*option->custom, choice).empty())
      return std::nullopt;
    const auto time = enteredTime(*option->custom, choice);
    value = time ? holdUntil(*time, std::time(nullptr)) : withoutCustomPrefix(choice);
  }
  const bool isLastCover = option->keyword == kLastCover;
  const bool isStored = isLastCover || option->keyword == kFirstCover
                            ? storeCoverPage(isLastCover, value)
                            : store(*option, value);
  if (!isStored)
    return std::nullopt;
  return option->keyword == "booklet" && value == "true" ? makeTwoSided() : "";
}

std::string JobSettings::firstValue(const std::string &keyword) const {
  const auto option = find(keyword);
  if (!option || !option->custom)
    return {};
  if (option->keyword != "job-hold-until")
    return option->chosen.empty() ? "" : withCustomPrefix(option->chosen);
  const auto set = localReleaseTime(option->chosen, std::time(nullptr));
  const std::time_t now = std::time(nullptr);
  std::tm local{};
  localtime_r(&now, &local);
  const TimeOfDay time = set.value_or(TimeOfDay{(local.tm_hour + 1) % 24, 0});
  return writeCustomValue(*option->custom,
                          {std::to_string(time.hour), std::to_string(time.minute)});
}

std::size_t JobSettings::differing() const {
  std::size_t count = 0;
  for (const OptionGroup &group : listed())
    count += std::count_if(group.options.begin(), group.options.end(),
                           [](const PrinterOption &option) { return option.differsFromDefault(); });
  return count;
}

SummarySection JobSettings::section() const {
  SummarySection section{messages::kMorePane, {}};
  for (const OptionGroup &group : listed())
    for (const PrinterOption &option : group.options) {
      const JobSetting *const setting = findSetting(option.keyword);
      const std::string usual = setting != nullptr                ? setting->usual
                                : option.keyword == kTitleSetting ? ""
                                                                  : kNone;
      const bool differs = option.differsFromDefault();
      if (!differs && option.chosen == usual)
        continue;
      const std::string chosen = option.textOf(option.chosen);
      section.lines.push_back(
          {option.text,
           differs ? messages::differingValue(chosen, option.textOf(option.defaultChoice)) : chosen,
           differs});
    }
  return section;
}

std::vector<std::string> JobSettings::names() const {
  std::vector<std::string> names{kCovers, kTitleSetting};
  for (const JobSetting &setting : jobSettings()) {
    if (isPrinters(setting))
      continue;
    names.emplace_back(setting.name);
    names.insert(names.end(), setting.aliases.begin(), setting.aliases.end());
  }
  return names;
}

bool hasLandscapePages(const PrintSettingsStore &settings, bool isDocumentLandscape) {
  static const std::vector<std::string> kTurned{"4", "5"};
  const auto orientation = valueIn(settings, *findSetting("orientation-requested"));
  return isDocumentLandscape || (orientation && contains(kTurned, *orientation));
}

bool isLayoutSetting(const PrinterDescription &printer, const std::string &name) {
  if (isPrinterOption(printer, name))
    return false;
  return std::any_of(jobSettings().begin(), jobSettings().end(), [&](const JobSetting &setting) {
    return setting.group == JobSetting::Group::Layout &&
           (isSame(setting.name, name) ||
            std::any_of(setting.aliases.begin(), setting.aliases.end(),
                        [&](const char *alias) { return isSame(alias, name); }));
  });
}

} // namespace imageposition
