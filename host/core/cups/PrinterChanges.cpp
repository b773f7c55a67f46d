#include "PrinterChanges.hpp"

#include "BackgroundCall.hpp"
#include "CupsConnection.hpp"
#include "CupsHandles.hpp"
#include "PasswordQuestion.hpp"

#include <algorithm>
#include <chrono>
#include <condition_variable>
#include <future>
#include <iterator>
#include <mutex>
#include <optional>
#include <system_error>
#include <thread>
#include <utility>

namespace imageposition {

namespace {

using Clock = std::chrono::steady_clock;
constexpr std::chrono::seconds kBetweenQuestions{3};
constexpr std::chrono::seconds kWithoutSubscription{60};
constexpr std::chrono::seconds kTimeout{10};
constexpr std::chrono::milliseconds kFarewell{250}; // for cancelling the subscription
/// CUPS has room for a hundred subscriptions, and a killed program does not cancel its own.
constexpr std::chrono::seconds kLease{60};

constexpr const char *kEvents[] = {"printer-added", "printer-deleted", "printer-modified",
                                   "printer-state-changed"};

IppMessage ask(http_t *http, ipp_op_t operation, const std::function<void(ipp_t *)> &complete) {
  ipp_t *const request = ippNewRequest(operation);
  ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_URI, "printer-uri", nullptr, "ipp://localhost/");
  ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_NAME, "requesting-user-name", nullptr,
               cupsUser());
  complete(request);
  return IppMessage(cupsDoRequest(http, request, "/"));
}

struct Subscription {
  int id;
  int next = 1; ///< The sequence number of the next event.
};

std::optional<Subscription> subscribe(http_t *http) {
  const IppMessage response = ask(http, IPP_OP_CREATE_PRINTER_SUBSCRIPTIONS, [](ipp_t *request) {
    ippAddStrings(request, IPP_TAG_SUBSCRIPTION, IPP_TAG_KEYWORD, "notify-events",
                  static_cast<int>(std::size(kEvents)), nullptr, kEvents);
    ippAddString(request, IPP_TAG_SUBSCRIPTION, IPP_TAG_KEYWORD, "notify-pull-method", nullptr,
                 "ippget");
    ippAddInteger(request, IPP_TAG_SUBSCRIPTION, IPP_TAG_INTEGER, "notify-lease-duration",
                  static_cast<int>(kLease.count()));
  });
  ipp_attribute_t *const id =
      ippFindAttribute(response.get(), "notify-subscription-id", IPP_TAG_INTEGER);
  if (id == nullptr)
    return std::nullopt;
  return Subscription{ippGetInteger(id, 0)};
}

enum class News { None, Some, NoSubscription };

News newsOf(http_t *http, Subscription &subscription) {
  const IppMessage response = ask(http, IPP_OP_GET_NOTIFICATIONS, [&](ipp_t *request) {
    ippAddInteger(request, IPP_TAG_OPERATION, IPP_TAG_INTEGER, "notify-subscription-ids",
                  subscription.id);
    ippAddInteger(request, IPP_TAG_OPERATION, IPP_TAG_INTEGER, "notify-sequence-numbers",
                  subscription.next);
  });
  if (!response || ippGetStatusCode(response.get()) > IPP_STATUS_OK_EVENTS_COMPLETE)
    return News::NoSubscription;
  News news = News::None;
  for (ipp_attribute_t *number =
           ippFindAttribute(response.get(), "notify-sequence-number", IPP_TAG_INTEGER);
       number != nullptr;
       number = ippFindNextAttribute(response.get(), "notify-sequence-number", IPP_TAG_INTEGER)) {
    subscription.next = std::max(subscription.next, ippGetInteger(number, 0) + 1);
    news = News::Some;
  }
  return news;
}

void cancel(http_t *http, const Subscription &subscription) {
  ask(http, IPP_OP_CANCEL_SUBSCRIPTION, [&](ipp_t *request) {
    ippAddInteger(request, IPP_TAG_OPERATION, IPP_TAG_INTEGER, "notify-subscription-id",
                  subscription.id);
  });
}

void renew(http_t *http, const Subscription &subscription) {
  ask(http, IPP_OP_RENEW_SUBSCRIPTION, [&](ipp_t *request) {
    ippAddInteger(request, IPP_TAG_OPERATION, IPP_TAG_INTEGER, "notify-subscription-id",
                  subscription.id);
    ippAddInteger(request, IPP_TAG_SUBSCRIPTION, IPP_TAG_INTEGER, "notify-lease-duration",
                  static_cast<int>(kLease.count()));
  });
}

} // namespace

class PrinterChanges::Watch {
public:
  explicit Watch(std::function<void()> changed) : changed_(std::move(changed)) {}

  /// The background thread.
  void run() {
    const PasswordQuestion noPassword;
    for (std::chrono::seconds pause = follow(); !wait(pause); pause = follow())
      changed_(); // nobody knows what happened meanwhile
    farewell_.set_value();
  }

  void end() {
    {
      const std::lock_guard<std::mutex> lock(mutex_);
      isOver_ = true;
    }
    ended_.notify_one();
    farewell_.get_future().wait_for(kFarewell);
  }

private:
  /// Returns true if this is over.
  bool wait(std::chrono::seconds time) {
    std::unique_lock<std::mutex> lock(mutex_);
    return ended_.wait_for(lock, time, [this] { return isOver_; });
  }

  /// Follows one subscription to its end. Returns how long to wait before the next.
  std::chrono::seconds follow() {
    Clock::time_point deadline = Clock::now() + kTimeout;
    const auto connection = CupsConnection::open(kTimeout, [&] { return Clock::now() < deadline; });
    if (!connection)
      return kBetweenQuestions; // it may come back
    http_t *const http = connection->http();
    auto subscription = subscribe(http);
    if (!subscription)
      return httpError(http) != 0 ? kBetweenQuestions : kWithoutSubscription;
    Clock::time_point renewed = Clock::now();
    while (!wait(kBetweenQuestions)) {
      deadline = Clock::now() + kTimeout;
      if (Clock::now() - renewed >= kLease / 2) {
        renew(http, *subscription);
        renewed = Clock::now();
      }
      const News news = newsOf(http, *subscription);
      if (news == News::NoSubscription)
        return kBetweenQuestions;
      if (news == News::Some)
        changed_();
    }
    deadline = Clock::now() + kTimeout;
    cancel(http, *subscription);
    return kBetweenQuestions;
  }

  const std::function<void()> changed_;
  std::promise<void> farewell_;
  std::mutex mutex_;
  std::condition_variable ended_;
  bool isOver_ = false; // guarded by `mutex_`
};

PrinterChanges::PrinterChanges(std::function<void()> changed)
    : watch_(std::make_shared<Watch>(std::move(changed))) {
  const auto watch = watch_;
  const auto running = std::make_shared<RunningCall>();
  const SignalBlock noSignals;
  try {
    std::thread([watch, running] { watch->run(); }).detach();
  } catch (const std::system_error &) { // too many processes
  }
}

PrinterChanges::~PrinterChanges() { watch_->end(); }

} // namespace imageposition
