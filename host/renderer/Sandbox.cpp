#include "Sandbox.hpp"

#include "FileContent.hpp"
#include "ResourceLimits.hpp"

#include <array>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <linux/landlock.h>
#include <memory>
#include <poll.h>
#include <seccomp.h>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/syscall.h>
#include <system_error>
#include <unistd.h>

namespace imageposition {

namespace {

constexpr rlim_t kMemory = IMAGEPOSITION_RENDERER_MEMORY; // bytes
constexpr rlim_t kSeconds = 5;                            // of the processor
constexpr unsigned kLifetime = 10;                        // seconds; the dialog is more impatient

[[noreturn]] void failWith(int error) { throw std::system_error(error, std::generic_category()); }

/// The kernel sends the signal even while poppler is busy, and nothing can block it.
void endWithInput() {
  fcntl(STDIN_FILENO, F_SETSIG, SIGKILL);
  fcntl(STDIN_FILENO, F_SETOWN, getpid());
  fcntl(STDIN_FILENO, F_SETFL, fcntl(STDIN_FILENO, F_GETFL) | O_ASYNC);
  pollfd input{STDIN_FILENO, 0, 0};
  if (poll(&input, 1, 0) > 0 && (input.revents & POLLHUP) != 0)
    _exit(1); // it was closed before
}

// Landlock, for which the C library has no functions.

constexpr std::uint64_t kReading = LANDLOCK_ACCESS_FS_READ_FILE | LANDLOCK_ACCESS_FS_READ_DIR;
constexpr std::uint64_t kFirstRights = (LANDLOCK_ACCESS_FS_MAKE_SYM << 1U) - 1;

/// Everything that this kernel can forbid, as far as the headers name it.
std::uint64_t rightsOf(long version) {
  std::uint64_t rights = kFirstRights;
#ifdef LANDLOCK_ACCESS_FS_REFER
  if (version >= 2)
    rights |= LANDLOCK_ACCESS_FS_REFER;
#endif
#ifdef LANDLOCK_ACCESS_FS_TRUNCATE
  if (version >= 3)
    rights |= LANDLOCK_ACCESS_FS_TRUNCATE;
#endif
#ifdef LANDLOCK_ACCESS_FS_IOCTL_DEV
  if (version >= 5)
    rights |= LANDLOCK_ACCESS_FS_IOCTL_DEV;
#endif
  return rights;
}

void restrictFiles(const std::vector<std::string> &folders) {
  const long version =
      syscall(SYS_landlock_create_ruleset, nullptr, 0, LANDLOCK_CREATE_RULESET_VERSION);
  if (version < 1)
    return; // the kernel, or a container, does not have it
  landlock_ruleset_attr attributes{};
  attributes.handled_access_fs = rightsOf(version);
  const Descriptor rules(
      static_cast<int>(syscall(SYS_landlock_create_ruleset, &attributes, sizeof attributes, 0)));
  if (!rules.isOpen())
    failWith(errno);
  for (const std::string &folder : folders) {
    const Descriptor place(open(folder.c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC));
    if (!place.isOpen())
      continue; // most systems have only some of them
    landlock_path_beneath_attr rule{};
    rule.allowed_access = kReading;
    rule.parent_fd = place.get();
    if (syscall(SYS_landlock_add_rule, rules.get(), LANDLOCK_RULE_PATH_BENEATH, &rule, 0) != 0)
      failWith(errno);
  }
  if (syscall(SYS_landlock_restrict_self, rules.get(), 0) != 0)
    failWith(errno);
}

// System calls.

/// Numbers of calls that an architecture lacks are negative, and libseccomp leaves them out. Only
/// the sanitizers need sigaltstack.
// clang-format off
constexpr std::array kHarmless = {
    SCMP_SYS(read), SCMP_SYS(pread64), SCMP_SYS(readv), SCMP_SYS(lseek), SCMP_SYS(_llseek),
    SCMP_SYS(close), SCMP_SYS(getdents), SCMP_SYS(getdents64), SCMP_SYS(getcwd), SCMP_SYS(readlink),
    SCMP_SYS(readlinkat),
    SCMP_SYS(fstat), SCMP_SYS(fstat64), SCMP_SYS(stat), SCMP_SYS(stat64), SCMP_SYS(lstat),
    SCMP_SYS(lstat64), SCMP_SYS(newfstatat), SCMP_SYS(fstatat64), SCMP_SYS(statx), SCMP_SYS(statfs),
    SCMP_SYS(statfs64), SCMP_SYS(fstatfs), SCMP_SYS(fstatfs64), SCMP_SYS(access),
    SCMP_SYS(faccessat), SCMP_SYS(faccessat2),
    SCMP_SYS(munmap), SCMP_SYS(brk), SCMP_SYS(madvise), SCMP_SYS(mremap),
    SCMP_SYS(clock_gettime), SCMP_SYS(clock_gettime64), SCMP_SYS(clock_getres),
    SCMP_SYS(gettimeofday), SCMP_SYS(time), SCMP_SYS(times), SCMP_SYS(getrusage),
    SCMP_SYS(getpid), SCMP_SYS(gettid), SCMP_SYS(getuid), SCMP_SYS(getuid32), SCMP_SYS(geteuid),
    SCMP_SYS(geteuid32), SCMP_SYS(getgid), SCMP_SYS(getgid32), SCMP_SYS(getegid),
    SCMP_SYS(getegid32), SCMP_SYS(getrlimit), SCMP_SYS(ugetrlimit), SCMP_SYS(sched_getaffinity),
    SCMP_SYS(sysinfo), SCMP_SYS(uname), SCMP_SYS(getrandom),
    SCMP_SYS(futex), SCMP_SYS(futex_time64), SCMP_SYS(rt_sigprocmask), SCMP_SYS(rt_sigreturn),
    SCMP_SYS(sigreturn), SCMP_SYS(sigaltstack), SCMP_SYS(restart_syscall), SCMP_SYS(exit),
    SCMP_SYS(exit_group)};
// clang-format on

class Filter {
public:
  Filter() : context_(seccomp_init(SCMP_ACT_KILL_PROCESS), seccomp_release) {
    if (context_ == nullptr)
      failWith(ENOMEM);
  }

