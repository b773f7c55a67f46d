#include "FileContent.hpp"
#include "PortalService.hpp"
#include "StandardDescriptors.hpp"

#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <memory>
#include <optional>
#include <string>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

namespace imageposition {

namespace {

constexpr guint kIdleSeconds = 180;

/// Of a service that was killed.
void removeOldJobs(const std::string &folder) {
  namespace fs = std::filesystem;
  std::error_code ignored;
  for (const fs::directory_entry &file : fs::directory_iterator(folder, ignored)) {
    const auto age = fs::file_time_type::clock::now() - file.last_write_time(ignored);
    if (age > Tokens::kLifetime)
      fs::remove(file, ignored);
  }
}

/// The folder of prepared jobs, which ends with the session.
std::string makeFolder() {
  const char *const runtime = std::getenv("XDG_RUNTIME_DIR");
  if (runtime == nullptr || *runtime != '/')
    throw std::runtime_error("XDG_RUNTIME_DIR does not name a folder");
  std::string folder = std::string(runtime) + "/print-dialog";
  if (mkdir(folder.c_str(), 0700) != 0 && errno != EEXIST)
    throw std::system_error(errno, std::generic_category(), folder);
  struct stat status {};
  if (lstat(folder.c_str(), &status) != 0 || !S_ISDIR(status.st_mode) ||
      status.st_uid != geteuid() || (status.st_mode & 077) != 0)
    throw std::runtime_error(folder + " is not a folder that only its owner can access");
  removeOldJobs(folder);
  return folder;
}

/// Runs the service until it has nothing to do.
class Program {
public:
  explicit Program(guint idleSeconds)
      : idleSeconds_(idleSeconds), loop_(g_main_loop_new(nullptr, FALSE)) {}
  ~Program() {
    service_.reset();
    g_main_loop_unref(loop_);
  }
  Program(const Program &) = delete;
  Program &operator=(const Program &) = delete;

  int run() {
    const guint name = g_bus_own_name(G_BUS_TYPE_SESSION, PortalService::kName,
                                      G_BUS_NAME_OWNER_FLAGS_DO_NOT_QUEUE, connected, nameAcquired,
                                      nameLost, this, nullptr);
    g_main_loop_run(loop_);
    g_bus_unown_name(name);
    return status_;
  }

private:
  /// Before the name is requested, so that the first call finds the object.
  static void connected(GDBusConnection *connection, const gchar *, gpointer self) {
    auto *const program = static_cast<Program *>(self);
    try {
      program->service_ = std::make_unique<PortalService>(connection, makeFolder(),
                                                          [=] { program->waitForRequests(); });
      program->waitForRequests();
    } catch (const std::exception &failure) {
      program->fail(failure.what());
    }
  }

  static void nameAcquired(GDBusConnection *, const gchar *, gpointer self) {
    static_cast<Program *>(self)->isServing_ = true;
  }

  /// The session is over, there is none, or another service has the name.
  static void nameLost(GDBusConnection *, const gchar *, gpointer self) {
    auto *const program = static_cast<Program *>(self);
    if (program->isServing_)
      g_main_loop_quit(program->loop_);
    else
      program->fail("cannot own the name " + std::string(PortalService::kName));
  }

  void fail(const std::string &reason) {
    std::cerr << "print-dialog-portal: " << reason << std::endl;
    status_ = 1;
    g_main_loop_quit(loop_);
  }

  void waitForRequests() {
    if (timer_ != 0)
      g_source_remove(timer_);
    timer_ = g_timeout_add_seconds(idleSeconds_, quitIfIdle, this);
  }

  static gboolean quitIfIdle(gpointer self) {
    auto *const program = static_cast<Program *>(self);
    if (program->service_->isIdle())
      g_main_loop_quit(program->loop_);
    return G_SOURCE_CONTINUE;
  }

  const guint idleSeconds_;
  GMainLoop *const loop_;
  std::unique_ptr<PortalService> service_;
  guint timer_ = 0;
  bool isServing_ = false;
  int status_ = 0;
};

/// None if the command line is not understood.
std::optional<guint> idleSecondsIn(int argc, char **argv) {
  if (argc == 1)
    return kIdleSeconds;
  const bool isIdle = argc == 3 && std::string_view(argv[1]) == "--idle";
  const long seconds = isIdle ? std::strtol(argv[2], nullptr, 10) : 0;
  return seconds > 0 && seconds <= 86400 ? std::optional(static_cast<guint>(seconds))
                                         : std::nullopt;
}

} // namespace

} // namespace imageposition

int main(int argc, char **argv) {
  imageposition::keepStandardDescriptors();
  const auto idleSeconds = imageposition::idleSecondsIn(argc, argv);
  if (!idleSeconds) {
    std::cerr << "Usage: print-dialog-portal [--idle SECONDS]\n"
                 "The desktop's portal starts it. See print-dialog-portal(8).\n";
    return 2;
  }
  return imageposition::Program(*idleSeconds).run();
}
