#include "host/ChoiceList.hpp"

#include <algorithm>
#include <strings.h>

namespace imageposition {

namespace {

bool isSame(const std::string &left, const std::string &right) {
  return strcasecmp(left.c_str(), right.c_str()) == 0;
}

bool contains(const ChoiceList &choices, const std::string &choice) {
  return std::any_of(choices.begin(), choices.end(),
                     [&](const std::string &other) { return isSame(other, choice); });
}

/// A PPD can repeat a choice.
void addOnce(ChoiceList &choices, const std::string &choice) {
  if (!contains(choices, choice))
    choices.push_back(choice);
}

} // namespace

ChoiceList splitChoices(const std::string &value) {
  ChoiceList choices;
  for (std::size_t start = 0; start <= value.size();) {
    const std::size_t end = std::min(value.find(',', start), value.size());
    const std::size_t first = value.find_first_not_of(' ', start);
    if (first < end)
      choices.push_back(value.substr(first, value.find_last_not_of(' ', end - 1) + 1 - first));
    start = end + 1;
  }
  return choices;
}

std::string joinChoices(const ChoiceList &choices) {
  std::string value;
  for (const std::string &choice : choices)
    value += (value.empty() ? "" : ",") + choice;
  return value;
}

bool isNone(const std::string &choice) {
  return isSame(choice, "None") || isSame(choice, "Off") || isSame(choice, "False");
}

ChoiceList inOrder(const ppd_option_t &option, const ChoiceList &choices) {
  ChoiceList result;
  for (int i = 0; i < option.num_choices; i++)
    if (contains(choices, option.choices[i].choice))
      addOnce(result, option.choices[i].choice);
  return result;
}

bool areChoices(const ppd_option_t &option, const ChoiceList &choices) {
  return std::all_of(choices.begin(), choices.end(), [&](const std::string &choice) {
    return std::any_of(option.choices, option.choices + option.num_choices,
                       [&](const ppd_choice_t &known) { return isSame(known.choice, choice); });
  });
}

bool markChoices(ppd_file_t *ppd, ppd_option_t &option, const ChoiceList &choices) {
  ppd_choice_t *const end = option.choices + option.num_choices;
  const auto isWanted = [&](const ppd_choice_t &choice) {
    return contains(choices, choice.choice);
  };
  if (!choices.empty() && std::none_of(option.choices, end, isWanted))
    return false;
  // All choices of an option are equal in the order of what is marked, so that each look-up finds
  // any one of them.
  while (ppd_choice_t *const marked = ppdFindMarkedChoice(ppd, option.keyword))
    cupsArrayRemove(ppd->marked, marked);
  for (ppd_choice_t *choice = option.choices; choice != end; choice++) {
    choice->marked = isWanted(*choice) ? 1 : 0;
    if (choice->marked)
      cupsArrayAdd(ppd->marked, choice);
  }
  return true;
}

ChoiceList markedChoices(const ppd_option_t &option) {
  ChoiceList choices;
  for (int i = 0; i < option.num_choices; i++)
    if (option.choices[i].marked)
      addOnce(choices, option.choices[i].choice);
  return choices;
}

ChoiceList withChoice(const ppd_option_t &option, const ChoiceList &choices,
                      const std::string &choice, bool on) {
  ChoiceList result;
  std::string none;
  for (int i = 0; i < option.num_choices; i++) {
    const std::string known = option.choices[i].choice;
    if (none.empty() && isNone(known))
      none = known;
    const bool isMeant = isSame(known, choice);
    const bool isExcluded = on && (isNone(known) || isNone(choice));
    if (isMeant ? on : contains(choices, known) && !isExcluded)
      addOnce(result, known);
  }
  if (result.empty() && !none.empty())
    result.push_back(none);
  return result;
}

} // namespace imageposition
