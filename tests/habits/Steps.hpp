/// Steps of a user, written as sentences.
#ifndef IMAGEPOSITION_TESTS_HABITS_STEPS_HPP
#define IMAGEPOSITION_TESTS_HABITS_STEPS_HPP

#include <functional>
#include <stdexcept>
#include <string>
#include <vector>

namespace imageposition::test {

/// What the user wanted did not happen, or a step is not a sentence of the language.
class StepFailure : public std::runtime_error {
public:
  using std::runtime_error::runtime_error;
};

/// The values of a sentence, in its order.
using StepValues = std::vector<std::string>;

/// A sentence with gaps, for example: click on the button "*" for # ms. A `*` stands for a quoted
/// string, a `#` for a number, and a final `...` for the rest of the line.
struct Sentence {
  std::string pattern;
  std::function<void(const StepValues &)> act;
};

/// Returns whether a line has this form, and if so its values.
bool matches(const std::string &pattern, const std::string &line, StepValues &values);

/// The lines of a file without comments, which begin with `#`, and without empty lines.
std::vector<std::string> readSteps(const std::string &path);

/// Performs a line with the first sentence that matches it; throws `StepFailure` if none does.
void perform(const std::vector<Sentence> &sentences, const std::string &line);

} // namespace imageposition::test

#endif
