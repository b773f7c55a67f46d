#include "HelpTexts.hpp"

namespace imageposition {

std::vector<HelpSection> helpSections() {
  return {
      {text("Make both sides meet"),
       {text("Print a page with a frame or crosses on both sides of one sheet."),
        text("Hold the sheet against the light and measure how far each side is from its place."),
        text("Enter the way back, in tenths of a millimetre: 15 moves an image 1.5 mm, and −15 the "
             "other way."),
        text("Print again. If a little is left over, add it to what you entered.")},
       true},
      {text("Right and down are positive"),
       {text("Look at the side that you measure: positive numbers move its image to the right and "
             "down, negative ones to the left and up. Without separate offsets for the back, the "
             "front's move both sides.")}},
      {text("Keep what you found"),
       {text("A preset keeps all settings under a name for this printer; \"lp -d printer/preset\" "
             "prints with them too."),
        text("\"Save as ticket\", last in the list of printers, writes the settings to a file "
             "instead of printing.")}},
      {text("Keys"),
       {text("Alt with an underlined letter goes to its control, Tab to the next one. Return "
             "prints, Escape cancels.")}},
  };
}

HelpPictureTexts helpPictureTexts() {
  return {textIn("help picture", "where it was printed"),
          textIn("help picture", "where it belongs")};
}

namespace messages {
const Text kHelpButton = text("&Help");
const Text kHelpWindow = text("Print help");
const Text kClose = text("Close");
} // namespace messages

} // namespace imageposition
