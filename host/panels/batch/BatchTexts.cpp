#include "BatchTexts.hpp"

#include "Phrases.hpp"

namespace imageposition::messages {

std::string noDisplay(const std::string &reason) {
  return text("There is no display, and Xvfb could not be started for the panel's view{1}. Set "
              "DISPLAY, or install Xvfb (Debian: xvfb).")
      .with(because(reason));
}
std::string noSuchField(const std::string &name, const std::vector<std::string> &known) {
  if (known.empty())
    return text("No panel has an entry field \"{1}\".").with(name);
  return text("No panel has an entry field \"{1}\". Available: {2}.").with(name, inOrder(known));
}
std::string ambiguousField(const std::string &name, const std::vector<std::string> &matches) {
  return text("\"{1}\" matches several entry fields: {2}. Use more of the name.")
      .with(name, inOrder(matches));
}
std::string fieldUnavailable(const std::string &name, const std::string &reason) {
  const std::string offByPanel =
      text("\"{1}\" is disabled with the job's current settings.").with(name);
  if (reason.empty())
    return sentences({offByPanel, text("For an offset of the back, also use --back on.")});
  return sentences({offByPanel, reason});
}
const Text kNoSwitch = text("No panel has exactly one checkbox for --back.");
std::string switchUnavailable(const std::string &reason) {
  return sentences({text("The checkbox is disabled with the job's current settings."), reason});
}

} // namespace imageposition::messages
