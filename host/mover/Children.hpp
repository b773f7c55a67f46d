/// The processes that read a document for the mover.
#ifndef IMAGEPOSITION_MOVER_CHILDREN_HPP
#define IMAGEPOSITION_MOVER_CHILDREN_HPP

#include "FileContent.hpp"

#include <functional>
#include <string>
#include <string_view>
#include <sys/types.h>
#include <vector>

namespace imageposition {

/// Thrown when the process that started this one has ended or no longer wants the result.
struct Abandoned {};

/// Starts processes with limits, and waits for them. The documents that they read may be
/// malicious. When this process ends, however it does, they are killed.
///
/// Make only one object, in a process with one thread.
class Children {
public:
  /// `lifeline` becomes readable or is closed when this process must end; borrowed.
  explicit Children(int lifeline);
  /// Kills those that still run, and all that they have started.
  ~Children();
  Children(const Children &) = delete;
  Children &operator=(const Children &) = delete;

  /// The descriptors of a process; -1 for /dev/null. Borrowed.
  struct Files {
    int input = -1;
    int output = -1;
    int errors = -1;
    int description = -1; ///< Gets the number `kDescription`.
  };
  static constexpr int kDescription = 5;

  /// Runs `work` in a process, which ends with what `work` returns, or that it replaces with
  /// another program. It has only these descriptors, and a separate process group.
  void start(const Files &files, const std::function<int()> &work);

  /// Waits until all have ended, and meanwhile passes on what can be read from `output`, which may
  /// be -1. Returns whether all have succeeded; kills the others once one has failed. Throws
  /// `Abandoned`.
  bool wait(int output = -1, const std::function<void(std::string_view)> &read = {});

private:
  struct Child {
    pid_t id;
    bool hasEnded;
    bool hasSucceeded;
  };
  void collect();
  void killAll();
  bool areAllDone() const;

  const int lifeline_;
  Descriptor signals_;
  std::vector<Child> children_;
};

/// Replaces the process with a program. Returns only if that fails.
int execute(const std::string &program, const std::vector<std::string> &words,
            const std::vector<std::string> &environment);

} // namespace imageposition

#endif
