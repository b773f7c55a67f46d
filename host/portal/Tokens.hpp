/// Jobs that users have set up and applications have yet to send.
#ifndef IMAGEPOSITION_PORTAL_TOKENS_HPP
#define IMAGEPOSITION_PORTAL_TOKENS_HPP

#include <chrono>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <string>

namespace imageposition {

/// A file with a prepared job, removed by the destructor.
class PreparedFile {
public:
  explicit PreparedFile(std::string path) : path_(std::move(path)) {}
  ~PreparedFile();
  PreparedFile(const PreparedFile &) = delete;
  PreparedFile &operator=(const PreparedFile &) = delete;

  const std::string &path() const noexcept { return path_; }

private:
  std::string path_;
};

/// Each token is valid for one job of one application, for half an hour.
class Tokens {
public:
  using Clock = std::chrono::steady_clock;
  static constexpr std::chrono::minutes kLifetime{30};

  /// `random` returns any number, `now` the time; replaced in tests.
  explicit Tokens(std::function<std::uint32_t()> random = defaultRandom(),
                  std::function<Clock::time_point()> now = Clock::now)
      : random_(std::move(random)), now_(std::move(now)) {}

  /// Returns a token, which is never 0.
  std::uint32_t add(const std::string &application, std::unique_ptr<PreparedFile> job);
  /// Returns null, and changes nothing, if the application has no such token.
  std::unique_ptr<PreparedFile> take(const std::string &application, std::uint32_t token);
  /// Removes expired jobs.
  void expire();
  bool isEmpty() const noexcept { return jobs_.empty(); }

private:
  struct Job {
    std::string application;
    Clock::time_point end;
    std::unique_ptr<PreparedFile> file;
  };

  /// The system's random numbers.
  static std::function<std::uint32_t()> defaultRandom();

  std::function<std::uint32_t()> random_;
  std::function<Clock::time_point()> now_;
  std::map<std::uint32_t, Job> jobs_;
};

} // namespace imageposition

#endif
