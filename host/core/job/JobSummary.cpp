#include "JobSummary.hpp"

#include "CustomValue.hpp"
#include "DocumentNames.hpp"
#include "ExitCode.hpp"
#include "JobTexts.hpp"
#include "PageRanges.hpp"
#include "Phrases.hpp"
#include "PrinterOptions.hpp"
#include "Strings.hpp"

#include <cstring>

namespace imageposition {

namespace {

/// The settings that `jobSection` shows.
const std::vector<std::string> kJobOptions = {"copies", "page-ranges", "page-set"};

bool isOffByDefault(const PrinterOption &option) {
  static const std::vector<std::string> kOff = {"None", "Off", "False"};
  return !option.differsFromDefault() && (option.chosen.empty() || contains(kOff, option.chosen));
}

} // namespace

SummarySection jobSection(const std::string &printer, const std::vector<std::string> &documents,
                          const PrintSettingsStore &job) {
  SummarySection section{messages::kJobSection, {}};
  section.lines.push_back({messages::kPrinterTitle, printer});
  if (!documents.empty())
    section.lines.push_back({messages::kDocumentTitle, documentsInWords(documents)});
  const char *const stored = job.get("copies");
  const std::string copies = stored != nullptr ? stored : "1";
  section.lines.push_back({messages::kCopiesTitle, copies, copies != "1"});
  const PageChoice pages = readPageChoice(job);
  std::string text = pages.ranges ? pages.ranges->text() : messages::kAllPages.str();
  if (pages.set != PageSet::All)
    text = messages::inOrder(text, pages.set == PageSet::Odd ? messages::kOddPages
                                                             : messages::kEvenPages);
  section.lines.push_back(
      {messages::kPagesTitle, text, pages.ranges.has_value() || pages.set != PageSet::All});
  return section;
}

SummarySection optionSection(PrinterDescription &printer, PrintSettingsStore &job,
                             const std::vector<std::string> &announced) {
  SummarySection section{messages::kOptionsPane, {}};
  for (const OptionGroup &group : PrinterOptions(printer, job).listed(announced))
    for (const PrinterOption &option : group.options) {
      if (isOffByDefault(option))
        continue;
      const bool differs = option.differsFromDefault();
      const std::string chosen = option.textOf(option.chosen);
      section.lines.push_back(
          {option.text,
           differs ? messages::differingValue(chosen, option.textOf(option.defaultChoice)) : chosen,
           differs});
    }
  return section;
}

SummarySection otherSection(const JobRequest &request, PrinterDescription &printer,
                            const std::vector<std::string> &announced) {
  SummarySection section{messages::kOtherSection, {}};
  try {
    const PrintSettingsStore options = optionsToSend(request);
    for (int i = 0; i < options.optionCount(); i++) {
      const cups_option_t &option = options.options()[i];
      if (contains(kJobOptions, option.name) || contains(announced, option.name) ||
          std::strchr(option.name, '.') != nullptr || isPrinterOption(printer, option.name))
        continue;
      section.lines.push_back(
          {option.name, isSecret(request, option.name) ? kHiddenValue : option.value});
    }
  } catch (const Failure &failure) {
    section.lines.push_back({messages::kOtherSection, failure.what()});
  }
  return section;
}

} // namespace imageposition
