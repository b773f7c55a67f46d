/// What an application asks for, while a dialog works on it.
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

/// Called once; may destroy the request. `results` is floating, of type a{sv}, or null for none.
using Responded = std::function<void(Response response, GVariant *results)>;

/// Who asks.
struct Caller {
  std::string application; ///< The portal's identifier; empty for a program without a sandbox.
  std::string parent;      ///< The portal's name of its window; may be anything.
  std::string title;       ///< May be empty.
};

/// Main thread.
class PrintRequest {
public:
  PrintRequest(Caller caller, Responded responded)
      : caller_(std::move(caller)), responded_(std::move(responded)) {}
  virtual ~PrintRequest() = default;
  PrintRequest(const PrintRequest &) = delete;
  PrintRequest &operator=(const PrintRequest &) = delete;

  /// Starts the dialog. Throws a `std::runtime_error`.
  virtual void start() = 0;
  /// Closes the dialog. Responds with `Failed`: nobody waits for more.
  void close();

protected:
  const Caller &caller() const noexcept { return caller_; }
  /// The caller's title and, if `isWindowed`, its window, as words for the dialog.
  std::vector<std::string> callersWords(bool isWindowed) const;
  void run(std::vector<std::string> words, int document, Dialog::Service service,
           Dialog::Ended ended);
  /// The object may be gone afterwards.
  void respond(Response response, GVariant *results = nullptr);

private:
  Caller caller_;
  Responded responded_;
  std::unique_ptr<Dialog> dialog_;
};

/// Lets the user set up a job whose document does not exist yet.
class PreparationRequest final : public PrintRequest {
public:
  /// Writes the job to `file`. Adds it to `tokens`, which is borrowed, if the user prints.
  PreparationRequest(Caller caller, PortalJob job, std::unique_ptr<PreparedFile> file,
                     Tokens &tokens, Responded responded)
      : PrintRequest(std::move(caller), std::move(responded)), job_(std::move(job)),
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
  /// `job` is null if the user has set up none.
  DocumentRequest(Caller caller, Descriptor document, std::unique_ptr<PreparedFile> job,
                  Responded responded)
      : PrintRequest(std::move(caller), std::move(responded)), document_(std::move(document)),
        job_(std::move(job)) {}

  void start() override;

private:
  void printPrepared();
  void showDialog();

  Descriptor document_;
  std::unique_ptr<PreparedFile> job_;
};

/// Why the descriptor is no document that can be printed; empty if it is one.
std::string documentProblem(const Descriptor &document);

} // namespace imageposition

#endif
