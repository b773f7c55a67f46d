#include "PortalSession.hpp"

#include "PrintWindow.hpp"
#include "Waiting.hpp"

#include <algorithm>
#include <filesystem>
#include <sstream>
#include <sys/stat.h>

namespace imageposition::test {

namespace {

constexpr const char *kRules = "<policy context='default'><allow send_destination='*'/>"
                               "<allow receive_sender='*'/><allow own='*'/></policy>";

std::string serviceFile(const std::string &name, const std::string &program) {
  return "[D-BUS Service]\nName=" + name + "\nExec=" + program + "\n";
}

std::string ofProcess(pid_t process, const char *file) {
  return contentOf("/proc/" + std::to_string(process) + "/" + file);
}

/// The processes with that name and with `mark` in their environment, which may end at any time.
std::vector<pid_t> processesNamed(const std::string &name, const std::string &mark) {
  std::vector<pid_t> found;
  std::istringstream lines(runProcess({"pgrep", "-x", name}).output);
  for (pid_t process = 0; lines >> process;)
    if (ofProcess(process, "environ").find(mark) != std::string::npos)
      found.push_back(process);
  return found;
}

} // namespace

PortalSession::PortalSession(const std::vector<std::string> &environment)
    : observer_(PrintWindow::loadObserver()), environment_(environment) {
  writeFiles();
  for (const std::string &variable :
       {"XDG_RUNTIME_DIR=" + folder_.path("run"),
        "XDG_DESKTOP_PORTAL_DIR=" + folder_.path("portals"),
        std::string("XDG_CURRENT_DESKTOP=print-dialog:Example"),
        "DBUS_SESSION_BUS_ADDRESS=unix:path=" + folder_.path("bus"),
        "OBSERVER_FILE=" + screenFile(), std::string("PRINT_DIALOG_APPEARANCE=light"),
        std::string("GSETTINGS_BACKEND=memory"), std::string("NO_AT_BRIDGE=1"),
        std::string("GTK_A11Y=none"), std::string("GTK_USE_PORTAL=1"),
        std::string("GDK_DEBUG=portals"), std::string("GSK_RENDERER=cairo"),
        std::string("GDK_BACKEND=x11")})
    environment_.push_back(variable);
  bus_ = std::make_unique<Process>(
      std::vector<std::string>{"dbus-daemon", "--nofork", "--nopidfile",
                               "--config-file=" + folder_.path("session.conf")},
      environment_);
  becomesTrue([&] { return isRunning() || bus_->hasEnded(); });
}

/// A rival that does not exist is the desktop's own: the name that the session puts first wins.
void PortalSession::writeFiles() const {
  folder_.write("session.conf",
                "<busconfig><type>session</type><listen>unix:path=" + folder_.path("bus") +
                    "</listen><servicedir>" + folder_.path("services") + "</servicedir>" + kRules +
                    "</busconfig>\n");
  folder_.write("services/portal.service",
                serviceFile("org.freedesktop.portal.Desktop", "/usr/libexec/xdg-desktop-portal"));
  folder_.write(
      "services/dialog.service",
      serviceFile("org.freedesktop.impl.portal.desktop.print_dialog", PRINT_DIALOG_PORTAL));
  folder_.write("portals/print-dialog.portal",
                contentOf(IMAGEPOSITION_INSTALL "/print-dialog.portal"));
  folder_.write("portals/example.portal",
                "[portal]\nDBusName=org.freedesktop.impl.portal.desktop.example\n"
                "Interfaces=org.freedesktop.impl.portal.Print\nUseIn=Example\n");
  std::filesystem::create_directory(folder_.path("run"));
  chmod(folder_.path("run").c_str(), 0700);
}

bool PortalSession::isRunning() const { return std::filesystem::exists(folder_.path("bus")); }

std::unique_ptr<Process> PortalSession::application(const std::vector<std::string> &steps) const {
  std::vector<std::string> words{PORTAL_CLIENT};
  words.insert(words.end(), steps.begin(), steps.end());
  return std::make_unique<Process>(words, environment_);
}

void PortalSession::forgetScreen() const {
  std::error_code ignored;
  std::filesystem::remove(screenFile(), ignored);
}

std::vector<pid_t> PortalSession::dialogs() const {
  std::vector<pid_t> found = processesNamed("print-dialog", "OBSERVER_FILE=" + screenFile());
  const auto isBatch = [](pid_t process) {
    return ofProcess(process, "cmdline").find("--batch") != std::string::npos;
  };
  found.erase(std::remove_if(found.begin(), found.end(), isBatch), found.end());
  return found;
}

pid_t PortalSession::service() const {
  const auto found = processesNamed("print-dialog-po", "OBSERVER_FILE=" + screenFile());
  return found.empty() ? 0 : found.front();
}

pid_t PortalSession::dialog() const {
  std::vector<pid_t> found;
  becomesTrue([&] { return !(found = dialogs()).empty(); });
  return found.empty() ? 0 : found.front();
}

std::size_t PortalSession::preparedJobs() const {
  std::error_code ignored;
  const auto files = std::filesystem::directory_iterator(folder_.path("run/print-dialog"), ignored);
  return static_cast<std::size_t>(std::distance(begin(files), end(files)));
}

} // namespace imageposition::test
