#include "ReleaseTime.hpp"

#include <cstdio>

namespace imageposition {

namespace {

constexpr int kSecondsOfDay = 24 * 60 * 60;

/// Seconds since midnight.
std::optional<int> readTime(const std::string &text) {
  int hour = 0, minute = 0, second = 0, end = -1;
  if (std::sscanf(text.c_str(), "%2d:%2d%n:%2d%n", &hour, &minute, &end, &second, &end) < 2 ||
      end != static_cast<int>(text.size()))
    return std::nullopt;
  const bool isTime =
      hour >= 0 && hour < 24 && minute >= 0 && minute < 60 && second >= 0 && second < 60;
  return isTime ? std::optional((hour * 60 + minute) * 60 + second) : std::nullopt;
}

} // namespace

std::string TimeOfDay::text() const {
  char buffer[32];
  std::snprintf(buffer, sizeof buffer, "%02d:%02d", hour, minute);
  return buffer;
}

std::optional<TimeOfDay> localReleaseTime(const std::string &until, std::time_t now) {
  const auto wanted = readTime(until);
  if (!wanted)
    return std::nullopt;
  std::tm time{};
  gmtime_r(&now, &time);
  const int today = (time.tm_hour * 60 + time.tm_min) * 60 + time.tm_sec;
  const std::time_t release = now + (*wanted - today + kSecondsOfDay) % kSecondsOfDay;
  localtime_r(&release, &time);
  return TimeOfDay{time.tm_hour, time.tm_min};
}

std::string holdUntil(const TimeOfDay &local, std::time_t now) {
  std::tm time{};
  localtime_r(&now, &time);
  time.tm_hour = local.hour;
  time.tm_min = local.minute;
  time.tm_sec = 0;
  time.tm_isdst = -1;
  std::tm tomorrow = time;
  tomorrow.tm_mday++;
  std::time_t release = std::mktime(&time);
  if (release <= now)
    release = std::mktime(&tomorrow);
  gmtime_r(&release, &time);
  return TimeOfDay{time.tm_hour, time.tm_min}.text();
}

} // namespace imageposition
