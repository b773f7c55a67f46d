/// The printers that CUPS knows.
#ifndef IMAGEPOSITION_HOST_DESTINATIONS_HPP
#define IMAGEPOSITION_HOST_DESTINATIONS_HPP

#include "PrintSettingsStore.hpp"

#include <chrono>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace imageposition {

enum class DestinationState { Idle, Printing, Stopped };

/// A queue, or an instance of one: the same printer with other defaults.
struct Destination {
  std::string name;
  std::string instance;    ///< Empty for the queue itself.
  std::string description; ///< What its administrator calls it; may be empty.
  std::string location;    ///< May be empty.
  std::string uri;         ///< Where its jobs go; may be empty.
  DestinationState state = DestinationState::Idle;
  std::string stateText; ///< In words: "Ready", "Stopped: out of paper".
  bool acceptsJobs = true;
  bool isDefault = false;
  /// Job options that hold unless a job says otherwise. Nothing about the printer itself is among
  /// them.
  PrintSettingsStore defaults;

  /// "queue" or "queue/instance", as -d takes it.
  std::string fullName() const;
};

struct DestinationList {
  /// By name, a queue before its instances. Those whose names are not UTF-8 on one line are left
  /// out.
  std::vector<Destination> destinations;
  std::string reason; ///< Why CUPS was not asked or has none, with what to do; else empty.

  /// Null when there is none of that full name.
  const Destination *find(const std::string &fullName) const;
};

/// Asks CUPS and waits for its answer, at most about that long. Never throws: whatever goes wrong
/// is an empty list with a reason. On any thread.
DestinationList readDestinations(std::chrono::milliseconds patience = std::chrono::seconds(5));

/// The list of a window: asked for on a thread of its own, taken over when it is there. All calls
/// on one thread, none of which waits, the destructor included.
class Destinations {
public:
  Destinations();
  ~Destinations();
  Destinations(const Destinations &) = delete;
  Destinations &operator=(const Destinations &) = delete;

  /// Empty without a reason before the first answer.
  const DestinationList &list() const noexcept { return list_; }

  /// Asks CUPS again; does nothing while an earlier question is open, or where no thread can be
  /// had. `answered` is called on the other thread once `takeAnswer` has something to take, perhaps
  /// after this object is gone.
  void refresh(std::function<void()> answered = {},
               std::chrono::milliseconds patience = std::chrono::seconds(5));
  bool isRefreshing() const noexcept { return answer_ != nullptr; }

  /// Takes the answer if there is one. True when the list differs from before.
  bool takeAnswer();

private:
  struct Answer;

  DestinationList list_;
  std::shared_ptr<Answer> answer_; // shared with the thread that asks; null when none does
};

/// From CUPS's own record, whose options tell the state.
Destination toDestination(const cups_dest_t &dest);

/// By value; what `Destinations` compares.
bool operator==(const Destination &left, const Destination &right);
bool operator==(const DestinationList &left, const DestinationList &right);

/// The words for CUPS's printer-state-reasons, a list with commas between; a reason without words
/// of its own stands as it is. "none" and what says nothing to a person are left out.
std::string stateReasonsInWords(const std::string &reasons);

} // namespace imageposition

#endif
