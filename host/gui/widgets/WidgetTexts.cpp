#include "WidgetTexts.hpp"

namespace imageposition::messages {

std::string optionsNotShown(std::size_t count) {
  return counted(static_cast<long>(count),
                 "There is no space for {1} more option. Set it with -o on the command line.",
                 "There is no space for {1} more options. Set them with -o on the command line.");
}
std::string linesNotShown(std::size_t count) {
  // Translators: at the end of a long list.
  return counted(static_cast<long>(count), "{1} more", "{1} more");
}
const Text kEnterValue = text("Custom…");
const Text kDifferingLegend = text("differs from the printer's default");

} // namespace imageposition::messages
