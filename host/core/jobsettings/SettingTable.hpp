/// The job settings that CUPS and its filters have for every printer.
#ifndef IMAGEPOSITION_CORE_JOBSETTINGS_SETTINGTABLE_HPP
#define IMAGEPOSITION_CORE_JOBSETTINGS_SETTINGTABLE_HPP

#include "PrintSettingsStore.hpp"
#include "Text.hpp"

#include <optional>
#include <string>
#include <vector>

namespace imageposition {

struct SettingChoice {
  const char *value;        ///< As CUPS reads it.
  std::optional<Text> text; ///< None if users see the value itself, a number.
};

/// One setting. What each value does was measured with CUPS 2.4 and cups-filters 1.28.
struct JobSetting {
  enum class Group { Layout, Job };

  const char *name;
  Text text;
  Group group;
  /// What a job without the setting gets; empty if no value stands for that.
  const char *usual;
  std::vector<SettingChoice> choices;
  /// Other values that have an effect. They are not worth a place in a list.
  std::vector<const char *> others;
  /// Other names of the setting, for all of which `valueIn` looks.
  std::vector<const char *> aliases;
};

/// All settings with fixed choices, in the order of display.
const std::vector<JobSetting> &jobSettings();

/// Null if there is none of that name.
const JobSetting *findSetting(const std::string &name);

/// The setting's value under any of its names, spelled like one of its choices if it means the same
/// ("yes" is "true", "landscape" is "4"). None if `settings` does not have it.
std::optional<std::string> valueIn(const PrintSettingsStore &settings, const JobSetting &setting);

} // namespace imageposition

#endif
