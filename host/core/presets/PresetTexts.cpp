#include "PresetTexts.hpp"

namespace imageposition::messages {

std::string presetNameUnusable(const std::string &typed) {
  if (typed.empty())
    return text("Enter a name for the preset, for example Two-sided.");
  return text("A preset cannot be called \"{1}\". Use letters and digits, for example Two-sided.")
      .with(typed);
}
std::string presetNameTooLong(int longest) {
  return counted(longest, "The name of a preset has at most {1} byte. Choose a shorter one.",
                 "The name of a preset has at most {1} bytes. Choose a shorter one.");
}
std::string presetMissing(const std::string &printer, const std::string &name) {
  return text("\"{1}\" has no preset \"{2}\". It may have been renamed or deleted. Choose another "
              "one.")
      .with(printer, name);
}
std::string presetExists(const std::string &printer, const std::string &name) {
  return text("\"{1}\" already has a preset \"{2}\". Choose another name.").with(printer, name);
}
std::string presetIsShared(const std::string &name, const std::string &path) {
  return text("The preset \"{1}\" belongs to all users: only an administrator can change \"{2}\". "
              "Save it under another name instead.")
      .with(name, path);
}
std::string presetTooLarge(const std::string &name) {
  return text("The preset \"{1}\" has more settings than CUPS can read. Reset some of them to the "
              "printer's defaults.")
      .with(name);
}
std::string presetsUnreadable(const std::string &path, const std::string &reason) {
  return text("Cannot read the presets in \"{1}\": {2}. Check its permissions.").with(path, reason);
}
std::string presetsUnwritable(const std::string &path, const std::string &reason) {
  return text("Cannot change the presets in \"{1}\": {2}. Check its permissions and the free disk "
              "space.")
      .with(path, reason);
}
std::string presetCannotHold(const std::string &setting, const std::string &value) {
  return text("The preset leaves out \"{1}\": the CUPS file cannot hold the value \"{2}\".")
      .with(setting, value);
}
std::string presetKeepsNoPassword(const std::string &option) {
  return text("The preset leaves out \"{1}\": anyone who can read the CUPS file could read the "
              "password.")
      .with(option);
}

} // namespace imageposition::messages
