#include "Dialog.hpp"

#include "ProgramFolder.hpp"

#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <stdexcept>
#include <sys/prctl.h>
#include <system_error>
#include <utility>

namespace imageposition {

namespace {

/// Beside this program, or where it is installed with it.
std::string dialogProgram() {
  std::string program =
      trustedPart({besideProgram("print-dialog"),
                   besideProgram(IMAGEPOSITION_PROGRAM_FROM_MODULES "/print-dialog")});
  if (program.empty())
    throw std::runtime_error("print-dialog is missing: reinstall it");
  return program;
}

/// Runs in the child before the program.
void endWithService(gpointer) { prctl(PR_SET_PDEATHSIG, SIGTERM); }

} // namespace

Dialog::Dialog(const std::vector<std::string> &words, int document, Service service, Ended ended)
    : waiting_(g_cancellable_new()), ended_(std::move(ended)) {
  const std::string program = dialogProgram();
  std::vector<const char *> arguments{program.c_str()};
  for (const std::string &word : words)
    arguments.push_back(word.c_str());
  arguments.push_back(nullptr);
  const ObjectHandle<GSubprocessLauncher> launcher(
      g_subprocess_launcher_new(G_SUBPROCESS_FLAGS_STDOUT_SILENCE));
  g_subprocess_launcher_set_cwd(launcher.get(), "/"); // has no file that is named like an option
  if (document >= 0) {
    const int copy = fcntl(document, F_DUPFD_CLOEXEC, 3);
    if (copy < 0)
      throw std::system_error(errno, std::generic_category());
    g_subprocess_launcher_take_stdin_fd(launcher.get(), copy); // closes it
  }
  if (service == Service::Needed)
    g_subprocess_launcher_set_child_setup(launcher.get(), endWithService, nullptr, nullptr);
  GError *error = nullptr;
  process_.reset(g_subprocess_launcher_spawnv(launcher.get(), arguments.data(), &error));
  if (!process_)
    throw std::runtime_error(ErrorHandle(error)->message);
  g_subprocess_wait_async(process_.get(), waiting_.get(), processEnded, this);
}

Dialog::~Dialog() { g_cancellable_cancel(waiting_.get()); }

void Dialog::close() { g_subprocess_send_signal(process_.get(), SIGTERM); }

void Dialog::processEnded(GObject *process, GAsyncResult *result, gpointer self) {
  GError *error = nullptr;
  if (!g_subprocess_wait_finish(G_SUBPROCESS(process), result, &error)) {
    g_error_free(error); // the object is gone
    return;
  }
  const Ended ended = std::move(static_cast<Dialog *>(self)->ended_);
  const bool hasExited = g_subprocess_get_if_exited(G_SUBPROCESS(process)) != FALSE;
  ended(hasExited ? std::optional(g_subprocess_get_exit_status(G_SUBPROCESS(process)))
                  : std::nullopt);
}

} // namespace imageposition
