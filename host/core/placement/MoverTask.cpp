#include "MoverTask.hpp"

#include "Strings.hpp"

#include <array>
#include <charconv>
#include <limits>

namespace imageposition {

namespace {

struct TextField {
  const char *name;
  std::string MoverTask::*field;
};

constexpr std::array<TextField, 9> kTextFields{{
    {"options=", &MoverTask::options},
    {"title=", &MoverTask::title},
    {"user=", &MoverTask::user},
    {"path=", &MoverTask::path},
    {"format=", &MoverTask::format},
    {"pages=", &MoverTask::pages},
    {"filters=", &MoverTask::filters},
    {"chooser=", &MoverTask::chooser},
    {"verdict=", &MoverTask::verdict},
}};

constexpr const char *kPlan = "plan=";
constexpr std::size_t kNumbers = 8;

template <typename Number> std::optional<Number> readNumber(std::string_view text) {
  Number number{};
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  return error == std::errc() && end == text.data() + text.size() ? std::optional(number)
                                                                  : std::nullopt;
}

std::string planText(const ShiftPlan &plan) {
  std::string text;
  for (const std::int64_t number :
       {plan.front.right.count, plan.front.down.count, plan.back.right.count, plan.back.down.count,
        static_cast<std::int64_t>(plan.order.sides), std::int64_t(plan.order.isReversed),
        std::int64_t(plan.isPadded), std::int64_t(plan.isMovedAgain)})
    text += (text.empty() ? "" : ",") + std::to_string(number);
  return text;
}

std::optional<ShiftPlan> readPlan(std::string_view text) {
  std::array<std::int64_t, kNumbers> numbers{};
  for (std::size_t i = 0; i < kNumbers; i++) {
    const std::size_t end = i + 1 < kNumbers ? text.find(',') : text.size();
    if (end == std::string_view::npos)
      return std::nullopt;
    const auto number = readNumber<std::int64_t>(text.substr(0, end));
    if (!number)
      return std::nullopt;
    numbers[i] = *number;
    text.remove_prefix(std::min(end + 1, text.size()));
  }
  constexpr auto kMostSides = static_cast<std::int64_t>(PrintedSides::BacksOnly);
  if (numbers[4] < 0 || numbers[4] > kMostSides)
    return std::nullopt;
  ShiftPlan plan;
  plan.front = {{numbers[0]}, {numbers[1]}};
  plan.back = {{numbers[2]}, {numbers[3]}};
  plan.order = {static_cast<PrintedSides>(numbers[4]), numbers[5] != 0};
  plan.isPadded = numbers[6] != 0;
  plan.isMovedAgain = numbers[7] != 0;
  return plan;
}

/// In the order of `MoveProblem`.
constexpr std::array<std::string_view, 9> kProblems{"no-conversion", "layout",  "encrypted",
                                                    "forbidden",     "damaged", "other-layout",
                                                    "moved-before",  "no-room", "fault"};

std::string onOneLine(std::string text) {
  for (char &c : text)
    if (static_cast<unsigned char>(c) < ' ')
      c = ' ';
  return text;
}

} // namespace

std::vector<std::string> wordsOf(const MoverTask &task) {
  std::vector<std::string> words{kPlan + planText(task.plan)};
  for (const TextField &text : kTextFields)
    words.push_back(text.name + task.*text.field);
  return words;
}

std::optional<MoverTask> readTask(const std::vector<std::string> &words) {
  if (words.size() != kTextFields.size() + 1 || !startsWith(words[0], kPlan))
    return std::nullopt;
  const auto plan = readPlan(std::string_view(words[0]).substr(std::string_view(kPlan).size()));
  if (!plan)
    return std::nullopt;
  MoverTask task;
  task.plan = *plan;
  for (std::size_t i = 0; i < kTextFields.size(); i++) {
    const std::string_view name = kTextFields[i].name;
    if (!startsWith(words[i + 1], name))
      return std::nullopt;
    task.*kTextFields[i].field = words[i + 1].substr(name.size());
  }
  return task;
}

std::string lineOf(const MoverReport &report) {
  switch (report.kind) {
  case MoverReport::Kind::Progress:
    return "progress " + std::to_string(report.number) + "\n";
  case MoverReport::Kind::Done:
    return "done " + std::to_string(report.number) + "\n";
  default:
    return "failed " + std::string(kProblems[static_cast<std::size_t>(report.problem)]) + " " +
           onOneLine(report.detail) + "\n";
  }
}

std::optional<MoverReport> readReport(std::string_view line) {
  const std::size_t blank = std::min(line.find(' '), line.size());
  const std::string_view word = line.substr(0, blank);
  const std::string_view rest = line.substr(std::min(blank + 1, line.size()));
  MoverReport report;
  if (word == "progress" || word == "done") {
    const auto number = readNumber<int>(rest);
    if (!number || *number < 0)
      return std::nullopt;
    report.kind = word == "done" ? MoverReport::Kind::Done : MoverReport::Kind::Progress;
    report.number = *number;
    return report;
  }
  if (word != "failed")
    return std::nullopt;
  const std::string_view name = rest.substr(0, rest.find(' '));
  for (std::size_t i = 0; i < kProblems.size(); i++)
    if (kProblems[i] == name) {
      report.kind = MoverReport::Kind::Failed;
      report.problem = static_cast<MoveProblem>(i);
      report.detail = rest.substr(std::min(name.size() + 1, rest.size()));
      return report;
    }
  return std::nullopt;
}

} // namespace imageposition
