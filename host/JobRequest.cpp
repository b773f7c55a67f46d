#include "host/JobRequest.hpp"

#include "host/ExitCode.hpp"
#include "host/JobMessages.hpp"

#include <algorithm>
#include <cctype>
#include <climits>
#include <memory>
#include <strings.h>
#include <vector>

namespace imageposition {

namespace {

struct PageRange {
  int first;
  int last; // INT_MAX: the document's end
};

void skipBlanks(const std::string &text, std::size_t &at) {
  while (at < text.size() && std::isspace(static_cast<unsigned char>(text[at])))
    at++;
}

/// None where no digit stands, or for a number that no page has.
std::optional<int> readPage(const std::string &text, std::size_t &at) {
  long long page = 0;
  const std::size_t start = at;
  for (; at < text.size() && text[at] >= '0' && text[at] <= '9'; at++)
    page = std::min<long long>(page * 10 + (text[at] - '0'), INT_MAX);
  if (at == start || page == 0 || page == INT_MAX)
    return std::nullopt;
  return static_cast<int>(page);
}

bool isDigitAt(const std::string &text, std::size_t at) {
  return at < text.size() && text[at] >= '0' && text[at] <= '9';
}

/// "7", "1-3", "5-" or "-3", with blanks between.
std::optional<PageRange> readRange(const std::string &text, std::size_t &at) {
  PageRange range{1, INT_MAX};
  const bool hasFirst = isDigitAt(text, at);
  if (hasFirst) {
    const auto first = readPage(text, at);
    if (!first)
      return std::nullopt;
    range = {*first, *first};
  }
  skipBlanks(text, at);
  if (at >= text.size() || text[at] != '-')
    return hasFirst ? std::optional(range) : std::nullopt;
  skipBlanks(text, ++at);
  range.last = INT_MAX;
  if (isDigitAt(text, at)) {
    const auto last = readPage(text, at);
    if (!last)
      return std::nullopt;
    range.last = *last;
  } else if (!hasFirst) {
    return std::nullopt;
  }
  return range.first <= range.last ? std::optional(range) : std::nullopt;
}

std::optional<std::vector<PageRange>> readRanges(const std::string &text) {
  std::vector<PageRange> ranges;
  std::size_t at = 0;
  for (skipBlanks(text, at); at < text.size(); skipBlanks(text, at)) {
    const auto range = readRange(text, at);
    if (!range)
      return std::nullopt;
    ranges.push_back(*range);
    skipBlanks(text, at);
    if (at < text.size() && text[at] == ',')
      at++;
    else if (at < text.size())
      return std::nullopt;
  }
  return ranges;
}

/// CUPS refuses ranges that are not ascending.
void joinOverlapping(std::vector<PageRange> &ranges) {
  std::sort(ranges.begin(), ranges.end(),
            [](const PageRange &left, const PageRange &right) { return left.first < right.first; });
  std::vector<PageRange> joined;
  for (const PageRange &range : ranges) {
    if (!joined.empty() && range.first - 1 <= joined.back().last)
      joined.back().last = std::max(joined.back().last, range.last);
    else
      joined.push_back(range);
  }
  ranges = joined;
}

std::string rangeText(const PageRange &range) {
  const std::string first = std::to_string(range.first);
  if (range.first == range.last)
    return first;
  return first + "-" + (range.last == INT_MAX ? "" : std::to_string(range.last));
}

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
  if (request.pageRanges) {
    const auto ranges = normalizedPageRanges(*request.pageRanges);
    if (!ranges)
      refuse(messages::badPageRanges(*request.pageRanges));
    options.remove("page-ranges");
    if (!ranges->empty())
      add(options, "page-ranges", *ranges);
  }
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

struct DeleteRequest {
  void operator()(ipp_t *ipp) const noexcept { ippDelete(ipp); }
};
using Request = std::unique_ptr<ipp_t, DeleteRequest>;

/// As cupsCreateDestJob fills it.
Request makeRequest(const JobRequest &job, const PrintSettingsStore &options) {
  Request request(ippNewRequest(IPP_OP_CREATE_JOB));
  const auto addText = [&](ipp_tag_t type, const char *name, const char *value) {
    ippAddString(request.get(), IPP_TAG_OPERATION, type, name, nullptr, value);
  };
  if (!job.printerUri.empty())
    addText(IPP_TAG_URI, "printer-uri", job.printerUri.c_str());
  addText(IPP_TAG_NAME, "requesting-user-name", cupsUser());
  addText(IPP_TAG_NAME, "job-name", job.title.c_str());
  for (const ipp_tag_t group : {IPP_TAG_OPERATION, IPP_TAG_JOB, IPP_TAG_SUBSCRIPTION})
    cupsEncodeOptions2(request.get(), options.optionCount(),
                       const_cast<cups_option_t *>(options.options()), group); // only read
  return request;
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

std::string attributeText(ipp_attribute_t *attribute) {
  const std::string name = ippGetName(attribute);
  const ipp_tag_t type = ippGetValueTag(attribute);
  std::string text = groupName(ippGetGroupTag(attribute)) + " " + name + " (" + ippTagString(type) +
                     ") = " + valueText(attribute) + "\n";
  if (type == IPP_TAG_BOOLEAN)
    text += "    " + messages::filtersRead((ippGetBoolean(attribute, 0) ? "" : "no") + name) + "\n";
  return text;
}

} // namespace

std::optional<std::string> normalizedPageRanges(const std::string &text) {
  auto ranges = readRanges(text);
  if (!ranges)
    return std::nullopt;
  joinOverlapping(*ranges);
  std::string normal;
  for (const PageRange &range : *ranges)
    normal += (normal.empty() ? "" : ",") + rangeText(range);
  return normal;
}

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

std::string writeRequestText(const JobRequest &request) {
  const PrintSettingsStore options = optionsToSend(request);
  const Request ipp = makeRequest(request, options);
  std::string text;
  for (ipp_attribute_t *attribute = ippFirstAttribute(ipp.get()); attribute != nullptr;
       attribute = ippNextAttribute(ipp.get()))
    if (ippGetName(attribute) != nullptr) // else it stands between two groups
      text += attributeText(attribute);
  return text;
}

} // namespace imageposition
