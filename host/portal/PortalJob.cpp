#include "PortalJob.hpp"

#include "Copies.hpp"
#include "ExitCode.hpp"
#include "LengthUnit.hpp"
#include "OptionText.hpp"
#include "PageRanges.hpp"
#include "SettingTable.hpp"
#include "Strings.hpp"
#include "Units.hpp"

#include <cups/cups.h>
#include <cups/pwg.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <optional>
#include <string_view>

namespace imageposition {

namespace {

constexpr const char *kCupsPrefix = "cups-";

/// One value of a setting, and of the job's option that means the same.
struct Meaning {
  const char *setting;
  const char *value;
  const char *option;
  const char *choice;
};

/// The first row of an option is what its choice becomes in return.
constexpr Meaning kMeanings[] = {
    {"duplex", "simplex", "sides", "one-sided"},
    {"duplex", "horizontal", "sides", "two-sided-long-edge"},
    {"duplex", "vertical", "sides", "two-sided-short-edge"},
    {"quality", "draft", "print-quality", "3"},
    {"quality", "low", "print-quality", "3"},
    {"quality", "normal", "print-quality", "4"},
    {"quality", "high", "print-quality", "5"},
    {"use-color", "true", "print-color-mode", "color"},
    {"use-color", "false", "print-color-mode", "monochrome"},
    {"collate", "true", "multiple-document-handling", "separate-documents-collated-copies"},
    {"collate", "false", "multiple-document-handling", "separate-documents-uncollated-copies"},
    {"reverse", "true", "outputorder", "reverse"},
    {"page-set", "even", "page-set", "even"},
    {"page-set", "odd", "page-set", "odd"},
};

/// What the dialog stores in place of those options when the user chooses.
constexpr Meaning kChosen[] = {
    {"duplex", "simplex", "Duplex", "None"},
    {"duplex", "horizontal", "Duplex", "DuplexNoTumble"},
    {"duplex", "vertical", "Duplex", "DuplexTumble"},
    {"quality", "draft", "cupsPrintQuality", "Draft"},
    {"quality", "normal", "cupsPrintQuality", "Normal"},
    {"quality", "high", "cupsPrintQuality", "High"},
    {"use-color", "true", "ColorModel", "RGB"},
    {"use-color", "true", "ColorModel", "CMYK"},
    {"use-color", "true", "ColorModel", "Color"},
    {"use-color", "false", "ColorModel", "Gray"},
    {"use-color", "false", "ColorModel", "KGray"},
    {"collate", "true", "Collate", "True"},
    {"collate", "false", "Collate", "False"},
};

/// Settings whose value is a choice of one of the printer's options.
constexpr std::pair<const char *, const char *> kPrinterChoices[] = {
    {"default-source", "InputSlot"}, {"media-type", "MediaType"}, {"output-bin", "OutputBin"}};

/// IPP's numbers.
constexpr std::pair<const char *, const char *> kOrientations[] = {
    {"portrait", "3"}, {"landscape", "4"}, {"reverse_landscape", "5"}, {"reverse_portrait", "6"}};

/// What the application must not apply.
const PortalSettings kNeutral = {
    {"n-copies", "1"},  {"reverse", "false"},   {"page-set", "all"},           {"scale", "100"},
    {"number-up", "1"}, {"print-pages", "all"}, {"output-file-format", "pdf"},
};

/// Where GTK itself would write a file.
constexpr const char *kOutputSettings[] = {"output-uri", "output-dir", "output-basename",
                                           "page-ranges"};

std::string valueOf(const PortalSettings &settings, const std::string &name) {
  const auto found = settings.find(name);
  return found == settings.end() ? "" : found->second;
}

std::string valueOf(const PrintSettingsStore &settings, const char *name) {
  const char *const value = settings.get(name);
  return value != nullptr ? value : "";
}

/// GTK counts pages from 0: "0-2,4". Empty if they are not understood.
std::string pagesOf(const std::string &ranges) {
  std::string pages;
  for (std::size_t at = 0; at < ranges.size();) {
    if (ranges[at] < '0' || ranges[at] > '9') {
      pages += ranges[at++];
      continue;
    }
    char *end = nullptr;
    const long page = std::strtol(ranges.c_str() + at, &end, 10);
    pages += std::to_string(std::min<long>(page, PageRange::kToTheEnd - 1) + 1);
    at = static_cast<std::size_t>(end - ranges.c_str());
  }
  try {
    return PageRanges::parse(pages).optionValue();
  } catch (const Failure &) {
    return {};
  }
}

/// The name of a standard size within half a millimetre, or else that of the PPD; may be empty.
std::string mediaOf(const PortalPage &page) {
  const auto hundredths = [](double millimetres) {
    return static_cast<int>(std::lround(std::clamp(millimetres, 0.0, 1e6) * 100));
  };
  const pwg_media_t *const paper =
      page.width > 0 && page.height > 0
          ? pwgMediaForSize(hundredths(page.width), hundredths(page.height))
          : nullptr;
  const std::string name = paper != nullptr ? paper->pwg : "";
  return name.empty() || name.compare(0, 6, "custom") == 0 ? page.ppdName : name;
}

/// Whether an application may propose this option: it is one that the dialog shows, because the
/// user must see what will happen. Names with a capital letter belong to the printer's description;
/// the dialog leaves out those that it does not have.
bool isShown(const std::string &name) {
  const bool hasCapital =
      std::any_of(name.begin(), name.end(), [](char c) { return c >= 'A' && c <= 'Z'; });
  return hasCapital || name == "job-sheets" || findSetting(name) != nullptr;
}

class Words {
public:
  void add(const std::string &option, const std::string &value) {
    if (value.empty() || !PrintSettingsStore::isUsableName(option) ||
        !PrintSettingsStore::isUsableValue(value))
      return;
    words.push_back("-o" + writeOptionArgument(option, value));
  }

