/// From the window to the input of the printer's filter.
#ifndef IMAGEPOSITION_TESTS_HOST_SUPPORT_WHOLEJOB_HPP
#define IMAGEPOSITION_TESTS_HOST_SUPPORT_WHOLEJOB_HPP

#include "JobFixture.hpp"
#include "PrintWindow.hpp"

namespace imageposition::test {

constexpr const char *kFrontLeftRight = "Front left-right offset (\xC3\x97 0.1 mm)";
constexpr const char *kFrontTopBottom = "Front top-bottom offset (\xC3\x97 0.1 mm)";
constexpr const char *kBackLeftRight = "Back left-right offset (\xC3\x97 0.1 mm)";
constexpr const char *kBackTopBottom = "Back top-bottom offset (\xC3\x97 0.1 mm)";
/// The front's labels while they move both sides.
constexpr const char *kLeftRight = "Left-right offset (\xC3\x97 0.1 mm)";
constexpr const char *kTopBottom = "Top-bottom offset (\xC3\x97 0.1 mm)";
constexpr const char *kSeparateOffsets = "Use separate offsets for the back side";

/// In the order of the panel's controls.
struct PanelValues {
  bool back;
  int offsets[4];
};
void PrintTo(const PanelValues &values, std::ostream *stream);

/// For a range of -100 to 100: its ends, zero, and one number of each sign.
constexpr int kTellingValues[] = {-100, -7, 0, 7, 100};

class WholeJob : public JobFixture {
protected:
  using Words = std::vector<std::string>;

  static std::string document() { return IMAGEPOSITION_SAMPLES "/two-sided.pdf"; }
  static Words onQueue(const std::string &queue) { return {"-d", queue, document()}; }
  /// The same for a printer whose driver does not shift: the window begins with its options.
  static Words withoutPanelOn(const std::string &queue) {
    return {"--no-shift", "-d", queue, document()};
  }

  /// The number of the job that the program reports; fails the test if there is none.
  static int jobOf(const ProcessResult &result);
  /// Expects these settings in the arguments of the printed job.
  static void expectValues(const PrintedJob &job, const PanelValues &values);
  /// Fills in a panel that shows its defaults.
  static void enter(PrintWindow &window, const PanelValues &values);
};

} // namespace imageposition::test

#endif
