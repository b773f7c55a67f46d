/// The printers that CUPS knows.
#ifndef IMAGEPOSITION_CORE_CUPS_DESTINATIONS_HPP
#define IMAGEPOSITION_CORE_CUPS_DESTINATIONS_HPP

#include "BackgroundCall.hpp"
#include "PrintSettingsStore.hpp"

#include <chrono>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace imageposition {

enum class DestinationState { Idle, Printing, Stopped };

/// A queue, or an instance of one: the same printer with other defaults.
struct Destination {
  std::string name;
  std::string instance;    ///< Empty for the queue itself.
  std::string description; ///< Set by the administrator; may be empty.
  std::string location;    ///< May be empty.
  std::string uri;         ///< For its jobs; may be empty.
  DestinationState state = DestinationState::Idle;
  std::string stateText;               ///< For display: "Ready", "Paused (out of paper)".
  std::string remarks;                 ///< The text of `printerRemarks`.
  std::vector<std::string> coverPages; ///< The values for "job-sheets"; empty if not known.
  bool acceptsJobs = true;
  bool isDefault = false;
  /// Default job options, without attributes of the printer.
  PrintSettingsStore defaults;

  /// "queue" or "queue/instance", as -d accepts it.
  std::string fullName() const;
  /// What users see: "Office printer (office)".
  std::string title() const;
};

struct DestinationList {
  /// Sorted by name, a queue before its instances. Omits destinations whose names are not UTF-8 on
  /// one line.
  std::vector<Destination> destinations;
  std::string reason; ///< Why the list is empty or old, with what to do; otherwise empty.

  /// Returns null if no destination has that full name.
  const Destination *find(const std::string &fullName) const;
};

/// Queries CUPS, and waits at most about `timeout` for the response. Never throws: on any error,
/// returns an empty list with a reason. Can be called on any thread.
DestinationList readDestinations(std::chrono::milliseconds timeout = std::chrono::seconds(5));

/// The list of printers in a window. A background thread queries CUPS. Call all methods on one
/// thread; none of them waits, not even the destructor.
class Destinations {
public:
  /// Empty without a reason until `takeAnswer` has taken a response.
  const DestinationList &list() const noexcept { return list_; }

  /// Queries CUPS again. Does nothing while a query is running, or if no thread can be created.
  /// Calls `answered` on the background thread once `takeAnswer` has a response, possibly after
  /// this object was destroyed.
  void refresh(const std::function<void()> &answered = {},
               std::chrono::milliseconds timeout = std::chrono::seconds(5));
  bool isRefreshing() const noexcept { return call_.has_value(); }

  /// Updates the list if a response has arrived. Keeps the printers if CUPS cannot be asked.
  /// Returns true if the list changed.
  bool takeAnswer();

private:
  DestinationList list_;
  std::optional<BackgroundCall<DestinationList>> call_; // none if no query is running
};

/// Converts libcups's destination, whose options include the printer's state.
Destination toDestination(const cups_dest_t &dest);

/// Compare by value.
bool operator==(const Destination &left, const Destination &right);
bool operator==(const DestinationList &left, const DestinationList &right);

/// Translates CUPS's printer-state-reasons, a comma-separated list. Leaves unknown reasons as they
/// are. Omits "none" and other reasons that mean nothing to users.
std::string stateReasonsInWords(const std::string &reasons);

} // namespace imageposition

#endif
