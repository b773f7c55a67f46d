/// A pending print request of an application.
#ifndef IMAGEPOSITION_PORTAL_PRINTREQUEST_HPP
#define IMAGEPOSITION_PORTAL_PRINTREQUEST_HPP

#include "Dialog.hpp"
#include "PortalJob.hpp"
#include "Tokens.hpp"

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace imageposition {

/// The portal's response codes.
enum class Response : std::uint32_t { Done = 0, Cancelled = 1, Failed = 2 };

/// Callbacks that report a request's outcome.
struct RequestOwner {
  /// Called at most once. `results` is floating, of type a{sv}, or null for none.
  std::function<void(Response response, GVariant *results)> respond;
  /// Called once, after `respond`. Destroys the request.
  std::function<void()> end;
};

/// The requesting application.
struct Caller {
  std::string application; ///< The portal's identifier; empty for a program without a sandbox.
  std::string parent;      ///< The portal's name of its window; may be anything.
  std::string title;       ///< May be empty.
};

/// Main thread.
class PrintRequest {
public:
  PrintRequest(Caller caller, RequestOwner owner)
      : caller_(std::move(caller)), owner_(std::move(owner)) {}
  virtual ~PrintRequest() = default;
  PrintRequest(const PrintRequest &) = delete;
  PrintRequest &operator=(const PrintRequest &) = delete;

  /// Starts the dialog. Throws a `std::runtime_error`.
  virtual void start() = 0;
  /// The application no longer waits: closes the dialog, and ends the request.
  virtual void close();

protected:
  const Caller &caller() const noexcept { return caller_; }
  /// The caller's title and, if `isWindowed`, its window, as arguments for the dialog.
  std::vector<std::string> callersWords(bool isWindowed) const;
  void run(const std::vector<std::string> &words, int document, Dialog::Service service,
           Dialog::Ended ended);
  /// Does nothing after the first call.
  void respond(Response response, GVariant *results = nullptr);
  /// Responds, and ends the request: the object is destroyed.
  void end(Response response, GVariant *results = nullptr);

private:
  Caller caller_;
  RequestOwner owner_;
  std::unique_ptr<Dialog> dialog_;
};

/// Lets the user set up a job whose document does not exist yet.
class PreparationRequest final : public PrintRequest {
public:
  /// Writes the job to `file`. Adds it to `tokens`, which is borrowed, if the user prints.
  PreparationRequest(Caller caller, PortalJob job, std::unique_ptr<PreparedFile> file,
                     Tokens &tokens, RequestOwner owner)
      : PrintRequest(std::move(caller), std::move(owner)), job_(std::move(job)),
        file_(std::move(file)), tokens_(tokens) {}

  void start() override;

private:
  void ended(std::optional<int> status);

  PortalJob job_;
  std::unique_ptr<PreparedFile> file_;
  Tokens &tokens_;
};

/// Prints a document: at once if the user has set up the job, otherwise from the dialog.
class DocumentRequest final : public PrintRequest {
public:
  /// `job` is null if the user has not set one up.
  DocumentRequest(Caller caller, Descriptor document, std::unique_ptr<PreparedFile> job,
                  RequestOwner owner)
      : PrintRequest(std::move(caller), std::move(owner)), document_(std::move(document)),
        job_(std::move(job)) {}

  void start() override;
  /// An application that has sent its document may quit at once: a job that the user has set up is
  /// printed nevertheless.
  void close() override;

private:
  void printPrepared();
  void printingEnded(std::optional<int> status);
  void showDialog();

  Descriptor document_;
  bool isPrinting_ = false; // without a window
  std::unique_ptr<PreparedFile> job_;
};

/// Why the descriptor cannot be printed; empty if it can.
std::string documentProblem(const Descriptor &document);

} // namespace imageposition

#endif
