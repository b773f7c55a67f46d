#include "ChildProgram.hpp"

#include <array>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <gmock/gmock.h>
#include <sys/wait.h>
#include <system_error>
#include <unistd.h>

namespace imageposition {

namespace {

using namespace std::chrono_literals;

constexpr auto kPatience = 20s;

/// A shell that runs `script`.
ProgramStart shell(const std::string &script, std::vector<int> descriptors) {
  return {{"/bin/sh", "-c", script}, std::nullopt, std::move(descriptors)};
}

/// All that can be read until everything that could write has ended.
std::string readAll(const Descriptor &file) {
  std::string text;
  std::array<char, 4096> part{};
  for (ssize_t count = 0; (count = read(file.get(), part.data(), part.size())) > 0;)
    text.append(part.data(), static_cast<std::size_t>(count));
  return text;
}

/// What the program writes to its descriptor 1.
std::string outputOf(ProgramStart start) {
  ProgramPipe pipe = newProgramPipe();
  start.descriptors[1] = pipe.writer.get();
  const pid_t process = startProgram(start);
  pipe.writer = Descriptor(-1);
  const std::string output = readAll(pipe.reader);
  EXPECT_TRUE(waitForProgram(process, kPatience));
  return output;
}

/// Blocks a signal in this thread.
class BlockedSignal {
public:
  explicit BlockedSignal(int signal) {
    sigset_t signals;
    sigemptyset(&signals);
    sigaddset(&signals, signal);
    pthread_sigmask(SIG_BLOCK, &signals, &before_);
  }
  ~BlockedSignal() { pthread_sigmask(SIG_SETMASK, &before_, nullptr); }
  BlockedSignal(const BlockedSignal &) = delete;
  BlockedSignal &operator=(const BlockedSignal &) = delete;

private:
  sigset_t before_{};
};

TEST(ChildProgram, GetsItsDescriptorsAndNoOthers) {
  const Descriptor inherited(fcntl(STDERR_FILENO, F_DUPFD, 15)); // nothing closes it at exec
  ASSERT_TRUE(inherited.isOpen());
  const std::string script = "n=0; while [ $n -lt 64 ]; do "
                             "[ ! -e /proc/$$/fd/$n ] || echo $n; n=$((n + 1)); done";
  EXPECT_EQ(outputOf(shell(script, {-1, -1, -1, STDERR_FILENO})), "0\n1\n2\n3\n");
}

TEST(ChildProgram, GetsEachDescriptorUnderItsNumber) {
  const ProgramPipe first = newProgramPipe(), second = newProgramPipe();
  ASSERT_EQ(write(first.writer.get(), "first\n", 6), 6);
  ASSERT_EQ(write(second.writer.get(), "second\n", 7), 7);
  EXPECT_EQ(outputOf(shell("read a <&3; read b <&4; echo $a $b",
                           {-1, -1, -1, second.reader.get(), first.reader.get()})),
            "second first\n");
}

TEST(ChildProgram, HasTheNullDeviceForADescriptorOfMinusOne) {
  EXPECT_EQ(outputOf(shell("readlink /proc/$$/fd/0 /proc/$$/fd/2; :", {-1, -1, -1})),
            "/dev/null\n/dev/null\n");
}

TEST(ChildProgram, HasTheGivenEnvironmentAlone) {
  EXPECT_EQ(outputOf({{"/usr/bin/env"}, {{"PAPER=A4"}}, {-1, -1, -1}}), "PAPER=A4\n");
}

TEST(ChildProgram, IsInASeparateGroupOnlyIfAskedFor) {
  for (const bool hasOwnGroup : {false, true}) {
    ProgramPipe lifeline = newProgramPipe();
    ProgramStart start{{"/bin/cat"}, std::nullopt, {lifeline.reader.get(), -1, -1}, hasOwnGroup};
    const pid_t process = startProgram(start);
    EXPECT_EQ(getpgid(process), hasOwnGroup ? process : getpgrp());
    lifeline.writer = Descriptor(-1);
    EXPECT_TRUE(waitForProgram(process, kPatience));
  }
}

TEST(ChildProgram, GetsSignalsThatTheThreadBlocks) {
  const BlockedSignal blocked(SIGTERM);
  const pid_t process = startProgram(shell("kill -TERM $$; exit 0", {-1, -1, -1}));
  int status = 0;
  ASSERT_EQ(waitpid(process, &status, 0), process);
  EXPECT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == SIGTERM) << status;
}

TEST(ChildProgram, IsReportedIfItIsMissing) {
  try {
    startProgram({{"/nowhere/print-dialog-nothing"}, std::nullopt, {-1, -1, -1}});
    ADD_FAILURE() << "started";
  } catch (const std::system_error &error) {
    EXPECT_EQ(error.code().value(), ENOENT);
  }
}

TEST(ChildProgram, SucceedsWithStatusZeroAlone) {
  EXPECT_TRUE(waitForProgram(startProgram(shell("exit 0", {-1, -1, -1})), kPatience));
  EXPECT_FALSE(waitForProgram(startProgram(shell("exit 1", {-1, -1, -1})), kPatience));
  EXPECT_FALSE(waitForProgram(startProgram(shell("kill -KILL $$", {-1, -1, -1})), kPatience));
}

TEST(ChildProgram, IsKilledWhenItTakesTooLong) {
  const ProgramPipe lifeline = newProgramPipe();
  const pid_t process =
      startProgram({{"/bin/cat"}, std::nullopt, {lifeline.reader.get(), -1, -1}, false});
  EXPECT_FALSE(waitForProgram(process, 20ms));
  EXPECT_EQ(waitpid(process, nullptr, WNOHANG), -1) << "still there";
}

TEST(ProgramPipe, IsOutOfTheWayOfAProgramsDescriptors) {
  const ProgramPipe pipe = newProgramPipe();
  for (const Descriptor *const end : {&pipe.reader, &pipe.writer}) {
    EXPECT_GE(end->get(), 10);
    EXPECT_EQ(fcntl(end->get(), F_GETFD) & FD_CLOEXEC, FD_CLOEXEC);
  }
}

} // namespace

} // namespace imageposition
