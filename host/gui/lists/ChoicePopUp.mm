#import "ChoicePopUp.h"

#import "TextBridge.h"
#include "WidgetTexts.hpp"

#include <algorithm>

namespace imageposition {

namespace {

/// Leaves existing items alone: the user may have the pop-up open.
void showTitles(ListPopUp *popUp, const std::vector<std::string> &titles) {
  bool isShown = static_cast<std::size_t>([popUp numberOfItems]) == titles.size();
  for (std::size_t i = 0; isShown && i < titles.size(); i++)
    isShown = toText([popUp itemTitleAtIndex:static_cast<NSInteger>(i)]) == titles[i];
  if (isShown)
    return;
  [popUp removeAllItems];
  // Uses the menu: the pop-up itself would remove an earlier item with the same title.
  for (const std::string &title : titles)
    [[popUp menu] addItemWithTitle:toString(title) action:nullptr keyEquivalent:@""];
}

} // namespace

std::vector<std::string> showChoices(ListPopUp *popUp, const PrinterOption &option) {
  std::vector<std::string> keywords, titles;
  for (const OptionChoice &choice : option.choices) {
    keywords.push_back(choice.keyword);
    titles.push_back(choice.text);
  }
  if (option.custom)
    titles.push_back(option.enterText.empty() ? messages::kEnterValue.str() : option.enterText);
  showTitles(popUp, titles);
  if (option.custom)
    [popUp markLastItemAsCommand];
  const auto chosen = std::find(keywords.begin(), keywords.end(), option.chosen);
  [popUp selectItemAtIndex:chosen == keywords.end() ? -1 : chosen - keywords.begin()];
  [popUp setEnabled:!option.isLocked];
  return keywords;
}

} // namespace imageposition
