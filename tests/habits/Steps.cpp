#include "Steps.hpp"

#include <fstream>
#include <regex>

namespace imageposition::test {

namespace {

/// Quotes what has a meaning in a regular expression, and replaces the gaps.
std::string expressionOf(const std::string &pattern) {
  std::string expression;
  for (std::size_t i = 0; i < pattern.size(); i++) {
    if (pattern.compare(i, std::string::npos, "...") == 0)
      return expression + "(.*)";
    if (pattern.compare(i, 3, "\"*\"") == 0) {
      expression += "\"([^\"]*)\"";
      i += 2;
    } else if (pattern[i] == '#') {
      expression += "(-?[0-9]+)";
    } else {
      if (std::string("\\^$.|?*+()[]{}").find(pattern[i]) != std::string::npos)
        expression += '\\';
      expression += pattern[i];
    }
  }
  return expression;
}

} // namespace

bool matches(const std::string &pattern, const std::string &line, StepValues &values) {
  std::smatch found;
  if (!std::regex_match(line, found, std::regex(expressionOf(pattern))))
    return false;
  values.assign(found.begin() + 1, found.end());
  return true;
}

std::vector<std::string> readSteps(const std::string &path) {
  std::ifstream file(path);
  if (!file)
    throw StepFailure("cannot open " + path);
  std::vector<std::string> lines;
  for (std::string line; std::getline(file, line);)
    if (!line.empty() && line[0] != '#')
      lines.push_back(line);
  return lines;
}

void perform(const std::vector<Sentence> &sentences, const std::string &line) {
  StepValues values;
  for (const Sentence &sentence : sentences)
    if (matches(sentence.pattern, line, values)) {
      sentence.act(values);
      return;
    }
  throw StepFailure("there is no such step");
}

} // namespace imageposition::test
