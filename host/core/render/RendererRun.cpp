#include "RendererRun.hpp"

#include "ChildProgram.hpp"

#include <array>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <poll.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <system_error>
#include <unistd.h>
#include <utility>

namespace imageposition {

namespace {

using Clock = std::chrono::steady_clock;

constexpr std::chrono::seconds kPatience{4};
constexpr int kBetweenLooks = 40; // milliseconds
constexpr std::size_t kLongestLine = 100;

[[noreturn]] void failWith(int error) { throw std::system_error(error, std::generic_category()); }

/// Where fontconfig looks for the user's fonts and their cache, and the language that it prefers.
std::vector<std::string> rendererEnvironment() {
  std::vector<std::string> environment;
  for (const char *const name : {"HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME", "XDG_CONFIG_HOME",
                                 "FONTCONFIG_FILE", "FONTCONFIG_PATH", "FONTCONFIG_SYSROOT"})
    if (const char *const value = std::getenv(name); value != nullptr)
      environment.push_back(std::string(name) + "=" + value);
  for (const char *const name : {"LC_ALL", "LC_CTYPE", "LANG"})
    if (const char *const value = std::getenv(name); value != nullptr && value[0] != '\0') {
      environment.push_back(std::string("LANG=") + value);
      break;
    }
  return environment;
}

/// Opened again, so that the program cannot write to it even if this process can.
Descriptor readOnly(const Descriptor &file) {
  const std::string path = "/proc/self/fd/" + std::to_string(file.get());
  Descriptor copy(open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY));
  if (!copy.isOpen())
    failWith(errno);
  return copy;
}

/// Has no name, and is gone when no process has it open.
Descriptor memoryFile() {
  Descriptor file(memfd_create("pages", MFD_CLOEXEC));
  if (!file.isOpen())
    failWith(errno);
  return file;
}

/// One run of the program. Each of its words and bytes is checked before it is used.
class Run {
public:
  Run(const std::string &program, const Descriptor &pdf, const RenderRequest &request)
      : request_(request), result_(memoryFile()), lifeline_(newProgramPipe()),
        reports_(newProgramPipe()) {
    const Descriptor document = readOnly(pdf);
    ProgramStart start{wordsOf(request), rendererEnvironment(), {}, true};
    start.words.insert(start.words.begin(), program);
    start.descriptors = {lifeline_.reader.get(), reports_.writer.get(), -1, document.get(),
                         result_.get()};
    static_assert(kRendererDocument == 3 && kRendererResult == 4);
    process_ = startProgram(start);
    lifeline_.reader = Descriptor(-1);
    reports_.writer = Descriptor(-1);
  }
  /// Ends the process. One that waits for a file system which does not respond cannot be waited
  /// for.
  ~Run() {
    kill(process_, SIGKILL);
    for (int tries = 0; tries < 100 && waitpid(process_, nullptr, WNOHANG) == 0; tries++)
      poll(nullptr, 0, 1);
  }
  Run(const Run &) = delete;
  Run &operator=(const Run &) = delete;

  std::vector<RenderedPage> pages(const KeepWaiting &keepWaiting) {
    const auto end = Clock::now() + kPatience;
    bool isOpen = true;
    while (isOpen && Clock::now() < end) {
      if (!keepWaiting())
        return {};
      pollfd waiting{reports_.reader.get(), POLLIN, 0};
      if (poll(&waiting, 1, kBetweenLooks) > 0)
        isOpen = readReports();
    }
    if (pages_.empty())
      throw RenderFailure(isOpen ? RenderProblem::TooLong : RenderProblem::Fault);
    if (pages_.size() == request_.pages.size() && resultSize() != taken_)
      throw RenderFailure(RenderProblem::Fault);
    pages_.resize(request_.pages.size());
    return std::move(pages_);
  }

private:
  /// Returns false at the end.
  bool readReports() {
    std::array<char, 4096> part{};
    const ssize_t count = read(reports_.reader.get(), part.data(), part.size());
    if (count <= 0)
      return false;
    text_.append(part.data(), static_cast<std::size_t>(count));
    for (std::size_t end = 0; (end = text_.find('\n')) != std::string::npos;) {
      take(text_.substr(0, end + 1));
      text_.erase(0, end + 1);
    }
    if (text_.size() > kLongestLine)
      throw RenderFailure(RenderProblem::Fault);
    return true;
  }

  void take(const std::string &line) {
    if (line == kPasswordLine)
      throw RenderFailure(RenderProblem::Password);
    if (line == kDamagedLine)
      throw RenderFailure(RenderProblem::Damaged);
    const auto report = readPageReport(line);
    if (!report || pages_.size() == request_.pages.size() ||
        report->page != request_.pages[pages_.size()])
      throw RenderFailure(RenderProblem::Fault);
    pages_.push_back(pageOf(*report));
  }

  /// Copies the pixels, which the process could change.
  RenderedPage pageOf(const PageReport &report) {
    const PixelSize size = pixelSizeOf(report, request_);
    RenderedPage page{size.width, size.height, report.width, report.height, {}};
    const std::size_t length = size.pixels() * kBytesPerPixel;
    if (resultSize() < taken_ + length)
      throw RenderFailure(RenderProblem::Fault);
    page.pixels.resize(size.pixels());
    for (std::size_t done = 0; done < length;) {
      const ssize_t count =
          pread(result_.get(), reinterpret_cast<char *>(page.pixels.data()) + done, length - done,
                static_cast<off_t>(taken_ + done));
      if (count <= 0)
        throw RenderFailure(RenderProblem::Fault);
      done += static_cast<std::size_t>(count);
    }
    for (std::uint32_t &pixel : page.pixels)
      pixel |= 0xFF000000U;
    taken_ += length;
    return page;
  }

  std::size_t resultSize() const {
    struct stat status {};
    return fstat(result_.get(), &status) == 0 ? static_cast<std::size_t>(status.st_size) : 0;
  }

  const RenderRequest request_;
  const Descriptor result_;
  ProgramPipe lifeline_, reports_;
  pid_t process_ = -1;
  std::string text_;
  std::vector<RenderedPage> pages_;
  std::size_t taken_ = 0; // bytes of the result
};

} // namespace

std::vector<RenderedPage> renderPagesWith(const std::string &program, const Descriptor &pdf,
                                          const RenderRequest &request,
                                          const KeepWaiting &keepWaiting) try {
  if (!isValid(request))
    throw std::invalid_argument("the request is not valid");
  if (!keepWaiting())
    return {};
  return Run(program, pdf, request).pages(keepWaiting);
} catch (const std::system_error &) {
  throw RenderFailure(RenderProblem::Fault);
}

} // namespace imageposition
