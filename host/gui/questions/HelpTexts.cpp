#include "HelpTexts.hpp"

namespace imageposition {

std::vector<HelpSection> helpSections() {
  return {
      {text("Make both sides meet"),
       {text("Check \"Use separate offsets for the back side\"."),
        text("Print a page with a frame or crosses on both sides of one sheet."),
        text("Hold the sheet against the light, with the back towards you. The front shines "
             "through."),
        text("Measure how far the back is from the front, in tenths of a millimetre."),
        // Translators: a number and its direction, as in "A positive number moves the image right".
        text("Type that number into the back's fields, with the opposite sign. Is the back 1.5 mm "
             "too far right? Type −15. Too far left? Type 15. Too low? Type a negative number. Too "
             "high? Type a positive one."),
        text("Print again. Is there a small error left? Measure it, and add its opposite to the "
             "number in the field."),
        text("Or have it measured to a tenth of a millimetre: click Align… below the picture.")},
       true},
      {text("Positive is right and down"),
       {text("A positive number moves the image right or down, as you look at that side. A "
             "negative number moves it left or up."),
        text("While the box is not checked, the front's offsets move both sides.")}},
      {text("Keep the offsets"),
       {text("A preset saves all settings for this printer under a name. lp -d printer/preset "
             "prints with them too."),
        text(
            "Instead of printing, \"Save as ticket\", after the printers in their list, writes the "
            "settings to a file, and \"Save as PDF\" the pages.")}},
      {text("Keys"),
       {text("Alt and an underlined letter go to that control, Tab goes to the next. Return "
             "prints, Escape cancels."),
        text("Page Up, Page Down and the mouse wheel over the picture turn the sheets.")}},
  };
}

HelpPictureTexts helpPictureTexts() {
  return {textIn("help picture", "the back, as printed"),
          textIn("help picture", "the front, shining through")};
}

namespace messages {
const Text kHelpButton = text("&Help");
const Text kHelpWindow = text("Print help");
const Text kClose = text("Close");
} // namespace messages

} // namespace imageposition
