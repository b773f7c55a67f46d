#include "DocumentMover.hpp"

#include "ChildProgram.hpp"
#include "Phrases.hpp"
#include "PlacementTexts.hpp"
#include "ProgramFolder.hpp"
#include "TemporaryData.hpp"

#include <array>
#include <chrono>
#include <cstdlib>
#include <poll.h>
#include <system_error>
#include <unistd.h>
#include <utility>
#include <vector>

namespace imageposition {

namespace {

constexpr int kBetweenLooks = 50;                  // milliseconds
constexpr std::chrono::milliseconds kEndTime{120}; // for the mover to clean up

bool isProgram(const std::string &path) { return access(path.c_str(), X_OK) == 0; }

std::string variable(const char *name) {
  const char *const value = std::getenv(name);
  return value != nullptr ? value : "";
}

/// The user's language; the filters need nothing else from the environment.
std::vector<std::string> environmentIn(const std::string &folder) {
  std::vector<std::string> environment{"TMPDIR=" + folder, "PATH=/usr/bin:/usr/sbin:/bin:/sbin"};
  for (const char *const name : {"LC_ALL", "LC_MESSAGES", "LANG"})
    if (const std::string language = variable(name); !language.empty()) {
      environment.push_back("LANG=" + language);
      break;
    }
  if (const std::string root = variable("CUPS_SERVERROOT"); !root.empty())
    environment.push_back("CUPS_SERVERROOT=" + root);
  return environment;
}

/// By CUPS.
bool isReadable(MoveProblem problem) {
  return problem != MoveProblem::Encrypted && problem != MoveProblem::Forbidden;
}

struct MoverFiles {
  int document;
  int description;
  int result;
};

/// One run of the mover.
class Run {
public:
  Run(const std::string &program, const MoverTask &task, const MoverFiles &files)
      : lifeline_(newProgramPipe()), reports_(newProgramPipe()) {
    ProgramStart start{wordsOf(task), environmentIn(place_), {}, true};
    start.words.insert(start.words.begin(), program);
    start.descriptors = {lifeline_.reader.get(), reports_.writer.get(), -1,
                         files.document,         files.description,     files.result};
    static_assert(kMoverDocument == 3 && kMoverDescription == 4 && kMoverResult == 5);
    process_ = startProgram(start);
    lifeline_.reader = Descriptor(-1);
    reports_.writer = Descriptor(-1);
  }
  /// The mover ends itself, and all that it has started, when the pipe is closed.
  ~Run() {
    lifeline_.writer = Descriptor(-1);
    waitForProgram(process_, kEndTime);
    deletePlace(place_); // in case it was killed
  }
  Run(const Run &) = delete;
  Run &operator=(const Run &) = delete;

  /// The last report; none if `progress` has cancelled.
  std::optional<MoverReport> result(const MoveProgress &progress) {
    int percent = 0;
    while (progress(percent)) {
      pollfd waiting{reports_.reader.get(), POLLIN, 0};
      if (poll(&waiting, 1, kBetweenLooks) <= 0)
        continue;
      std::array<char, 4096> part{};
      const ssize_t count = read(reports_.reader.get(), part.data(), part.size());
      if (count <= 0)
        return MoverReport{MoverReport::Kind::Failed, 0, MoveProblem::Fault, {}};
      text_.append(part.data(), static_cast<std::size_t>(count));
      for (std::size_t end = 0; (end = text_.find('\n')) != std::string::npos;) {
        auto report = readReport(std::string_view(text_).substr(0, end));
        text_.erase(0, end + 1);
        if (report && report->kind != MoverReport::Kind::Progress)
          return report;
        percent = report ? report->number : percent;
      }
    }
    return std::nullopt;
  }

private:
  const std::string place_ = unusedPlace(); // which the mover makes for the filters
  ProgramPipe lifeline_, reports_;
  std::string text_;
  pid_t process_ = -1;
};

} // namespace

ShiftFailure::ShiftFailure(MoveProblem problem, const std::string &reason)
    : Failure(ExitCode::Job, isReadable(problem)
                                 ? messages::sentences({reason, messages::kPrintUnmoved})
                                 : reason),
      problem_(problem), reason_(reason) {}

bool ShiftFailure::isPrintable() const noexcept { return isReadable(problem_); }

std::optional<LayoutPrograms> layoutPrograms() {
  LayoutPrograms programs;
  for (const char *const folder : {"/usr/lib/cups/filter", "/usr/libexec/cups/filter",
                                   "/usr/lib64/cups/filter", "/usr/local/lib/cups/filter"})
    if (programs.filters.empty() && isProgram(std::string(folder) + "/pdftopdf"))
      programs.filters = folder;
  for (const char *const path :
       {"/usr/sbin/cupsfilter", "/usr/bin/cupsfilter", "/usr/local/sbin/cupsfilter"})
    if (programs.chooser.empty() && isProgram(path))
      programs.chooser = path;
  return programs.filters.empty() ? std::nullopt : std::optional(programs);
}

std::string verdictFile() {
  std::string folder = variable("XDG_CACHE_HOME");
  if (folder.empty() || folder[0] != '/') {
    const std::string home = variable("HOME");
    folder = home.empty() || home[0] != '/' ? "" : home + "/.cache";
  }
  return folder.empty() ? "" : folder + "/print-dialog/layout-check";
}

std::optional<MovedDocument> moveDocument(const MoverTask &task, const Descriptor &document,
                                          const std::string &name, const std::string &description,
                                          const MoveProgress &progress) try {
  const std::string program = installedProgram(IMAGEPOSITION_MOVER);
  if (program.empty())
    throw ShiftFailure(MoveProblem::Fault, messages::moverMissing(IMAGEPOSITION_MOVER));
  const Descriptor printer = temporaryFile(description);
  Descriptor result = temporaryFile();
  Run run(program, task, {document.get(), printer.get(), result.get()});
  const auto report = run.result(progress);
  if (!report)
    return std::nullopt;
  if (report->kind == MoverReport::Kind::Failed)
    throw ShiftFailure(report->problem, messages::notMoved(name, report->problem, report->detail));
  lseek(result.get(), 0, SEEK_SET);
  return MovedDocument{std::move(result), report->number};
} catch (const std::system_error &error) {
  throw ShiftFailure(MoveProblem::NoRoom,
                     messages::notMoved(name, MoveProblem::NoRoom, error.code().message()));
}

} // namespace imageposition
