/// Runs print-dialog for a request.
#ifndef IMAGEPOSITION_PORTAL_DIALOG_HPP
#define IMAGEPOSITION_PORTAL_DIALOG_HPP

#include "FileContent.hpp"
#include "GlibHandles.hpp"

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace imageposition {

/// One run of print-dialog as a child process. Main thread.
class Dialog {
public:
  /// Called once the process has ended: with its exit status, or none if a signal has ended it. May
  /// destroy the object.
  using Ended = std::function<void(std::optional<int> status)>;

  enum class Service {
    Needed,   ///< The dialog ends with this process, because nobody would read what it writes.
    NotNeeded ///< It prints, also if this process ends.
  };

  /// `words` are the arguments, without the program's name. Gives the process a duplicate of
  /// `document` as standard input; -1 for none. Throws a `std::runtime_error` if it cannot be
  /// started.
  Dialog(const std::vector<std::string> &words, int document, Service service, Ended ended);
  /// Does not stop a running process; `ended` is then not called.
  ~Dialog();
  Dialog(const Dialog &) = delete;
  Dialog &operator=(const Dialog &) = delete;

  /// Closes its windows, and cancels a job that it is sending.
  void close();

private:
  static void processEnded(GObject *process, GAsyncResult *result, gpointer self);

  ObjectHandle<GSubprocess> process_;
  ObjectHandle<GCancellable> waiting_;
  Ended ended_;
};

} // namespace imageposition

#endif
