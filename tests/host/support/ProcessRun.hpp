/// Runs a program to its end.
#ifndef IMAGEPOSITION_TESTS_HOST_PROCESSRUN_HPP
#define IMAGEPOSITION_TESTS_HOST_PROCESSRUN_HPP

#include <ostream>
#include <string>
#include <sys/types.h>
#include <vector>

namespace imageposition::test {

struct ProcessResult {
  int status = -1; ///< The exit status; 128 and the signal's number when a signal ended it.
  std::string output;
  std::string errors;
};

/// How a result shows in a failed expectation.
void PrintTo(const ProcessResult &result, std::ostream *stream);

/// A program that runs beside the test. It is ended with this object.
class Process {
public:
  static constexpr int kPatience = 120; ///< Seconds.

  /// As `runProcess`; ends the program after `patience` seconds.
  Process(const std::vector<std::string> &words, const std::vector<std::string> &environment = {},
          int patience = kPatience);
  ~Process();
  Process(const Process &) = delete;
  Process &operator=(const Process &) = delete;

  /// Once it has ended.
  const ProcessResult &wait();
  bool hasEnded();
  void send(int signal) const;
  pid_t id() const noexcept { return child_; }
  /// What it has written so far.
  std::string errorsSoFar();

private:
  void read();

  pid_t child_;
  int output_;
  int errors_;
  bool ended_ = false;
  ProcessResult result_;
};

/// `environment` is laid over this process's: "NAME=value" sets, "NAME" alone unsets. Standard
/// input is empty. Ends the program after two minutes.
ProcessResult runProcess(const std::vector<std::string> &words,
                         const std::vector<std::string> &environment = {});

} // namespace imageposition::test

#endif