  template <typename... Conditions>
  void add(std::uint32_t action, int call, const Conditions &...conditions) {
    if (const int error =
            seccomp_rule_add(context_.get(), action, call, sizeof...(conditions), conditions...);
        error < 0)
      failWith(-error);
  }
  template <typename... Conditions> void allow(int call, const Conditions &...conditions) {
    add(SCMP_ACT_ALLOW, call, conditions...);
  }

  void load() const {
    if (const int error = seccomp_load(context_.get()); error < 0)
      failWith(-error);
  }

private:
  std::unique_ptr<void, void (*)(void *)> context_;
};

scmp_arg_cmp isEqual(unsigned argument, std::uint64_t value) {
  return {argument, SCMP_CMP_EQ, value, 0};
}

/// Whether the bits of the mask have this value.
scmp_arg_cmp hasBits(unsigned argument, std::uint64_t mask, std::uint64_t value) {
  return {argument, SCMP_CMP_MASKED_EQ, mask, value};
}

/// `flags` is the number of the argument.
void allowOpening(Filter &filter, int call, unsigned flags) {
  constexpr std::uint64_t kMaking = O_CREAT | O_TRUNC;
  filter.allow(call, hasBits(flags, O_ACCMODE | kMaking, O_RDONLY));
  for (const std::uint64_t mode : {O_WRONLY, O_RDWR, O_ACCMODE})
    filter.add(SCMP_ACT_ERRNO(EACCES), call, hasBits(flags, O_ACCMODE, mode));
  for (const std::uint64_t making : {O_CREAT, O_TRUNC})
    filter.add(SCMP_ACT_ERRNO(EACCES), call, hasBits(flags, making, making));
}

void restrictCalls(int output) {
  Filter filter;
  for (const int call : kHarmless)
    filter.allow(call);
  for (const int file : {STDOUT_FILENO, STDERR_FILENO, output})
    for (const int call : {SCMP_SYS(write), SCMP_SYS(writev)})
      filter.allow(call, isEqual(0, static_cast<std::uint64_t>(file)));
  allowOpening(filter, SCMP_SYS(open), 1);
  allowOpening(filter, SCMP_SYS(openat), 2);
  for (const int command : {F_GETFD, F_SETFD, F_GETFL})
    for (const int call : {SCMP_SYS(fcntl), SCMP_SYS(fcntl64)})
      filter.allow(call, isEqual(1, static_cast<std::uint64_t>(command)));
  for (const int call : {SCMP_SYS(mmap), SCMP_SYS(mmap2)})
    filter.allow(call, hasBits(2, PROT_EXEC, 0), hasBits(3, MAP_TYPE, MAP_PRIVATE));
  filter.allow(SCMP_SYS(prlimit64), isEqual(2, 0)); // reads limits
  filter.allow(SCMP_SYS(mprotect), hasBits(2, PROT_EXEC, 0));
  filter.load();
}

} // namespace

void limitProcess(std::size_t largestFile, std::size_t mapped) {
  limitResource(RLIMIT_AS, kMemory == RLIM_INFINITY ? kMemory : kMemory + mapped);
  limitResource(RLIMIT_CPU, kSeconds);
  limitResource(RLIMIT_FSIZE, largestFile);
  limitResource(RLIMIT_CORE, 0);
  alarm(kLifetime);
  endWithInput();
}

void enterSandbox(const std::vector<std::string> &folders, int output) {
  if (prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) != 0)
    failWith(errno);
  restrictFiles(folders);
  restrictCalls(output);
}

} // namespace imageposition
