#include "JobSplit.hpp"

#include "SharedKeys.h"
#include "Strings.hpp"

#include <cstring>
#include <string_view>
#include <vector>

namespace imageposition {

namespace {

/// What lays pages out, and the value with which it does nothing; null if leaving the option out is
/// the only way. A value that is always sent overrides a default that CUPS adds to the job.
struct LayoutOption {
  const char *name;
  const char *neutral;
  bool isAlwaysSent;
};

constexpr LayoutOption kLayoutOptions[] = {
    {"number-up", "1", true},
    {"page-set", "all", true},
    {"print-scaling", "none", true},
    {"orientation-requested", "3", true},
    {"mirror", "false", true},
    {"page-border", "none", true},
    {"number-up-layout", nullptr, false},
    {"page-ranges", nullptr, false},
    {"landscape", "false", false},
    {"fit-to-page", "false", false},
    {"fitplot", "false", false},
    {"fill", "false", false},
    {"crop-to-fit", "false", false},
    {"ipp-attribute-fidelity", "false", false}, // fits to the page, too
    {"scaling", nullptr, false},
    {"natural-scaling", nullptr, false},
    {"ppi", nullptr, false},
    {"position", "center", false},
    {"booklet", "false", false},
    {"booklet-signature", nullptr, false},
    {"page-label", "", false},
    {"page-top", nullptr, false},
    {"page-left", nullptr, false},
    {"page-right", nullptr, false},
    {"page-bottom", nullptr, false},
    {"media-top-margin", nullptr, false},
    {"media-left-margin", nullptr, false},
    {"media-right-margin", nullptr, false},
    {"media-bottom-margin", nullptr, false},
    {"MirrorPrint", "False", false},
};

/// What applies to the printed job alone.
const std::vector<std::string> kPrintingOptions{"copies",
                                                "Collate",
                                                "multiple-document-handling",
                                                "sheet-collate",
                                                "Copies",
                                                "OutputOrder",
                                                "output-order",
                                                "page-delivery",
                                                "job-sheets",
                                                "job-password",
                                                "job-password-encryption",
                                                "notify-recipient-uri",
                                                kShiftNote};

const std::vector<std::string> kOffsets{IPA_KEY_FRONT_LEFT_RIGHT, IPA_KEY_FRONT_TOP_BOTTOM,
                                        IPA_KEY_BACK_LEFT_RIGHT, IPA_KEY_BACK_TOP_BOTTOM,
                                        IPA_KEY_ENABLE};

/// Printers that are told in their job language to print a booklet turn it about the short edge.
void turnBooklet(PrintSettingsStore &options, const char *booklet, ppd_file_t *ppd) {
  const ppd_option_t *const duplex = ppdFindOption(ppd, "Duplex");
  if (booklet != nullptr && isTrue(booklet) && duplex != nullptr &&
      duplex->section == PPD_ORDER_JCL)
    options.set("Duplex", "DuplexTumble");
}

std::string millimetres(TenthMillimetre length) {
  const std::int64_t tenths = length.count < 0 ? -length.count : length.count;
  std::string text = (length.count < 0 ? "-" : "") + std::to_string(tenths / 10);
  if (tenths % 10 != 0)
    text += "." + std::to_string(tenths % 10);
  return text;
}

std::string millimetres(const Offset &offset) {
  return millimetres(offset.right) + " " + millimetres(offset.down);
}

} // namespace

JobSplit splitJob(const JobRequest &job, ppd_file_t *ppd, const std::string &note) {
  const PrintSettingsStore all = optionsToSend(job);
  JobSplit split;
  split.layout = all;
  for (int i = 0; i < all.optionCount(); i++) {
    const char *const name = all.options()[i].name;
    if (contains(kPrintingOptions, name) || contains(kOffsets, name) || isSecret(job, name))
      split.layout.remove(name);
  }
  split.layout.set("OutputOrder", "Normal");
  split.layout.set("emit-jcl", "false");

  split.printing = job;
  split.printing.settings = all;
  neutralizeLayout(split.printing.settings, job.defaults);
  turnBooklet(split.printing.settings, all.get("booklet"), ppd);
  removeOffsets(split.printing);
  split.printing.defaults = {};
  split.printing.settings.set(IPA_KEY_ENABLE, IPA_VALUE_FALSE);
  split.printing.settings.set(kShiftNote, note);
  return split;
}

void neutralizeLayout(PrintSettingsStore &options, const PrintSettingsStore &defaults) {
  for (const LayoutOption &option : kLayoutOptions) {
    const bool isAdded = option.isAlwaysSent || defaults.get(option.name) != nullptr;
    if (isAdded && option.neutral != nullptr)
      options.set(option.name, option.neutral);
    else
      options.remove(option.name);
  }
}

const std::vector<std::string> &offsetOptions() { return kOffsets; }

void removeOffsets(JobRequest &job) {
  for (const std::string &offset : kOffsets) {
    const bool isAdded = job.defaults.get(offset) != nullptr;
    job.settings.remove(offset);
    job.defaults.remove(offset);
    if (isAdded)
      job.settings.set(offset, offset == IPA_KEY_ENABLE ? IPA_VALUE_FALSE : "0");
  }
}

std::string shiftNote(const ShiftPlan &plan) {
  return "front " + millimetres(plan.front) + " back " + millimetres(plan.back);
}

std::string filterOptions(const PrintSettingsStore &options) {
  std::string text;
  for (int i = 0; i < options.optionCount(); i++) {
    const cups_option_t &option = options.options()[i];
    text += (text.empty() ? "" : " ") + std::string(option.name) + '=';
    for (const char *c = option.value; *c != '\0'; c++) {
      if (std::strchr(" \t\n\\'\"", *c) != nullptr)
        text += '\\';
      text += *c;
    }
  }
  return text;
}

} // namespace imageposition