  std::vector<std::string> words;
};

std::string askedOrientation(const PortalJob &job) {
  return job.page.orientation.empty() ? valueOf(job.settings, "orientation") : job.page.orientation;
}

void addPages(const PortalSettings &settings, Words &words) {
  if (valueOf(settings, "print-pages") == "ranges")
    words.add("page-ranges", pagesOf(valueOf(settings, "page-ranges")));
}

void addLayout(const PortalJob &job, Words &words) {
  const JobSetting *const perSheet = findSetting("number-up");
  const std::string number = valueOf(job.settings, "number-up");
  for (const SettingChoice &choice : perSheet->choices)
    if (number == choice.value && number != perSheet->usual) {
      words.add("number-up", number);
      words.add("number-up-layout", valueOf(job.settings, "number-up-layout"));
    }
  const std::string orientation = askedOrientation(job);
  for (const auto &[name, choice] : kOrientations)
    if (orientation == name && orientation != "portrait")
      words.add("orientation-requested", choice);
}

std::optional<std::string> settingIn(const Ticket &prepared, const char *setting) {
  for (const auto &[name, option] : kPrinterChoices)
    if (std::string_view(name) == setting && prepared.settings.get(option) != nullptr)
      return prepared.settings.get(option);
  for (const Meaning &meaning : kChosen)
    if (std::string_view(meaning.setting) == setting &&
        isSame(valueOf(prepared.settings, meaning.option), meaning.choice))
      return meaning.value;
  for (const Meaning &meaning : kMeanings)
    if (std::string_view(meaning.setting) == setting &&
        isSame(valueOf(prepared.settings, meaning.option), meaning.choice))
      return meaning.value;
  return std::nullopt;
}

std::string orientationOf(const PortalJob &asked, const Ticket &prepared) {
  const auto number = valueIn(prepared.settings, *findSetting("orientation-requested"));
  for (const auto &[name, choice] : kOrientations)
    if (number && *number == choice)
      return name;
  const std::string kept = askedOrientation(asked);
  return kept.empty() ? "portrait" : kept;
}

/// "iso_a4" of "iso_a4_210x297mm".
std::string nameWithoutSize(const pwg_media_t &paper) {
  const std::string name = paper.pwg;
  return name.substr(0, name.rfind('_'));
}

PortalPage pageOf(const TicketPaper &paper) {
  PortalPage page;
  const pwg_media_t *const standard = pwgMediaForPPD(paper.keyword.c_str());
  page.name = standard != nullptr ? nameWithoutSize(*standard) : paper.keyword;
  page.ppdName = paper.keyword;
  page.displayName = paper.text;
  page.width = paper.width * kMillimetresPerPoint;
  page.height = paper.length * kMillimetresPerPoint;
  page.top = paper.top * kMillimetresPerPoint;
  page.bottom = paper.bottom * kMillimetresPerPoint;
  page.left = paper.left * kMillimetresPerPoint;
  page.right = paper.right * kMillimetresPerPoint;
  return page;
}

void setPaper(const PortalPage &page, PortalSettings &settings) {
  settings["paper-format"] = page.name;
  settings["paper-width"] = plainNumber(page.width, 2);
  settings["paper-height"] = plainNumber(page.height, 2);
}

/// Drops what the user has changed, which may have become a password.
void keepProposed(const PrintSettingsStore &prepared, PortalSettings &settings) {
  const std::string prefix = kCupsPrefix;
  for (auto it = settings.begin(); it != settings.end();) {
    const bool isOption = it->first.compare(0, prefix.size(), prefix) == 0;
    const bool isKept =
        !isOption || valueOf(prepared, it->first.c_str() + prefix.size()) == it->second;
    it = isKept ? std::next(it) : settings.erase(it);
  }
}

} // namespace

std::vector<std::string> wordsFor(const PortalJob &job) {
  Words words;
  if (const std::string queue = valueOf(job.settings, "printer"); !queue.empty())
    words.words = {"-d" + queue}; // one word, because it may begin with a hyphen
  const auto copies = readCopies(valueOf(job.settings, "n-copies"));
  if (copies && *copies > 1)
    words.add("copies", std::to_string(*copies));
  for (const Meaning &meaning : kMeanings)
    if (valueOf(job.settings, meaning.setting) == meaning.value)
      words.add(meaning.option, meaning.choice);
  addPages(job.settings, words);
  addLayout(job, words);
  words.add("media", mediaOf(job.page));
  for (const auto &[setting, option] : kPrinterChoices)
    words.add(option, valueOf(job.settings, setting));
  const std::string prefix = kCupsPrefix;
  for (const auto &[name, value] : job.settings)
    if (name.compare(0, prefix.size(), prefix) == 0 && isShown(name.substr(prefix.size())))
      words.add(name.substr(prefix.size()), value);
  return words.words;
}

PortalJob replyTo(const PortalJob &asked, const Ticket &prepared) {
  PortalJob reply = asked;
  keepProposed(prepared.settings, reply.settings);
  for (const char *const name : kOutputSettings)
    reply.settings.erase(name);
  for (const char *const name : {"duplex", "quality", "use-color", "collate", "default-source",
                                 "media-type", "output-bin"}) {
    const auto value = settingIn(prepared, name);
    if (value)
      reply.settings[name] = *value;
    else
      reply.settings.erase(name);
  }
  for (const auto &[name, value] : kNeutral)
    reply.settings[name] = value;
  reply.settings["printer"] = prepared.printer;
  if (prepared.paper)
    reply.page = pageOf(*prepared.paper);
  reply.page.orientation = orientationOf(asked, prepared);
  reply.settings["orientation"] = reply.page.orientation;
  setPaper(reply.page, reply.settings);
  return reply;
}

Ticket ticketToPrint(Ticket prepared) {
  const JobSetting &orientation = *findSetting("orientation-requested");
  prepared.settings.remove(orientation.name);
  for (const char *const alias : orientation.aliases)
    prepared.settings.remove(alias);
  return prepared;
}

} // namespace imageposition
