#include "PresetTexts.hpp"

namespace imageposition::messages {

std::string presetNameUnusable(const std::string &typed) {
  if (typed.empty())
    return text("A preset needs a name. Write, for example, Two-sided.");
  return text("\"{1}\" cannot be the name of a preset. Use letters and digits, for example "
              "Two-sided.")
      .with(typed);
}
std::string presetNameTooLong(int longest) {
  return counted(longest, "The name of a preset has at most {1} byte. Choose a shorter one.",
                 "The name of a preset has at most {1} bytes. Choose a shorter one.");
}
std::string presetMissing(const std::string &printer, const std::string &name) {
  return text("\"{1}\" has no preset \"{2}\"; it may have been renamed or deleted meanwhile. "
              "Choose another one.")
      .with(printer, name);
}
std::string presetExists(const std::string &printer, const std::string &name) {
  return text("\"{1}\" has a preset \"{2}\" already. Choose another name.").with(printer, name);
}
std::string presetOfEverybody(const std::string &name, const std::string &path) {
  return text("The preset \"{1}\" is everybody's: it stands in \"{2}\", which an administrator can "
              "change. Save one of another name instead.")
      .with(name, path);
}
std::string presetTooLarge(const std::string &name) {
  return text("The preset \"{1}\" has more settings than CUPS can read back. Set some to the "
              "printer's defaults.")
      .with(name);
}
std::string presetsUnreadable(const std::string &path, const std::string &reason) {
  return text("The presets in \"{1}\" cannot be read: {2}. Check its rights.").with(path, reason);
}
std::string presetsUnwritable(const std::string &path, const std::string &reason) {
  return text("The presets in \"{1}\" cannot be changed: {2}. Check the rights and the room on the "
              "disk.")
      .with(path, reason);
}
std::string presetCannotHold(const std::string &setting, const std::string &value) {
  return text("The preset does not keep \"{1}\": CUPS's file cannot hold the value \"{2}\".")
      .with(setting, value);
}
std::string presetKeepsNoPassword(const std::string &option) {
  return text("The preset does not keep \"{1}\": everybody who can read CUPS's file would read the "
              "password.")
      .with(option);
}

} // namespace imageposition::messages
