/// Texts of the help window.
#ifndef IMAGEPOSITION_GUI_QUESTIONS_HELPTEXTS_HPP
#define IMAGEPOSITION_GUI_QUESTIONS_HELPTEXTS_HPP

#include "Text.hpp"

#include <string>
#include <vector>

namespace imageposition {

struct HelpSection {
  std::string title;
  std::vector<std::string> paragraphs;
  bool areSteps = false; ///< Numbered.
};

/// Names of the picture's outlines.
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
