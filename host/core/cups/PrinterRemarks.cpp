#include "PrinterRemarks.hpp"

#include "CupsHandles.hpp"
#include "CupsTexts.hpp"
#include "Phrases.hpp"
#include "VisibleText.hpp"

#include <algorithm>
#include <iterator>
#include <vector>

namespace imageposition {

namespace {

constexpr int kLowSupply = 10; // percent
constexpr const char *kWanted[] = {
    "printer-name",          "printer-state",       "printer-is-accepting-jobs",
    "printer-state-message", "queued-job-count",    "marker-names",
    "marker-levels",         "job-sheets-supported"};

/// The attributes of one printer.
struct Attributes {
  ipp_attribute_t *name = nullptr, *state = nullptr, *isAccepting = nullptr, *message = nullptr,
                  *jobs = nullptr, *markers = nullptr, *levels = nullptr, *covers = nullptr;

  void take(ipp_attribute_t *attribute) {
    const std::string key = ippGetName(attribute);
    const auto keep = [&](const char *wanted, ipp_tag_t tag, ipp_attribute_t *&place) {
      if (key == wanted && (ippGetValueTag(attribute) == tag || tag == IPP_TAG_ZERO))
        place = attribute;
    };
    keep("printer-name", IPP_TAG_NAME, name);
    keep("printer-state", IPP_TAG_ENUM, state);
    keep("printer-is-accepting-jobs", IPP_TAG_BOOLEAN, isAccepting);
    keep("printer-state-message", IPP_TAG_TEXT, message);
    keep("queued-job-count", IPP_TAG_INTEGER, jobs);
    keep("marker-names", IPP_TAG_NAME, markers);
    keep("marker-levels", IPP_TAG_INTEGER, levels);
    keep("job-sheets-supported", IPP_TAG_ZERO, covers); // names or keywords
  }
};

std::string stringIn(ipp_attribute_t *attribute, int index = 0) {
  const char *const value = ippGetString(attribute, index, nullptr);
  return value != nullptr ? visible(value) : "";
}

/// What an administrator said to cupsdisable or cupsreject. An idle printer's message is about its
/// last job; "Paused" is CUPS's own.
std::string administratorsMessage(const Attributes &printer) {
  const bool isStopped = ippGetInteger(printer.state, 0) == IPP_PSTATE_STOPPED;
  const bool isRefusing =
      printer.isAccepting != nullptr && ippGetBoolean(printer.isAccepting, 0) == 0;
  const std::string message = stringIn(printer.message);
  return (isStopped || isRefusing) && message != "Paused" && message != "Rejecting Jobs" ? message
                                                                                         : "";
}

std::string remarksOn(const Attributes &printer) {
  std::vector<std::string> remarks{administratorsMessage(printer)};
  if (const int jobs = ippGetInteger(printer.jobs, 0); printer.jobs != nullptr && jobs > 0)
    remarks.push_back(messages::jobsWaiting(jobs));
  const int supplies = std::min(ippGetCount(printer.markers), ippGetCount(printer.levels));
  for (int i = 0; i < supplies; i++)
    if (const int level = ippGetInteger(printer.levels, i); level >= 0 && level <= kLowSupply)
      remarks.push_back(messages::supplyLevel(stringIn(printer.markers, i), level));
  return messages::besides(remarks);
}

std::vector<std::string> coverPages(const Attributes &printer) {
  std::vector<std::string> covers;
  covers.reserve(ippGetCount(printer.covers));
  for (int i = 0; i < ippGetCount(printer.covers); i++)
    covers.push_back(stringIn(printer.covers, i));
  return covers;
}

} // namespace

std::map<std::string, PrinterRemarks> printerRemarks(http_t *http) {
  ipp_t *const request = ippNewRequest(IPP_OP_CUPS_GET_PRINTERS);
  ippAddStrings(request, IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes",
                static_cast<int>(std::size(kWanted)), nullptr, kWanted);
  const IppMessage response(cupsDoRequest(http, request, "/"));
  std::map<std::string, PrinterRemarks> remarks;
  Attributes printer;
  const auto finish = [&] {
    const std::string name = stringIn(printer.name);
    if (!name.empty())
      remarks[name] = {remarksOn(printer), coverPages(printer)};
    printer = {};
  };
  for (ipp_attribute_t *attribute = ippFirstAttribute(response.get()); attribute != nullptr;
       attribute = ippNextAttribute(response.get()))
    if (ippGetGroupTag(attribute) == IPP_TAG_PRINTER && ippGetName(attribute) != nullptr)
      printer.take(attribute);
    else
      finish();
  finish();
  return remarks;
}

} // namespace imageposition
