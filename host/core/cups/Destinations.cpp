#include "Destinations.hpp"

#include "BackgroundCall.hpp"
#include "CupsConnection.hpp"
#include "CupsTexts.hpp"
#include "PasswordQuestion.hpp"
#include "Phrases.hpp"
#include "PrinterRemarks.hpp"
#include "QueueName.hpp"
#include "Strings.hpp"
#include "VisibleText.hpp"

#include <algorithm>
#include <cstring>
#include <system_error>
#include <utility>

namespace imageposition {

namespace {

using Clock = std::chrono::steady_clock;

struct ReasonWords {
  const char *reason; // without the severity suffix
  Text words;
};

/// These mean nothing to users.
constexpr const char *kIgnoredReasons[] = {"none", "other", "com.apple.print.recoverable"};

constexpr const char *kPausedReason = "paused";

/// The keywords of RFC 8011, section 5.4.12, and those that CUPS adds.
constexpr ReasonWords kReasonWords[] = {
    // Translators: what is wrong with a printer; in brackets after its state, "Stopped".
    {kPausedReason, text("paused")},
    {"moving-to-paused", text("pausing")},
    {"media-empty", text("out of paper")},
    {"media-low", text("paper low")},
    {"media-needed", text("needs paper")},
    {"media-jam", text("paper jam")},
    {"input-tray-missing", text("paper tray missing")},
    {"output-area-full", text("output tray full")},
    {"output-area-almost-full", text("output tray nearly full")},
    {"output-tray-missing", text("output tray missing")},
    {"toner-low", text("toner low")},
    {"toner-empty", text("out of toner")},
    {"marker-supply-low", text("ink or toner low")},
    {"marker-supply-empty", text("out of ink or toner")},
    {"marker-waste-full", text("waste container full")},
    {"marker-waste-almost-full", text("waste container nearly full")},
    {"cover-open", text("cover open")},
    {"door-open", text("door open")},
    {"interlock-open", text("cover open")},
    {"offline", text("not connected")},
    {"connecting-to-device", text("connecting")},
    {"timed-out", text("not responding")},
    {"shutdown", text("switched off")},
    {"stopping", text("stopping")},
    {"stopped-partly", text("partially stopped")},
    {"spool-area-full", text("memory full")},
    {"cups-missing-filter", text("part of the driver is missing")},
    {"cups-insecure-filter", text("part of the driver has unsafe permissions")},
};

std::string withoutSeverity(const std::string &reason) {
  for (const std::string severity : {"-error", "-warning", "-report"})
    if (reason.size() > severity.size() && endsWith(reason, severity))
      return reason.substr(0, reason.size() - severity.size());
  return reason;
}

/// CUPS separates them with commas.
std::vector<std::string> splitReasons(const std::string &reasons) {
  std::vector<std::string> all;
  for (std::size_t start = 0; start < reasons.size();) {
    const std::size_t comma = std::min(reasons.find(',', start), reasons.size());
    all.push_back(reasons.substr(start, comma - start));
    start = comma + 1;
  }
  return all;
}

std::string wordsFor(const std::string &reason) {
  std::string bare = withoutSeverity(reason);
  for (const char *ignored : kIgnoredReasons)
    if (bare == ignored)
      return {};
  for (const ReasonWords &known : kReasonWords)
    if (bare == known.reason)
      return known.words;
  return bare;
}

/// CUPS includes attributes of the printer in a destination's options.
bool isAboutPrinter(const std::string &option) {
  if (option == "printer-resolution")
    return false; // also a job's option
  return startsWith(option, "printer-") || startsWith(option, "marker-") ||
         option == "device-uri" || option == "auth-info-required";
}

std::string optionOf(const cups_dest_t &dest, const char *name) {
  const char *const value = cupsGetOption(name, dest.num_options, dest.options);
  return value != nullptr ? value : "";
}

DestinationState stateOf(const cups_dest_t &dest) {
  const std::string state = optionOf(dest, "printer-state");
  if (state == std::to_string(IPP_PSTATE_STOPPED))
    return DestinationState::Stopped;
  return state == std::to_string(IPP_PSTATE_PROCESSING) ? DestinationState::Printing
                                                        : DestinationState::Idle;
}

/// Whether the printer may print nothing although CUPS calls it idle.
bool isFault(const std::string &reason) {
  return endsWith(reason, "-error") || startsWith(reason, "cups-missing-filter") ||
         startsWith(reason, "cups-insecure-filter");
}

std::string stateInWords(const Destination &destination, const std::string &reasons) {
  const std::vector<std::string> all = splitReasons(reasons);
  const bool isPaused = contains(all, kPausedReason);
  if (!destination.acceptsJobs)
    return messages::stateBecause(messages::kPrinterRefuses, stateReasonsInWords(reasons));
  std::string others;
  for (const std::string &reason : all)
    if (reason != kPausedReason)
      others += reason + ',';
  std::string state = messages::kPrinterIdle;
  if (destination.state == DestinationState::Printing)
    state = messages::kPrinterPrinting;
  else if (destination.state == DestinationState::Stopped)
    state = isPaused ? messages::kPrinterPaused : messages::kPrinterStopped;
  else if (std::any_of(all.begin(), all.end(), isFault))
    state = messages::kPrinterFaulty;
  return messages::stateBecause(state, stateReasonsInWords(others));
}

/// Why the list is empty.
std::string reasonForNone(bool isTooLate) {
  if (isTooLate)
    return messages::noCups(cupsServerName(), messages::kNoAnswer);
  const int status = cupsLastError(); // any number that CUPS sent
  if (status <= IPP_STATUS_OK_EVENTS_COMPLETE || status == IPP_STATUS_ERROR_NOT_FOUND)
    return messages::kNoPrinters;
  if (status == IPP_STATUS_ERROR_SERVICE_UNAVAILABLE || status == IPP_STATUS_ERROR_INTERNAL)
    return messages::noCups(cupsServerName(), cupsReason());
  return messages::printersNotListed(cupsReason());
}

/// A name must be the same on the screen and in requests to CUPS.
bool isShowable(const std::string &name) { return !name.empty() && visible(name) == name; }

bool hasSameOptions(const PrintSettingsStore &left, const PrintSettingsStore &right) {
  return std::equal(left.options(), left.options() + left.optionCount(), right.options(),
                    right.options() + right.optionCount(),
                    [](const cups_option_t &one, const cups_option_t &other) {
                      return std::strcmp(one.name, other.name) == 0 &&
                             std::strcmp(one.value, other.value) == 0;
                    });
}

} // namespace

Destination toDestination(const cups_dest_t &dest) {
  Destination destination;
  destination.name = dest.name;
  destination.instance = dest.instance != nullptr ? dest.instance : "";
  destination.description = visible(optionOf(dest, "printer-info"));
  destination.location = visible(optionOf(dest, "printer-location"));
  destination.uri = visible(optionOf(dest, "printer-uri-supported"));
  destination.state = stateOf(dest);
  destination.acceptsJobs = optionOf(dest, "printer-is-accepting-jobs") != "false";
  destination.stateText =
      stateInWords(destination, visible(optionOf(dest, "printer-state-reasons")));
  destination.isDefault = dest.is_default != 0;
  for (int i = 0; i < dest.num_options; i++)
    if (!isAboutPrinter(dest.options[i].name))
      destination.defaults.set(dest.options[i].name, dest.options[i].value);
  return destination;
}

std::string Destination::fullName() const { return QueueName{name, instance}.text(); }

std::string Destination::title() const {
  const std::string full = fullName();
  return description.empty() || description == full ? full : description + " (" + full + ")";
}

const Destination *DestinationList::find(const std::string &fullName) const {
  for (const Destination &destination : destinations)
    if (isSame(destination.fullName(), fullName))
      return &destination;
  return nullptr;
}

DestinationList readDestinations(std::chrono::milliseconds timeout) {
  const Clock::time_point deadline = Clock::now() + timeout;
  const auto isInTime = [=] { return Clock::now() < deadline; };
  const PasswordQuestion noPassword;
  const auto connection = CupsConnection::open(timeout, isInTime);
  if (!connection)
    return {{}, messages::noCups(cupsServerName(), "")}; // libcups leaves no reason
  DestinationList list;
  cups_dest_t *dests = nullptr;
  const int count = cupsGetDests2(connection->http(), &dests);
  for (int i = 0; i < count; i++)
    if (Destination destination = toDestination(dests[i]); isShowable(destination.fullName()))
      list.destinations.push_back(std::move(destination));
  if (list.destinations.empty())
    list.reason = reasonForNone(!isInTime());
  cupsFreeDests(count, dests);
  if (list.destinations.empty())
    return list;
  const auto remarks = printerRemarks(connection->http());
  for (Destination &destination : list.destinations)
    if (const auto found = remarks.find(destination.name); found != remarks.end()) {
      destination.remarks = found->second.text;
      destination.coverPages = found->second.coverPages;
    }
  return list;
}

void Destinations::refresh(const std::function<void()> &answered,
                           std::chrono::milliseconds timeout) {
  if (call_)
    return;
  try {
    // Looking up a server's name can exceed the timeout.
    call_.emplace([timeout] { return readDestinations(timeout); }, timeout, answered);
  } catch (const std::system_error &) { // too many processes; a later call may succeed
  }
}

bool Destinations::takeAnswer() {
  if (!call_ || !call_->isDone())
    return false;
  DestinationList list = call_->take();
  call_.reset();
  if (list.destinations.empty() && list.reason != messages::kNoPrinters.str())
    list.destinations = list_.destinations; // what is known of them
  const bool differs = !(list == list_);
  list_ = std::move(list);
  return differs;
}

bool operator==(const Destination &left, const Destination &right) {
  return left.name == right.name && left.instance == right.instance &&
         left.description == right.description && left.location == right.location &&
         left.uri == right.uri && left.state == right.state && left.stateText == right.stateText &&
         left.remarks == right.remarks && left.coverPages == right.coverPages &&
         left.acceptsJobs == right.acceptsJobs && left.isDefault == right.isDefault &&
         hasSameOptions(left.defaults, right.defaults);
}

bool operator==(const DestinationList &left, const DestinationList &right) {
  return left.reason == right.reason && left.destinations == right.destinations;
}

std::string stateReasonsInWords(const std::string &reasons) {
  std::string list;
  for (const std::string &reason : splitReasons(reasons)) {
    const std::string words = wordsFor(reason);
    if (!words.empty() && list.find(words) == std::string::npos)
      list = list.empty() ? words : messages::inOrder(list, words);
  }
  return list;
}

} // namespace imageposition
