#include "BatchTexts.hpp"

#include "Phrases.hpp"

namespace imageposition::messages {

std::string noDisplay(const std::string &reason) {
  return text("There is no display, and no Xvfb could be started for the panel's view{1}. Set "
              "DISPLAY, or install Xvfb (Debian: xvfb).")
      .with(because(reason));
}
std::string noSuchField(const std::string &name, const std::vector<std::string> &known) {
  if (known.empty())
    return text("No panel has an entry field \"{1}\".").with(name);
  return text("No panel has an entry field \"{1}\"; there are: {2}.").with(name, inOrder(known));
}
std::string ambiguousField(const std::string &name, const std::vector<std::string> &matches) {
  return text("\"{1}\" may mean several entry fields: {2}. Write more of the name.")
      .with(name, inOrder(matches));
}
std::string fieldUnavailable(const std::string &name, const std::string &reason) {
  const std::string offByPanel = text("\"{1}\" cannot be changed with the present settings of the "
                                      "job: the panel has switched it off.")
                                     .with(name);
  if (reason.empty())
    return sentences(
        {offByPanel, text("Separate offsets for the back side may be off (--back on).")});
  return sentences({offByPanel, reason});
}
const Text kNoSwitch = text("No panel has exactly one checkbox for --back.");
std::string switchUnavailable(const std::string &reason) {
  return sentences({text("The checkbox cannot be changed with the present settings of the job: the "
                         "panel has switched it off."),
                    reason});
}

} // namespace imageposition::messages
