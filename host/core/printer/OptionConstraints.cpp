#include "OptionConstraints.hpp"

#include "ChoiceList.hpp"
#include "CustomValue.hpp"
#include "Strings.hpp"

#include <algorithm>
#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace imageposition {

namespace {

bool isPageSize(const ppd_option_t *option) {
  return isSame(option->keyword, "PageSize") || isSame(option->keyword, "PageRegion");
}

/// Finds options and choices like libcups, but does not search all choices of an option each time.
class Finder {
public:
  explicit Finder(ppd_file_t *ppd) : ppd_(ppd) {}

  /// None if the PPD lacks the option or the choice. A PPD writes "CustomPageSize True" for the
  /// choice "Custom" of "PageSize".
  std::optional<ConstrainedOption> side(std::string keyword, std::string choice) {
    const std::size_t length = std::string_view(kCustomChoice).size();
    if (isSame(keyword.substr(0, length), kCustomChoice) && isSame(choice, "True")) {
      keyword.erase(0, length);
      choice = kCustomChoice;
    }
    ConstrainedOption result;
    result.option = ppdFindOption(ppd_, keyword.c_str());
    if (result.option == nullptr)
      return std::nullopt;
    if (choice.empty())
      return result;
    result.choice = find(*result.option, choice);
    return result.choice != nullptr ? std::optional(result) : std::nullopt;
  }

private:
  using Choices = std::map<std::string, const ppd_choice_t *, IgnoringCase>;

  const ppd_choice_t *find(const ppd_option_t &option, const std::string &keyword) {
    const auto [known, isNew] = choices_.try_emplace(&option);
    if (isNew)
      for (int i = 0; i < option.num_choices; i++)
        known->second.emplace(option.choices[i].choice, &option.choices[i]);
    const auto choice = known->second.find(isEnteredValue(keyword) ? kCustomChoice : keyword);
    return choice != known->second.end() ? choice->second : nullptr;
  }

  ppd_file_t *ppd_;
  std::map<const ppd_option_t *, Choices> choices_;
};

bool isReverse(const ppd_const_t &left, const ppd_const_t &right) {
  return isSame(left.option1, right.option2) && isSame(left.choice1, right.choice2) &&
         isSame(left.option2, right.option1) && isSame(left.choice2, right.choice1);
}

void addPairs(ppd_file_t *ppd, Finder &finder, std::vector<OptionConstraint> &constraints) {
  for (int i = 0; i < ppd->num_consts; i++) {
    const ppd_const_t &pair = ppd->consts[i];
    if (i + 1 < ppd->num_consts && isReverse(pair, ppd->consts[i + 1]))
      continue;
    const auto first = finder.side(pair.option1, pair.choice1);
    const auto second = finder.side(pair.option2, pair.choice2);
    if (first && second)
      constraints.push_back({*first, *second});
  }
}

/// Reads "*Option Choice *Option ..." with any number of options; like CUPS, ignores other words.
/// Empty if an option or a choice is unknown.
OptionConstraint combination(Finder &finder, const std::string &text) {
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
    const auto known = finder.side(keyword, choice);
    if (!known)
      return {};
    constraint.push_back(*known);
    star = text.find('*', next + choice.size());
  }
  return constraint;
}

void addCombinations(ppd_file_t *ppd, Finder &finder, std::vector<OptionConstraint> &constraints) {
  for (ppd_attr_t *attribute = ppdFindAttr(ppd, "cupsUIConstraints", nullptr); attribute != nullptr;
       attribute = ppdFindNextAttr(ppd, "cupsUIConstraints", nullptr)) {
    if (attribute->value == nullptr)
      continue;
    OptionConstraint constraint = combination(finder, attribute->value);
    if (!constraint.empty())
      constraints.push_back(std::move(constraint));
  }
}

bool isOff(const ppd_choice_t *choice) { return choice == nullptr || isNone(choice->choice); }

/// The marked choices. Looks up each option, and the page size, once.
class Marks {
public:
  explicit Marks(ppd_file_t *ppd) : ppd_(ppd) {
    const ppd_size_t *const size = ppdPageSize(ppd, nullptr);
    if (size != nullptr)
      pageSize_ = hasCustomPrefix(size->name) ? kCustomChoice : size->name;
  }

  bool holds(const ConstrainedOption &side) {
    if (side.choice == nullptr)
      return !isOff(choiceOf(*side.option));
    // For the page, the effective size counts rather than the marks.
    return isPageSize(side.option) ? pageSize_ && isSame(*pageSize_, side.choice->choice)
                                   : side.choice->marked != 0;
  }

  const ppd_choice_t *choiceOf(const ppd_option_t &option) {
    const auto [known, isNew] = choices_.try_emplace(&option);
    if (isNew)
      known->second = find(option);
    return known->second;
  }

private:
  const ppd_choice_t *find(const ppd_option_t &option) const {
    for (int i = 0; option.ui == PPD_UI_PICKMANY && i < option.num_choices; i++)
      if (option.choices[i].marked && !isNone(option.choices[i].choice))
        return &option.choices[i];
    return ppdFindMarkedChoice(ppd_, option.keyword);
  }

  ppd_file_t *ppd_;
  std::optional<std::string> pageSize_;
  std::map<const ppd_option_t *, const ppd_choice_t *> choices_;
};

} // namespace

std::vector<OptionConstraint> constraintsOf(ppd_file_t *ppd) {
  Finder finder(ppd);
  std::vector<OptionConstraint> constraints;
  addPairs(ppd, finder, constraints);
  addCombinations(ppd, finder, constraints);
  return constraints;
}

std::vector<OptionConstraint> violated(const std::vector<OptionConstraint> &constraints,
                                       ppd_file_t *ppd) {
  Marks marks(ppd);
  std::vector<OptionConstraint> result;
  for (const OptionConstraint &constraint : constraints) {
    if (!std::all_of(constraint.begin(), constraint.end(),
                     [&](const ConstrainedOption &side) { return marks.holds(side); }))
      continue;
    result.push_back(constraint);
    for (ConstrainedOption &side : result.back())
      if (side.choice == nullptr)
        side.choice = marks.choiceOf(*side.option);
  }
  return result;
}

} // namespace imageposition
