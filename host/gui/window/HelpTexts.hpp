/// What the help window says.
#ifndef IMAGEPOSITION_HOST_HELPTEXTS_HPP
#define IMAGEPOSITION_HOST_HELPTEXTS_HPP

#include "Text.hpp"

#include <string>
#include <vector>

namespace imageposition {

struct HelpSection {
  std::string title;
  std::vector<std::string> paragraphs;
  bool areSteps = false; ///< Numbered.
};

/// What the picture's parts are called.
struct HelpPictureTexts {
  std::string printed, wanted;
};

std::vector<HelpSection> helpSections();
HelpPictureTexts helpPictureTexts();

namespace messages {
extern const Text kHelpButton;
extern const Text kHelpWindow;
extern const Text kClose;
} // namespace messages

} // namespace imageposition

#endif
