#include "StartupTexts.hpp"

namespace imageposition::messages {

std::string displayUnreachable(const std::string &name) {
  return name.empty() ? text("There is no display. Set DISPLAY, or use --batch.").str()
                      : text("Cannot connect to the display \"{1}\". Set DISPLAY to a working "
                             "display, or use --batch with DISPLAY unset.")
                            .with(name);
}

} // namespace imageposition::messages
