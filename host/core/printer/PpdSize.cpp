#include "PpdSize.hpp"

#include "CupsHandles.hpp"
#include "Strings.hpp"

#include <algorithm>
#include <map>
#include <set>
#include <string_view>

namespace imageposition {

namespace {

/// Ten thousand options need fifty million comparisons, which take half a second.
constexpr long long kMostComparisons = 60'000'000;
constexpr long long kMostStatements = 100'000;
constexpr long long kMostBytes = 16'000'000;

std::string_view wordOf(std::string_view text) {
  return text.substr(0, text.find_first_of(" \t:/\r\n"));
}

/// For example, "*CustomPageSize True" and "*CustomDuplex True" are of the same kind.
std::string kindOf(std::string_view keyword) {
  for (const std::string_view family : {"ParamCustom", "Custom"})
    if (startsWith(keyword, family))
      return std::string(family);
  return std::string(keyword);
}

/// Estimates the number of libcups's comparisons, statement by statement.
class Estimate {
public:
  void add(std::string_view line) {
    if (!startsWith(line, "*") || startsWith(line, "*%"))
      return;
    statements_++;
    line.remove_prefix(1);
    const std::string_view keyword = wordOf(line);
    if (keyword == "OpenUI" || keyword == "JCLOpenUI")
      addOption(line.substr(keyword.size()));
    std::string kind = kindOf(keyword);
    const long long before = counts_[kind]++;
    // libcups does not store ends, appends choices, and finds a constraint that follows another one
    // at once.
    const bool isAppended =
        isEnd(kind) || options_.count(kind) != 0 || (isConstraint(kind) && kind == last_);
    comparisons_ += isAppended ? 0 : before;
    last_ = std::move(kind);
  }

  bool isTooLarge() const {
    return statements_ > kMostStatements || comparisons_ > kMostComparisons;
  }

private:
  static bool isEnd(const std::string &kind) {
    return startsWith(kind, "Close") || kind == "JCLCloseUI" || kind == "End";
  }

  static bool isConstraint(const std::string &kind) {
    return kind == "UIConstraints" || kind == "NonUIConstraints" || kind == "cupsUIConstraints";
  }

  void addOption(std::string_view rest) {
    rest.remove_prefix(std::min(rest.find_first_not_of(" \t*"), rest.size()));
    options_.emplace(wordOf(rest));
  }

  std::map<std::string, long long> counts_; // by kind
  std::set<std::string> options_;
  std::string last_;
  long long statements_ = 0;
  long long comparisons_ = 0;
};

int mostChoices(const ppd_group_t &group) {
  int most = 0;
  for (int i = 0; i < group.num_options; i++)
    most = std::max(most, group.options[i].num_choices);
  for (int i = 0; i < group.num_subgroups; i++)
    most = std::max(most, mostChoices(group.subgroups[i]));
  return most;
}

int countConstraints(const ppd_file_t &ppd) {
  int count = ppd.num_consts;
  for (int i = 0; i < ppd.num_attrs; i++)
    if (isSame(ppd.attrs[i]->name, "cupsUIConstraints"))
      count++;
  return count;
}

} // namespace

bool canBeReadQuickly(const std::string &path) {
  const CupsFile file(cupsFileOpen(path.c_str(), "r"));
  if (!file)
    return true;
  Estimate estimate;
  long long bytes = 0;
  char line[1024]; // longer lines are read in parts; libcups reads 255 characters
  while (cupsFileGets(file.get(), line, sizeof line) != nullptr) {
    const std::string_view text(line);
    bytes += static_cast<long long>(text.size()) + 1;
    estimate.add(text);
    if (bytes > kMostBytes || estimate.isTooLarge())
      return false;
  }
  return true;
}

bool canBeMarkedQuickly(const ppd_file_t &ppd) {
  // libcups searches for each side of a constraint among the choices of its option, and for the
  // option among the installable ones.
  long long perConstraint = 0;
  for (int i = 0; i < ppd.num_groups; i++) {
    const ppd_group_t &group = ppd.groups[i];
    perConstraint = std::max<long long>(perConstraint, mostChoices(group));
    if (isSame(group.name, "InstallableOptions"))
      perConstraint = std::max<long long>(perConstraint, group.num_options);
  }
  return countConstraints(ppd) * perConstraint <= kMostComparisons;
}

} // namespace imageposition
