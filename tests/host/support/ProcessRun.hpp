/// Runs a program until it exits.
#ifndef IMAGEPOSITION_TESTS_HOST_SUPPORT_PROCESSRUN_HPP
#define IMAGEPOSITION_TESTS_HOST_SUPPORT_PROCESSRUN_HPP

#include <ostream>
#include <string>
#include <sys/types.h>
#include <vector>

namespace imageposition::test {

struct ProcessResult {
  int status = -1; ///< The exit status; 128 plus the signal's number if a signal ended it.
  std::string output;
  std::string errors;
};

/// Prints a result in a failed expectation.
void PrintTo(const ProcessResult &result, std::ostream *stream);

/// A program that runs alongside the test. The destructor ends it.
class Process {
public:
  static constexpr int kPatience = 120; ///< Seconds.

  /// Like `runProcess`, but ends the program after `patience` seconds.
  Process(const std::vector<std::string> &words, const std::vector<std::string> &environment = {},
          int patience = kPatience);
  ~Process();
  Process(const Process &) = delete;
  Process &operator=(const Process &) = delete;

  /// Waits until it has ended.
  const ProcessResult &wait();
  bool hasEnded();
  void send(int signal) const;
  pid_t id() const noexcept { return child_; }
  /// Its standard error so far.
  std::string errorsSoFar();

private:
  void read();

  pid_t child_;
  int output_;
  int errors_;
  bool ended_ = false;
  ProcessResult result_;
};

/// `environment` modifies this process's: "NAME=value" sets, "NAME" alone unsets. Standard input is
/// empty. Ends the program after two minutes.
ProcessResult runProcess(const std::vector<std::string> &words,
                         const std::vector<std::string> &environment = {});

} // namespace imageposition::test

#endif
