#include "StartupTexts.hpp"

namespace imageposition::messages {

std::string displayUnreachable(const std::string &name) {
  return name.empty()
             ? text("There is no display to show the window on. Set DISPLAY, or use --batch.").str()
             : text("The display \"{1}\" cannot be reached. Set DISPLAY to one that can, or use "
                    "--batch with DISPLAY unset.")
                   .with(name);
}

} // namespace imageposition::messages
