/// From the window to what the printer's filter is given.
#ifndef IMAGEPOSITION_TESTS_HOST_WHOLEJOB_HPP
#define IMAGEPOSITION_TESTS_HOST_WHOLEJOB_HPP

#include "JobFixture.hpp"
#include "PrintWindow.hpp"

namespace imageposition::test {

constexpr const char *kFrontLeftRight = "Front left-right offset (\xC3\x97 0.1 mm)";
constexpr const char *kFrontTopBottom = "Front top-bottom offset (\xC3\x97 0.1 mm)";
constexpr const char *kBackLeftRight = "Back left-right offset (\xC3\x97 0.1 mm)";
constexpr const char *kBackTopBottom = "Back top-bottom offset (\xC3\x97 0.1 mm)";
/// The front's names while they move both sides.
constexpr const char *kLeftRight = "Left-right offset (\xC3\x97 0.1 mm)";
constexpr const char *kTopBottom = "Top-bottom offset (\xC3\x97 0.1 mm)";
constexpr const char *kSeparateOffsets = "Use separate offsets for the back side";

/// In the order of the panel.
struct PanelValues {
  bool back;
  int offsets[4];
};
void PrintTo(const PanelValues &values, std::ostream *stream);

/// For a range of -100 to 100: its ends, zero, and a number of either sign.
constexpr int kTellingValues[] = {-100, -7, 0, 7, 100};

class WholeJob : public JobFixture {
protected:
  using Words = std::vector<std::string>;

  static std::string document() { return IMAGEPOSITION_SAMPLES "/two-sided.pdf"; }
  static Words onQueue(const std::string &queue) { return {"-d", queue, document()}; }

  /// The job that the program says it sent; fails the test when it did not.
  static int jobOf(const ProcessResult &result);
  /// What was printed has these settings, in its arguments.
  static void expectValues(const PrintedJob &job, const PanelValues &values);
  /// Fills the panel in, as it is shown with nothing set.
  static void enter(PrintWindow &window, const PanelValues &values);
};

} // namespace imageposition::test

#endif
