#include "ChoiceList.hpp"

#include <algorithm>
#include <iterator>

namespace imageposition {

namespace {

ChoiceSet setOf(const ChoiceList &choices) { return {choices.begin(), choices.end()}; }

ChoiceSet choicesOf(const ppd_option_t &option) {
  ChoiceSet choices;
  for (int i = 0; i < option.num_choices; i++)
    choices.insert(option.choices[i].choice);
  return choices;
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
  ChoiceSet wanted = setOf(choices);
  ChoiceList result;
  for (int i = 0; i < option.num_choices; i++)
    if (wanted.erase(option.choices[i].choice) != 0) // once, even if the PPD repeats it
      result.emplace_back(option.choices[i].choice);
  return result;
}

bool areChoices(const ppd_option_t &option, const ChoiceList &choices) {
  const ChoiceSet known = choicesOf(option);
  return std::all_of(choices.begin(), choices.end(),
                     [&](const std::string &choice) { return known.count(choice) != 0; });
}

bool markChoices(ppd_file_t *ppd, ppd_option_t &option, const ChoiceList &choices) {
  ppd_choice_t *const end = option.choices + option.num_choices;
  ChoiceSet wanted = setOf(choices);
  const auto isWanted = [&](const ppd_choice_t &choice) {
    return wanted.count(choice.choice) != 0;
  };
  if (!choices.empty() && std::none_of(option.choices, end, isWanted))
    return false;
  // The array of marked choices compares only options, so each look-up finds any one of the
  // choices.
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
  ChoiceSet listed; // a PPD can repeat a choice
  for (int i = 0; i < option.num_choices; i++)
    if (option.choices[i].marked && listed.insert(option.choices[i].choice).second)
      choices.emplace_back(option.choices[i].choice);
  return choices;
}

std::string markedChoice(ppd_file_t *ppd, const ppd_option_t &option) {
  if (option.ui == PPD_UI_PICKMANY)
    return joinChoices(markedChoices(option));
  const ppd_choice_t *const marked = ppdFindMarkedChoice(ppd, option.keyword);
  return marked != nullptr ? marked->choice : "";
}

ChoiceList withoutChoices(const ppd_option_t &option, const ChoiceList &choices,
                          const ChoiceSet &without) {
  ChoiceSet before = setOf(choices);
  ChoiceList result;
  std::string none;
  for (int i = 0; i < option.num_choices; i++) {
    const std::string known = option.choices[i].choice;
    if (none.empty() && isNone(known))
      none = known;
    if (without.count(known) == 0 && before.erase(known) != 0)
      result.push_back(known);
  }
  if (result.empty() && !none.empty())
    result.push_back(none);
  return result;
}

ChoiceList withChoice(const ppd_option_t &option, const ChoiceList &choices,
                      const std::string &choice, bool on) {
  if (!on)
    return withoutChoices(option, choices, {choice});
  ChoiceList wanted{choice};
  if (!isNone(choice))
    std::copy_if(choices.begin(), choices.end(), std::back_inserter(wanted),
                 [](const std::string &other) { return !isNone(other); });
  return withoutChoices(option, wanted, {});
}

} // namespace imageposition
