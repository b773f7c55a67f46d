#include "host/OptionConstraints.hpp"

#include "host/ChoiceList.hpp"

#include <algorithm>
#include <optional>
#include <string>
#include <strings.h>

namespace imageposition {

namespace {

constexpr const char *kCustom = "Custom";

bool isSame(const std::string &left, const std::string &right) {
  return strcasecmp(left.c_str(), right.c_str()) == 0;
}

bool isPageSize(const ppd_option_t *option) {
  return isSame(option->keyword, "PageSize") || isSame(option->keyword, "PageRegion");
}

/// None for an option or a choice that the PPD does not have. "CustomPageSize True" is how a PPD
/// names the choice "Custom" of "PageSize".
std::optional<ConstrainedOption> side(ppd_file_t *ppd, std::string keyword, std::string choice) {
  if (strncasecmp(keyword.c_str(), kCustom, 6) == 0 && isSame(choice, "True")) {
    keyword.erase(0, 6);
    choice = kCustom;
  }
  ConstrainedOption result;
  ppd_option_t *const option = ppdFindOption(ppd, keyword.c_str());
  if (option == nullptr)
    return std::nullopt;
  result.option = option;
  if (choice.empty())
    return result;
  result.choice = ppdFindChoice(option, choice.c_str());
  return result.choice != nullptr ? std::optional(result) : std::nullopt;
}

bool isReverse(const ppd_const_t &left, const ppd_const_t &right) {
  return isSame(left.option1, right.option2) && isSame(left.choice1, right.choice2) &&
         isSame(left.option2, right.option1) && isSame(left.choice2, right.choice1);
}

void addPairs(ppd_file_t *ppd, std::vector<OptionConstraint> &constraints) {
  for (int i = 0; i < ppd->num_consts; i++) {
    const ppd_const_t &pair = ppd->consts[i];
    if (i + 1 < ppd->num_consts && isReverse(pair, ppd->consts[i + 1]))
      continue;
    const auto first = side(ppd, pair.option1, pair.choice1);
    const auto second = side(ppd, pair.option2, pair.choice2);
    if (first && second)
      constraints.push_back({*first, *second});
  }
}

/// "*Option Choice *Option ...", of any number of options; CUPS passes over other words. Empty when
/// a part is unknown.
OptionConstraint combination(ppd_file_t *ppd, const std::string &text) {
  constexpr const char *kBlanks = " \t\n\r\f\v";
  OptionConstraint constraint;
  const auto wordAt = [&](std::size_t start) {
    const std::size_t end = std::min(text.find_first_of(kBlanks, start), text.size());
    return text.substr(start, end - start);
  };
  for (std::size_t star = text.find('*'); star != std::string::npos;) {
    const std::string keyword = wordAt(star + 1);
    const std::size_t after = star + 1 + keyword.size();
    const std::size_t next = std::min(text.find_first_not_of(kBlanks, after), text.size());
    const std::string choice = next < text.size() && text[next] != '*' ? wordAt(next) : "";
    const auto known = side(ppd, keyword, choice);
    if (!known)
      return {};
    constraint.push_back(*known);
    star = text.find('*', next + choice.size());
  }
  return constraint;
}

void addCombinations(ppd_file_t *ppd, std::vector<OptionConstraint> &constraints) {
  for (ppd_attr_t *attribute = ppdFindAttr(ppd, "cupsUIConstraints", nullptr); attribute != nullptr;
       attribute = ppdFindNextAttr(ppd, "cupsUIConstraints", nullptr)) {
    if (attribute->value == nullptr)
      continue;
    OptionConstraint constraint = combination(ppd, attribute->value);
    if (!constraint.empty())
      constraints.push_back(std::move(constraint));
  }
}

/// Whatever is marked for the page, the size in force decides.
bool isPageSizeInForce(const ConstrainedOption &side, ppd_file_t *ppd) {
  const ppd_size_t *const size = ppdPageSize(ppd, nullptr);
  if (size == nullptr)
    return false;
  const bool isCustom = strncasecmp(size->name, "Custom.", 7) == 0;
  return isSame(isCustom ? kCustom : size->name, side.choice->choice);
}

bool isOff(const ppd_choice_t *choice) { return choice == nullptr || isNone(choice->choice); }

bool holds(const ConstrainedOption &side, ppd_file_t *ppd) {
  if (side.choice == nullptr)
    return !isOff(markedChoiceOf(side.option, ppd));
  return isPageSize(side.option) ? isPageSizeInForce(side, ppd) : side.choice->marked != 0;
}

} // namespace

std::vector<OptionConstraint> constraintsOf(ppd_file_t *ppd) {
  std::vector<OptionConstraint> constraints;
  addPairs(ppd, constraints);
  addCombinations(ppd, constraints);
  return constraints;
}

bool isViolated(const OptionConstraint &constraint, ppd_file_t *ppd) {
  for (const ConstrainedOption &side : constraint)
    if (!holds(side, ppd))
      return false;
  return !constraint.empty();
}

const ppd_choice_t *markedChoiceOf(const ppd_option_t *option, ppd_file_t *ppd) {
  for (int i = 0; option->ui == PPD_UI_PICKMANY && i < option->num_choices; i++)
    if (option->choices[i].marked && !isNone(option->choices[i].choice))
      return &option->choices[i];
  return ppdFindMarkedChoice(ppd, option->keyword);
}

} // namespace imageposition
