#include "FilterChain.hpp"

#include "ChildProgram.hpp"
#include "Strings.hpp"

#include <array>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <system_error>
#include <unistd.h>
#include <utility>

namespace imageposition {

namespace {

constexpr const char *kResultType = "application/vnd.cups-pdf";
constexpr const char *kInput = "/proc/self/fd/0"; // a file that every filter can open for itself
constexpr const char *kPdfFilter = "pdftopdf";
constexpr std::size_t kHeadRoom = 1024; // a PDF may begin with other bytes, which readers skip
constexpr std::size_t kLongestError = 500;

std::string fromEnvironment(const char *name, const std::string &otherwise) {
  const char *const value = std::getenv(name);
  return value != nullptr ? value : otherwise;
}

/// What the scheduler gives a filter; nothing else of the user's environment.
std::vector<std::string> environmentFor(const MoverTask &task) {
  const std::string programs = std::filesystem::path(task.filters).parent_path().string();
  const std::string folder = fromEnvironment("TMPDIR", "/tmp");
  return {"CHARSET=utf-8",
          "CONTENT_TYPE=" + (task.format.empty() ? "application/octet-stream" : task.format),
          "CUPS_DATADIR=/usr/share/cups",
          "CUPS_FONTPATH=/usr/share/cups/fonts",
          "CUPS_SERVERBIN=" + programs,
          "CUPS_SERVERROOT=" + fromEnvironment("CUPS_SERVERROOT", "/etc/cups"),
          std::string("FINAL_CONTENT_TYPE=") + kResultType,
          "HOME=" + folder,
          "LANG=" + fromEnvironment("LANG", "C.UTF-8"),
          "PATH=" + task.filters + ":/usr/bin:/usr/sbin:/bin:/sbin",
          "PPD=/proc/self/fd/" + std::to_string(Children::kDescription),
          "PRINTER=print-dialog",
          "RIP_MAX_CACHE=128m",
          "SOFTWARE=CUPS",
          "TMPDIR=" + folder,
          "USER=" + task.user};
}

std::vector<std::string> linesOf(const std::string &text) {
  std::vector<std::string> lines;
  for (std::size_t start = 0; start < text.size();) {
    const std::size_t end = std::min(text.find('\n', start), text.size());
    if (end > start)
      lines.push_back(text.substr(start, end - start));
    start = end + 1;
  }
  return lines;
}

/// Remembers the last "ERROR:" line of what filters write to standard error.
class ErrorLine {
public:
  void add(std::string_view text) {
    for (const char c : text)
      if (c == '\n')
        endLine();
      else if (line_.size() < kLongestError)
        line_ += c;
  }
  std::string last() {
    endLine();
    return last_;
  }

private:
  void endLine() {
    constexpr std::string_view kLevel = "ERROR:";
    if (startsWith(line_, kLevel))
      last_ = trimmed(std::string_view(line_).substr(kLevel.size()), " \t\r");
    line_.clear();
  }
  std::string line_, last_;
};

} // namespace

bool isPdf(const Descriptor &file) {
  std::array<char, kHeadRoom> head{};
  const ssize_t count = pread(file.get(), head.data(), head.size(), 0);
  return std::string_view(head.data(), count > 0 ? static_cast<std::size_t>(count) : 0)
             .find("%PDF-") != std::string_view::npos;
}

std::vector<std::string> filtersFor(const MoverTask &task, const Descriptor &document,
                                    Children &children) {
  if (task.chooser.empty()) // only CUPS itself can tell other types
    return isPdf(document) ? std::vector<std::string>{task.filters + "/" + kPdfFilter}
                           : std::vector<std::string>{};
  std::vector<std::string> words{task.chooser, "--list-filters", "-m", kResultType};
  if (!task.format.empty())
    words.insert(words.end(), {"-i", task.format});
  words.insert(words.end(), {"--", task.path.empty() ? kInput : task.path});
  ProgramPipe list = newProgramPipe();
  children.start({document.get(), list.writer.get()},
                 [&] { return execute(task.chooser, words, environmentFor(task)); });
  list.writer = Descriptor(-1);
  std::string names;
  if (!children.wait(list.reader.get(), [&](std::string_view part) { names += part; }))
    return {};
  std::vector<std::string> filters = linesOf(names);
  for (std::string &filter : filters)
    if (filter[0] != '/')
      filter.insert(0, task.filters + "/");
  return filters;
}

std::optional<std::string> runFilters(const std::vector<std::string> &filters,
                                      const MoverTask &task, const Descriptor &document,
                                      const Descriptor &description, const Descriptor &result,
                                      Children &children) {
  ProgramPipe errors = newProgramPipe();
  Descriptor input(fcntl(document.get(), F_DUPFD_CLOEXEC, 0));
  for (std::size_t i = 0; i < filters.size(); i++) {
    const bool isLast = i + 1 == filters.size();
    ProgramPipe between = isLast ? ProgramPipe{Descriptor(-1), Descriptor(-1)} : newProgramPipe();
    std::vector<std::string> words{filters[i], "1", task.user, task.title, "1", task.options};
    if (i == 0)
      words.emplace_back(kInput);
    children.start({input.get(), isLast ? result.get() : between.writer.get(), errors.writer.get(),
                    description.get()},
                   [&] { return execute(filters[i], words, environmentFor(task)); });
    input = std::move(between.reader);
  }
  input = Descriptor(-1);
  errors.writer = Descriptor(-1);
  ErrorLine error;
  const bool hasSucceeded =
      children.wait(errors.reader.get(), [&](std::string_view part) { error.add(part); });
  return hasSucceeded ? std::nullopt : std::optional(error.last());
}

} // namespace imageposition
