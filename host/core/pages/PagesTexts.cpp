#include "PagesTexts.hpp"

namespace imageposition::messages {

const Text kPagesAreLoaded = text("Loading the pages…");
const Text kPagesNotShown = text("The pages cannot be shown.");

std::string sheetOf(int sheet, int sheets, const std::string &pages, bool isOnePage) {
  const std::string number = std::to_string(sheet), all = std::to_string(sheets);
  if (pages.empty())
    return text("Sheet {1} of {2}").with(number, all);
  return isOnePage ? text("Sheet {1} of {2} (page {3})").with(number, all, pages)
                   : text("Sheet {1} of {2} (pages {3})").with(number, all, pages);
}

} // namespace imageposition::messages
