// Hold times of a job: exactly those that the CUPS documentation names are accepted.
#include "HoldTime.hpp"

#include "Check.hpp"
#include "ExitCode.hpp"
#include "OptionText.hpp"

#include <map>
#include <optional>
#include <regex>

using imageposition::PrintSettingsStore;
using imageposition::fuzz::check;
using imageposition::fuzz::checkSame;

namespace {

struct Hold {
  std::string until;
  std::string priority; // empty for the default
};

std::optional<Hold> expectedHold(const std::string &when) {
  static const std::map<std::string, Hold> kWords = {
      {"hold", {"indefinite", ""}},   {"resume", {"no-hold", ""}},
      {"release", {"no-hold", ""}},   {"immediate", {"no-hold", "100"}},
      {"no-hold", {"no-hold", ""}},   {"indefinite", {"indefinite", ""}},
      {"day-time", {"day-time", ""}}, {"evening", {"evening", ""}},
      {"night", {"night", ""}},       {"second-shift", {"second-shift", ""}},
      {"weekend", {"weekend", ""}},   {"third-shift", {"third-shift", ""}}};
  static const std::regex kTime("([01]?[0-9]|2[0-3])(:[0-5]?[0-9]){1,2}");
  const auto known = kWords.find(when);
  if (known != kWords.end())
    return known->second;
  return std::regex_match(when, kTime) ? std::optional(Hold{when, ""}) : std::nullopt;
}

std::string valueOf(const PrintSettingsStore &job, const char *name) {
  const char *const value = job.get(name);
  return value != nullptr ? value : "";
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size) {
  const std::string when(reinterpret_cast<const char *>(data), size);
  const auto expected = expectedHold(when);
  PrintSettingsStore job;
  try {
    for (const std::string &option : imageposition::optionsForHold(when))
      imageposition::readOptionArgument(option, job);
    check(expected.has_value(), "an invalid time is rejected");
    checkSame(valueOf(job, "job-hold-until"), expected->until, "the job has the hold time");
    checkSame(valueOf(job, "job-priority"), expected->priority, "only \"immediate\" is urgent");
  } catch (const imageposition::Failure &failure) {
    check(!expected, "a valid time is accepted");
    check(failure.code() == imageposition::ExitCode::Usage && *failure.what() != '\0',
          "an invalid time gets an error message");
  }
  return 0;
}
