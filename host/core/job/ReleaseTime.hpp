/// The time of day at which CUPS releases a job: users see local time, "job-hold-until" has UTC.
#ifndef IMAGEPOSITION_CORE_JOB_RELEASETIME_HPP
#define IMAGEPOSITION_CORE_JOB_RELEASETIME_HPP

#include <ctime>
#include <optional>
#include <string>

namespace imageposition {

struct TimeOfDay {
  int hour = 0;   ///< 0 to 23.
  int minute = 0; ///< 0 to 59.

  /// As "18:05".
  std::string text() const;
};

/// The local time of "HH:MM" or "HH:MM:SS", UTC, when it comes next after `now`. None for any other
/// value, such as "night".
std::optional<TimeOfDay> localReleaseTime(const std::string &until, std::time_t now);

/// The value for `job-hold-until`, UTC, for a local time when it comes next after `now`.
std::string holdUntil(const TimeOfDay &local, std::time_t now);

} // namespace imageposition

#endif
