#include "PagesTexts.hpp"

namespace imageposition::messages {

const Text kPagesAreLoaded = text("Loading the pages…");

const Text &pagesNotShown(MoveProblem problem) {
  static const Text encrypted = text("No preview: the document requires a password."),
                    forbidden = text("No preview: printing is not allowed."),
                    damaged = text("No preview: the document is damaged."),
                    unknown = text("No preview: unknown type of document."),
                    other = text("No preview: the pages cannot be shown.");
  switch (problem) {
  case MoveProblem::Encrypted:
    return encrypted;
  case MoveProblem::Forbidden:
    return forbidden;
  case MoveProblem::Damaged:
    return damaged;
  case MoveProblem::NoConversion:
    return unknown;
  default:
    return other;
  }
}

std::string sheetOf(int sheet, int sheets, const std::string &pages, bool isOnePage) {
  const std::string number = std::to_string(sheet), all = std::to_string(sheets);
  if (pages.empty())
    return text("Sheet {1} of {2}").with(number, all);
  return isOnePage ? text("Sheet {1} of {2} (page {3})").with(number, all, pages)
                   : text("Sheet {1} of {2} (pages {3})").with(number, all, pages);
}

} // namespace imageposition::messages
