// Custom values for the options of any PPD, and the request that CUPS receives for a job.
#include "CheckText.hpp"
#include "CupsHandles.hpp"
#include "ExitCode.hpp"
#include "JobRequest.hpp"
#include "JobSummary.hpp"
#include "MemoryFile.hpp"
#include "PpdChecks.hpp"
#include "PrinterOptions.hpp"
#include "Strings.hpp"
#include "ValueCheck.hpp"

namespace imageposition::fuzz {

namespace {

/// An entry that the parameter should accept: its minimum, or a string of minimum length.
std::string smallestEntry(const CustomParameter &parameter) {
  if (!parameter.isText())
    return initialEntry(parameter, LengthUnit::Point);
  const double letters = std::min(std::max(parameter.minimum, 0.0), 1000.0);
  return std::string(static_cast<std::size_t>(letters), '7');
}

void checkParameter(const CustomParameter &parameter) {
  checkWords(parameter.text, "a parameter's text");
  check(parameter.minimum <= parameter.maximum, "a parameter's range is not empty");
  for (const LengthUnit unit : {LengthUnit::Millimetre, LengthUnit::Inch, LengthUnit::Point}) {
    checkWords(rangeText(parameter, unit), "a range");
    checkLine(initialEntry(parameter, unit), "a field's initial entry");
  }
  for (const std::string typed : {"", "x", "1e999", "-99999999999", "99999999999", "{"})
    checkLine(checkEntry(parameter, typed, LengthUnit::Inch).problem,
              "what is wrong with an entry");
}

/// Accepts the fields' initial entries unchanged, as a user can.
void checkEntered(PrinterDescription &printer, const PrintSettingsStore &job,
                  const PrinterOption &option) {
  CustomEntries entries;
  for (const CustomParameter &parameter : option.custom->parameters) {
    checkParameter(parameter);
    const CheckedEntry checked = checkEntry(parameter, smallestEntry(parameter), LengthUnit::Point);
    if (!checked.problem.empty())
      return checkLine(checked.problem, "what is wrong with an entry");
    entries.push_back(checked.entry);
  }
  const std::string value = writeCustomValue(*option.custom, entries);
  checkSame(customValueProblem(*option.custom, value), "", "entries make an accepted value");
  PrintSettingsStore trial = job;
  PrinterOptions options(printer, trial);
  check(options.choose(option.keyword, value) == !option.isLocked,
        "a custom value can be chosen: " + option.keyword + " " + value);
  const auto after = options.find(option.keyword);
  check(option.isLocked || after->chosenSet().count(value) != 0,
        "the custom value is set: " + value);
  checkWords(after->textOf(after->chosen), "a custom value's text");
}

/// Returns the request as CUPS receives it.
IppMessage sentAndReceived(const JobRequest &request, const PrintSettingsStore &options) {
  const IppMessage sent(newJobRequest(request, options));
  const MemoryFile file("");
  check(ippWriteFile(file.descriptor(), sent.get()) == IPP_STATE_DATA, "a request can be sent");
  lseek(file.descriptor(), 0, SEEK_SET);
  IppMessage received(ippNew());
  check(ippReadFile(file.descriptor(), received.get()) == IPP_STATE_DATA, "and received");
  return received;
}

/// Names without a capital are IPP attributes, which may have a type and several values.
bool hasCapital(const std::string &name) {
  return std::any_of(name.begin(), name.end(), [](char c) { return c >= 'A' && c <= 'Z'; });
}

std::string valueIn(ipp_attribute_t *attribute) {
  if (ippGetValueTag(attribute) == IPP_TAG_BOOLEAN)
    return ippGetBoolean(attribute, 0) ? "true" : "false";
  const char *const text = ippGetString(attribute, 0, nullptr);
  return text != nullptr ? text : ippTagString(ippGetValueTag(attribute));
}

/// A collection that is not a PPD option, such as an IPP printer's.
bool isForeignCollection(const JobRequest &request, const cups_option_t &option) {
  return option.value[0] == '{' &&
         std::none_of(request.compounds.begin(), request.compounds.end(),
                      [&](const std::string &name) { return isSame(name, option.name); });
}

void checkReceived(ipp_t *request, const cups_option_t &option) {
  ipp_attribute_t *attribute = ippFirstAttribute(request); // ippFindAttribute divides at "/"
  while (attribute != nullptr &&
         (ippGetName(attribute) == nullptr || !isSame(ippGetName(attribute), option.name)))
    attribute = ippNextAttribute(request);
  check(attribute != nullptr, std::string("the request has the option ") + option.name);
  check(ippGetCount(attribute) == 1, std::string("an option has one value: ") + option.name);
  const std::string value = valueIn(attribute);
  if (ippGetValueTag(attribute) == IPP_TAG_BOOLEAN)
    check(isSame(value, option.value), "a boolean keeps its value");
  else
    checkSame(value, option.value, std::string("the unchanged value of option ") + option.name);
}

void checkSummary(const SummarySection &section) {
  checkWords(section.panelName, "a heading");
  for (const SummaryLine &line : section.lines) {
    checkWords(line.title, "a title of the summary");
    check(isWellFormedUtf8(line.value),
          "a value of the summary is UTF-8"); // unchanged from the job
  }
}

JobRequest requestFor(PrinterDescription &printer, const PrintSettingsStore &job) {
  JobRequest request;
  request.printer = "office";
  request.title = "A document";
  request.settings = job;
  request.secrets = hiddenSettings(printer.ppd(), job);
  request.compounds = compoundOptions(printer.ppd());
  return request;
}

} // namespace

void checkEntries(PrinterDescription &printer, const PrintSettingsStore &job) {
  PrintSettingsStore own = job;
  for (const OptionGroup &group : PrinterOptions(printer, own).listed({}))
    for (const PrinterOption &option : group.options)
      if (option.custom)
        checkEntered(printer, job, option);
}

void checkRequest(PrinterDescription &printer, const PrintSettingsStore &job) {
  const JobRequest request = requestFor(printer, job);
  PrintSettingsStore own = job;
  checkSummary(jobSection(printer.name(), {"report.pdf"}, job));
  checkSummary(optionSection(printer, own, {}));
  checkSummary(sentSection(request));
  try {
    const PrintSettingsStore options = optionsToSend(request);
    const IppMessage known = sentAndReceived(request, options);
    for (int i = 0; i < options.optionCount(); ++i)
      if (hasCapital(options.options()[i].name) &&
          !isForeignCollection(request, options.options()[i]))
        checkReceived(known.get(), options.options()[i]);
    check(isWellFormedUtf8(writeRequestText(request)), "the printed request is UTF-8");
  } catch (const Failure &failure) {
    checkWords(failure.what(), "why a job cannot be sent");
  }
}

} // namespace imageposition::fuzz
