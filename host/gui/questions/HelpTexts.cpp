#include "HelpTexts.hpp"

namespace imageposition {

std::vector<HelpSection> helpSections() {
  return {
      {text("Make both sides meet"),
       {text("Print a page with a frame or crosses on both sides of one sheet."),
        text("Hold the sheet against the light and measure how far each side is from its place."),
        text("Enter the distance back to its place in tenths of a millimetre: 15 moves the image "
             "1.5 mm one way, −15 the other way."),
        text("Print again. If a small error remains, add it to the numbers that you entered.")},
       true},
      {text("Positive is right and down"),
       {text("Look at the side that you measured: positive numbers move its image right and down, "
             "negative numbers left and up. Without separate offsets for the back, the front's "
             "offsets move both sides.")}},
      {text("Keep the offsets"),
       {text("A preset saves all settings for this printer under a name. lp -d printer/preset "
             "prints with them too."),
        text("\"Save as ticket\", last in the list of printers, writes the settings to a file "
             "instead of printing.")}},
      {text("Keys"),
       {text("Alt and an underlined letter go to that control, Tab goes to the next. Return "
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
