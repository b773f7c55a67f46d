#include "CommandWords.hpp"

#include "ProcessRun.hpp"

#include <regex>
#include <sstream>

namespace imageposition::test {

namespace {

std::set<std::string> inLinesOfHelp(const std::regex &line, const std::regex &part) {
  std::istringstream help(runProcess({PRINT_DIALOG, "--help"}, {"LC_ALL=C"}).output);
  std::set<std::string> found;
  for (std::string text; std::getline(help, text);) {
    std::smatch start;
    if (!std::regex_search(text, start, line))
      continue;
    const std::string words = start.str();
    for (std::sregex_iterator match(words.begin(), words.end(), part), end; match != end; ++match)
      found.insert(match->str());
  }
  return found;
}

} // namespace

std::set<std::string> optionsOfHelp() {
  return inLinesOfHelp(std::regex("^  (--?[A-Za-z-]+,?)+"), std::regex("--?[A-Za-z-]+"));
}

std::set<std::string> statusesOfHelp() {
  return inLinesOfHelp(std::regex("^  [0-9]+ +"), std::regex("[0-9]+"));
}

} // namespace imageposition::test
