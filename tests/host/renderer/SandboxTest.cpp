#include "Sandbox.hpp"

#include "TemporaryFolder.hpp"

#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <functional>
#include <gtest/gtest.h>
#include <pthread.h>
#include <spawn.h>
#include <sys/mman.h>
#include <sys/ptrace.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

namespace imageposition {

namespace {

using namespace imageposition::test;

constexpr int kKilled = -1;
constexpr int kLasts = 100; ///< The process goes on, and nothing failed.

/// In a separate process in the sandbox. Returns `kKilled`, or what `attempt` returns:
/// an `errno` value or `kLasts`.
int resultOf(const std::function<int()> &attempt, const std::vector<std::string> &folders = {},
             int output = STDOUT_FILENO) {
  const pid_t process = fork();
  if (process == 0) {
    enterSandbox(folders, output);
    _exit(attempt());
  }
  int status = 0;
  EXPECT_EQ(waitpid(process, &status, 0), process);
  if (WIFSIGNALED(status)) {
    EXPECT_EQ(WTERMSIG(status), SIGSYS);
    return kKilled;
  }
  return WEXITSTATUS(status);
}

/// What reading elsewhere ends with. A kernel without landlock lets all files be read.
int refusal() {
  const long version = syscall(SYS_landlock_create_ruleset, nullptr, 0, 1);
  return version > 0 ? EACCES : kLasts;
}

int opening(const std::string &path, int flags) {
  return open(path.c_str(), flags, 0600) >= 0 ? kLasts : errno;
}

template <typename Call> int calling(const Call &call) { return call() >= 0 ? kLasts : errno; }

TEST(Sandbox, LetsFilesBeReadInItsFoldersAlone) {
  const TemporaryFolder fonts;
  const std::string font = fonts.write("deep/font", "A");
  const auto read = [&font] {
    char byte = 0;
    const int file = open(font.c_str(), O_RDONLY);
    return file >= 0 && ::read(file, &byte, 1) == 1 && byte == 'A' ? kLasts : errno;
  };
  EXPECT_EQ(resultOf(read, {fonts.path(), "/nowhere"}), kLasts);
  EXPECT_EQ(resultOf(read, {fonts.path("deep")}), kLasts);
  for (const char *const path : {"/etc/passwd", "/proc/self/environ", "/", "/dev/null"})
    EXPECT_EQ(resultOf([&] { return opening(path, O_RDONLY); }, {fonts.path()}), refusal()) << path;
}

TEST(Sandbox, LetsNoFileBeWritten) {
  const TemporaryFolder folder;
  const std::string old = folder.write("old", "A"), made = folder.path("new");
  const auto inFolder = [&](const auto &attempt) { return resultOf(attempt, {folder.path()}); };
  for (const int flags : {O_WRONLY, O_RDWR, O_RDONLY | O_TRUNC, O_WRONLY | O_APPEND})
    EXPECT_EQ(inFolder([&] { return opening(old, flags); }), EACCES) << flags;
  for (const int flags : {O_RDONLY | O_CREAT, O_RDWR | O_CREAT | O_EXCL})
    EXPECT_EQ(inFolder([&] { return opening(made, flags); }), EACCES) << flags;
  EXPECT_EQ(inFolder([&] { return opening(folder.path(), O_TMPFILE | O_RDWR); }), EACCES);
  EXPECT_EQ(inFolder([&] { return calling([&] { return unlink(old.c_str()); }); }), kKilled);
  EXPECT_EQ(inFolder([&] { return calling([&] { return truncate(old.c_str(), 0); }); }), kKilled);
  EXPECT_EQ(inFolder([&] { return calling([&] { return chmod(old.c_str(), 0777); }); }), kKilled);
  EXPECT_EQ(inFolder([&] { return calling([&] { return mkdir(made.c_str(), 0700); }); }), kKilled);
  EXPECT_EQ(inFolder([&] { return calling([&] { return rename(old.c_str(), made.c_str()); }); }),
            kKilled);
  EXPECT_EQ(inFolder([&] { return calling([&] { return symlink(old.c_str(), made.c_str()); }); }),
            kKilled);
  EXPECT_EQ(contentOf(old), "A");
  EXPECT_EQ(folder.fileCount(), 1u);
}

TEST(Sandbox, WritesToNoDescriptorButTheResult) {
  const TemporaryFolder folder;
  const int result = open(folder.write("result", "").c_str(), O_RDWR | O_CLOEXEC);
  const int other = open(folder.write("other", "A").c_str(), O_RDWR | O_CLOEXEC);
  const auto writing = [](int file) {
    return [file] { return write(file, "B", 1) == 1 ? kLasts : errno; };
  };
  EXPECT_EQ(resultOf(writing(result), {}, result), kLasts);
  EXPECT_EQ(resultOf(writing(other), {}, result), kKilled);
  EXPECT_EQ(resultOf([&] { return calling([&] { return dup2(other, result); }); }, {}, result),
            kKilled);
  EXPECT_EQ(resultOf(
                [&] {
                  void *const shared = mmap(nullptr, 1, PROT_WRITE, MAP_SHARED, other, 0);
                  return shared != MAP_FAILED ? kLasts : errno;
                },
                {}, result),
            kKilled);
  EXPECT_EQ(contentOf(folder.path("other")), "A");
  close(result);
  close(other);
}

void *nothing(void *) { return nullptr; }

TEST(Sandbox, KillsAProcessThatTriesAnythingElse) {
  const pid_t test = getpid();
  const struct {
    const char *what;
    std::function<int()> attempt;
  } rows[] = {
      {"a socket", [] { return calling([] { return socket(AF_INET, SOCK_STREAM, 0); }); }},
      {"a local socket", [] { return calling([] { return socket(AF_UNIX, SOCK_STREAM, 0); }); }},
      {"fork", [] { return calling([] { return fork(); }); }},
      {"a thread",
       [] {
         pthread_t thread{};
         return pthread_create(&thread, nullptr, nothing, nullptr) == 0 ? kLasts : errno;
       }},
      {"a program",
       [] {
         char name[] = "true";
         char *const words[] = {name, nullptr};
         return calling([&] { return execve("/bin/true", words, words); });
       }},
      {"a signal", [test] { return calling([test] { return kill(test, 0); }); }},
      {"a signal to itself", [] { return calling([] { return kill(getpid(), 0); }); }},
      {"ptrace",
       [test] {
         return calling([test] { return ptrace(PTRACE_ATTACH, test, nullptr, nullptr); });
       }},
      {"an interval timer", [] { return calling([] { return static_cast<int>(alarm(0)); }); }},
      {"higher limits",
       [] {
         const rlimit limits{RLIM_INFINITY, RLIM_INFINITY};
         return calling([&] { return setrlimit(RLIMIT_CPU, &limits); });
       }},
      {"ignoring a signal", [] { return std::signal(SIGIO, SIG_IGN) != SIG_ERR ? kLasts : errno; }},
      {"silencing the lifeline",
       [] { return calling([] { return fcntl(STDIN_FILENO, F_SETFL, 0); }); }},
      {"machine code",
       [] {
         void *const code =
             mmap(nullptr, 4096, PROT_READ | PROT_EXEC, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
         return code != MAP_FAILED ? kLasts : errno;
       }},
      {"the way out", [] { return calling([] { return chdir("/"); }); }},
  };
  for (const auto &row : rows)
    EXPECT_EQ(resultOf(row.attempt), kKilled) << row.what;
}

TEST(Sandbox, LetsMemoryBeAllocated) {
  EXPECT_EQ(resultOf([] {
              const std::string small(100, 'a'), large(10'000'000, 'a');
              return small.size() + large.size() == 10'000'100 ? kLasts : 0;
            }),
            kLasts);
}

TEST(Sandbox, LimitsTheSizeOfFiles) {
  const pid_t process = fork();
  if (process == 0) {
    std::signal(SIGXFSZ, SIG_IGN);
    limitProcess(10, 0);
    const int file = memfd_create("result", 0);
    const std::string content(20, 'a');
    _exit(write(file, content.data(), content.size()) == 10 &&
                  write(file, content.data(), content.size()) < 0 && errno == EFBIG
              ? kLasts
              : 0);
  }
  int status = 0;
  waitpid(process, &status, 0);
  EXPECT_EQ(WEXITSTATUS(status), kLasts);
}

TEST(Sandbox, EndsWithItsLifeline) {
  int ends[2] = {}, ready[2] = {};
  ASSERT_EQ(pipe2(ends, O_CLOEXEC), 0);
  ASSERT_EQ(pipe2(ready, O_CLOEXEC), 0);
  const pid_t process = fork();
  if (process == 0) {
    dup2(ends[0], STDIN_FILENO);
    close(ends[1]);
    limitProcess(0, 0);
    enterSandbox({}, ready[1]);
    sigset_t all;
    sigfillset(&all);
    sigprocmask(SIG_BLOCK, &all, nullptr);
    [[maybe_unused]] const ssize_t count = write(ready[1], "", 1);
    for (volatile int busy = 0;; busy = busy + 1) {
    }
  }
  char byte = 0;
  ASSERT_EQ(read(ready[0], &byte, 1), 1);
  EXPECT_EQ(waitpid(process, nullptr, WNOHANG), 0);
  close(ends[1]);
  int status = 0;
  waitpid(process, &status, 0);
  EXPECT_TRUE(WIFSIGNALED(status));
  EXPECT_EQ(WTERMSIG(status), SIGKILL);
  for (const int file : {ends[0], ready[0], ready[1]})
    close(file);
}

} // namespace

} // namespace imageposition
