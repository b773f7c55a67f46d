#include "JobRequest.hpp"

#include "CupsHandles.hpp"
#include "CustomValue.hpp"
#include "DocumentNames.hpp"
#include "ExitCode.hpp"
#include "JobTexts.hpp"
#include "PageRanges.hpp"
#include "SecretOptions.hpp"
#include "Strings.hpp"
#include "VisibleText.hpp"

#include <algorithm>
#include <cups/cups.h>
#include <vector>

namespace imageposition {

namespace {

/// Synonymous options: a setting with one of the names overrides a default with another.
const std::vector<std::vector<const char *>> kSynonyms = {
    {"sides", "Duplex"},
    {"media", "media-col", "PageSize", "PageRegion"},
    {"output-bin", "OutputBin"},
    {"print-color-mode", "ColorModel"},
    {"print-quality", "cupsPrintQuality"},
    {"multiple-document-handling", "Collate"},
    {"printer-resolution", "Resolution"},
    {"orientation-requested", "landscape"},
    {"print-scaling", "fit-to-page", "fitplot", "fill"},
    {"outputorder", "page-delivery"},
};

bool isOverridden(const char *name, const PrintSettingsStore &settings) {
  for (const auto &synonyms : kSynonyms) {
    const auto isName = [=](const char *synonym) { return isSame(synonym, name); };
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

/// CUPS refuses page ranges that are not ascending.
void sortPages(PrintSettingsStore &options) {
  const char *const stored = options.get("page-ranges");
  const std::string pages = stored != nullptr ? stored : "";
  options.remove("page-ranges");
  if (!pages.empty())
    add(options, "page-ranges", PageRanges::parse(pages).optionValue());
}

bool isCompound(const JobRequest &request, const cups_option_t &option) {
  return option.value[0] == '{' && contains(request.compounds, option.name);
}

/// The maximum length of IPP's type "name"; its type "text" allows more.
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
  std::string text(length + 1, '\0'); // includes the terminating null
  ippAttributeString(attribute, &text[0], text.size());
  text.resize(length);
  return text;
}

std::string lineOf(ipp_tag_t group, const std::string &name, ipp_tag_t type,
                   const std::string &value) {
  return groupName(group) + " " + name + " (" + ippTagString(type) + ") = " + value + "\n";
}

std::string attributeText(const JobRequest &request, ipp_attribute_t *attribute) {
  const std::string name = ippGetName(attribute);
  const ipp_tag_t type = ippGetValueTag(attribute);
  const std::string value =
      isSecret(request, name.c_str()) ? kHiddenValue : visible(valueText(attribute));
  std::string text = lineOf(ippGetGroupTag(attribute), name, type, value);
  if (type == IPP_TAG_BOOLEAN)
    text += "    " + messages::filtersRead((ippGetBoolean(attribute, 0) ? "" : "no") + name) + "\n";
  return text;
}

} // namespace

PrintSettingsStore optionsToSend(const JobRequest &request) {
  const PrintSettingsStore &settings = request.settings;
  PrintSettingsStore options;
  for (int i = 0; i < request.defaults.optionCount(); i++) {
    const cups_option_t &option = request.defaults.options()[i];
    if (!isOverridden(option.name, settings))
      add(options, option.name, option.value);
  }
  for (int i = 0; i < settings.optionCount(); i++)
    add(options, settings.options()[i].name, settings.options()[i].value);
  sortPages(options);
  return options;
}

bool isSecret(const JobRequest &request, const char *name) {
  return isSecretName(name) || contains(request.secrets, name);
}

bool isRaw(const PrintSettingsStore &options) {
  const char *const format = options.get("document-format");
  return options.get("raw") != nullptr || (format != nullptr && isSame(format, CUPS_FORMAT_RAW));
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
                       group); // not modified
    if (group == IPP_TAG_JOB)
      addCompounds(ipp, request, options);
  }
  return ipp;
}

std::string nameToSend(const JobRequest &request, std::size_t index, const std::string &path) {
  return index < request.documentNames.size() ? request.documentNames[index] : documentName(path);
}

std::string writeRequestText(const JobRequest &request, const std::vector<std::string> &documents) {
  const PrintSettingsStore options = optionsToSend(request);
  const IppMessage ipp(newJobRequest(request, options));
  std::string text;
  for (ipp_attribute_t *attribute = ippFirstAttribute(ipp.get()); attribute != nullptr;
       attribute = ippNextAttribute(ipp.get()))
    if (ippGetName(attribute) != nullptr) // a separator between two groups has no name
      text += attributeText(request, attribute);
  for (std::size_t i = 0; i < documents.size(); i++)
    text += lineOf(IPP_TAG_OPERATION, "document-name", IPP_TAG_NAME,
                   visible(nameToSend(request, i, documents[i])));
  return text;
}

} // namespace imageposition
