#include "JobRequest.hpp"

#include "CupsHandles.hpp"
#include "CustomValue.hpp"
#include "ExitCode.hpp"
#include "JobTexts.hpp"
#include "SecretOptions.hpp"
#include "VisibleText.hpp"

#include <algorithm>
#include <strings.h>
#include <vector>

namespace imageposition {

namespace {

/// Names for one thing; the first in the job's settings decides, whatever the defaults call it.
const std::vector<std::vector<const char *>> kSynonyms = {
    {"sides", "Duplex"},
    {"media", "media-col", "PageSize", "PageRegion"},
    {"output-bin", "OutputBin"},
    {"print-color-mode", "ColorModel"},
    {"print-quality", "cupsPrintQuality"},
    {"multiple-document-handling", "Collate"},
    {"printer-resolution", "Resolution"},
};

bool isDisplaced(const char *name, const PrintSettingsStore &settings) {
  for (const auto &synonyms : kSynonyms) {
    const auto isName = [=](const char *synonym) { return strcasecmp(synonym, name) == 0; };
    if (std::none_of(synonyms.begin(), synonyms.end(), isName))
      continue;
    return std::any_of(synonyms.begin(), synonyms.end(),
                       [&](const char *synonym) { return settings.get(synonym) != nullptr; });
  }
  return false;
}

void add(PrintSettingsStore &options, const char *name, const std::string &value) {
  if (options.set(name, value) != PrintSettingsStore::Outcome::Stored)
    throw Failure(ExitCode::Usage, messages::unusableOption(name));
}

[[noreturn]] void refuse(const std::string &message) { throw Failure(ExitCode::Usage, message); }

void addPages(const JobRequest &request, PrintSettingsStore &options) {
  const char *const stored = options.get("page-ranges");
  const std::string pages = request.pageRanges.value_or(stored != nullptr ? stored : "");
  options.remove("page-ranges");
  if (!pages.empty()) // CUPS refuses ranges that are not ascending
    add(options, "page-ranges", PageRanges::parse(pages).optionValue());
  if (request.pageSet) {
    options.remove("page-set");
    if (*request.pageSet != PageSet::All)
      add(options, "page-set", *request.pageSet == PageSet::Odd ? "odd" : "even");
  }
}

void addCopies(const JobRequest &request, PrintSettingsStore &options) {
  if (request.copies) {
    if (*request.copies < 1)
      refuse(messages::badCopies(*request.copies));
    add(options, "copies", std::to_string(*request.copies));
  }
  if (request.collate) { // the first for CUPS and IPP printers, the second for PPDs and filters
    add(options, "multiple-document-handling",
        *request.collate ? "separate-documents-collated-copies"
                         : "separate-documents-uncollated-copies");
    add(options, "Collate", *request.collate ? "True" : "False");
  }
}

void addSchedule(const JobRequest &request, PrintSettingsStore &options) {
  if (request.holdUntil) {
    if (request.holdUntil->empty())
      refuse(messages::kBadHold);
    add(options, "job-hold-until", *request.holdUntil);
  }
  if (request.priority) {
    if (*request.priority < 1 || *request.priority > 100)
      refuse(messages::badPriority(*request.priority));
    add(options, "job-priority", std::to_string(*request.priority));
  }
}

void addNumberUp(const JobRequest &request, PrintSettingsStore &options) {
  if (!request.numberUp)
    return;
  constexpr int kLayouts[] = {1, 2, 4, 6, 9, 16}; // CUPS's
  if (std::find(std::begin(kLayouts), std::end(kLayouts), *request.numberUp) == std::end(kLayouts))
    refuse(messages::badNumberUp(*request.numberUp));
  add(options, "number-up", std::to_string(*request.numberUp));
}

bool contains(const std::vector<std::string> &names, const char *name) {
  return std::any_of(names.begin(), names.end(), [=](const std::string &other) {
    return strcasecmp(other.c_str(), name) == 0;
  });
}

bool isCompound(const JobRequest &request, const cups_option_t &option) {
  return option.value[0] == '{' && contains(request.compounds, option.name);
}

/// The longest value of IPP's type "name"; a text may be longer.
constexpr std::size_t kLongestName = 255;

void addCompounds(ipp_t *request, const JobRequest &job, const PrintSettingsStore &options) {
  for (int i = 0; i < options.optionCount(); i++) {
    const cups_option_t &option = options.options()[i];
    if (!isCompound(job, option))
      continue;
    const bool isShort = std::string_view(option.value).size() <= kLongestName;
    ippAddString(request, IPP_TAG_JOB, isShort ? IPP_TAG_NAME : IPP_TAG_TEXT, option.name, nullptr,
                 option.value);
  }
}

std::string groupName(ipp_tag_t group) {
  switch (group) {
  case IPP_TAG_OPERATION:
    return "operation";
  case IPP_TAG_JOB:
    return "job";
  default:
    return "subscription";
  }
}

std::string valueText(ipp_attribute_t *attribute) {
  const std::size_t length = ippAttributeString(attribute, nullptr, 0);
  std::string text(length + 1, '\0'); // with the terminator that is written
  ippAttributeString(attribute, &text[0], text.size());
  text.resize(length);
  return text;
}

std::string attributeText(const JobRequest &request, ipp_attribute_t *attribute) {
  const std::string name = ippGetName(attribute);
  const ipp_tag_t type = ippGetValueTag(attribute);
  const std::string value =
      isSecret(request, name.c_str()) ? kHiddenValue : visible(valueText(attribute));
  std::string text = groupName(ippGetGroupTag(attribute)) + " " + name + " (" + ippTagString(type) +
                     ") = " + value + "\n";
  if (type == IPP_TAG_BOOLEAN)
    text += "    " + messages::filtersRead((ippGetBoolean(attribute, 0) ? "" : "no") + name) + "\n";
  return text;
}

} // namespace

PrintSettingsStore optionsToSend(const JobRequest &request) {
  // The fields' own options come first, so that they displace defaults too.
  PrintSettingsStore own;
  const PrintSettingsStore &settings = request.settings;
  for (int i = 0; i < settings.optionCount(); i++)
    add(own, settings.options()[i].name, settings.options()[i].value);
  addCopies(request, own);
  addSchedule(request, own);
  addNumberUp(request, own);
  PrintSettingsStore options;
  for (int i = 0; i < request.defaults.optionCount(); i++) {
    const cups_option_t &option = request.defaults.options()[i];
    if (!isDisplaced(option.name, own))
      add(options, option.name, option.value);
  }
  for (int i = 0; i < own.optionCount(); i++)
    add(options, own.options()[i].name, own.options()[i].value);
  addPages(request, options); // removes defaults too
  return options;
}

bool isSecret(const JobRequest &request, const char *name) {
  return isSecretName(name) || contains(request.secrets, name);
}

bool hasCompound(const JobRequest &request, const PrintSettingsStore &options) {
  const cups_option_t *const all = options.options();
  return std::any_of(all, all + options.optionCount(),
                     [&](const cups_option_t &option) { return isCompound(request, option); });
}

ipp_t *newJobRequest(const JobRequest &request, const PrintSettingsStore &options) {
  ipp_t *const ipp = ippNewRequest(IPP_OP_CREATE_JOB);
  const auto addText = [=](ipp_tag_t type, const char *name, const char *value) {
    ippAddString(ipp, IPP_TAG_OPERATION, type, name, nullptr, value);
  };
  if (!request.printerUri.empty())
    addText(IPP_TAG_URI, "printer-uri", request.printerUri.c_str());
  addText(IPP_TAG_NAME, "requesting-user-name", cupsUser());
  addText(IPP_TAG_NAME, "job-name", request.title.c_str());
  PrintSettingsStore simple = options;
  for (int i = 0; i < options.optionCount(); i++)
    if (isCompound(request, options.options()[i]))
      simple.remove(options.options()[i].name);
  for (const ipp_tag_t group : {IPP_TAG_OPERATION, IPP_TAG_JOB, IPP_TAG_SUBSCRIPTION}) {
    cupsEncodeOptions2(ipp, simple.optionCount(), const_cast<cups_option_t *>(simple.options()),
                       group); // only read
    if (group == IPP_TAG_JOB)
      addCompounds(ipp, request, options);
  }
  return ipp;
}

std::string writeRequestText(const JobRequest &request) {
  const PrintSettingsStore options = optionsToSend(request);
  const IppMessage ipp(newJobRequest(request, options));
  std::string text;
  for (ipp_attribute_t *attribute = ippFirstAttribute(ipp.get()); attribute != nullptr;
       attribute = ippNextAttribute(ipp.get()))
    if (ippGetName(attribute) != nullptr) // else it stands between two groups
      text += attributeText(request, attribute);
  return text;
}

} // namespace imageposition
