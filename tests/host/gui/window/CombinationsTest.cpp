// The printer's filter receives the settings of the panel.
#include "WholeJob.hpp"

#include <cstdlib>
#include <deque>
#include <memory>

namespace {

using namespace imageposition::test;

/// Covers each pair of values of any two of the four offsets and the checkbox: 25 of 650.
std::vector<PanelValues> pairwise() {
  std::vector<PanelValues> rows;
  for (int a = 0; a < 5; a++)
    for (int b = 0; b < 5; b++)
      rows.push_back({(a + 4 * b) % 5 % 2 == 0,
                      {kTellingValues[a], kTellingValues[b], kTellingValues[(a + b) % 5],
                       kTellingValues[(a + 2 * b) % 5]}});
  return rows;
}

/// The back's fields are disabled without the tick: 625 with it, 25 without.
std::vector<PanelValues> all() {
  std::vector<PanelValues> rows;
  for (const int a : kTellingValues)
    for (const int b : kTellingValues) {
      rows.push_back({false, {a, b, 0, 0}});
      for (const int c : kTellingValues)
        for (const int d : kTellingValues)
          rows.push_back({true, {a, b, c, d}});
    }
  return rows;
}

/// A window takes at least half a second, and all of them some ten minutes.
std::vector<PanelValues> forTheWindow() {
  return std::getenv("IMAGEPOSITION_ALL_COMBINATIONS") != nullptr ? all() : pairwise();
}

class Combination : public WholeJob {
protected:
  static Words batchWords(const PanelValues &values) {
    const char *const names[] = {"FrontLRM=", "FrontTBM=", "BackLRM=", "BackTBM="};
    Words words{PRINT_DIALOG, "--batch", "-d", "office", "--back", values.back ? "on" : "off"};
    for (int i = 0; i < (values.back ? 4 : 2); i++)
      words.insert(words.end(), {"--set", names[i] + std::to_string(values.offsets[i])});
    words.push_back(document());
    return words;
  }
};

TEST_F(Combination, OfSettingsArrivesFromTheWindow) {
  for (const PanelValues &values : forTheWindow()) {
    SCOPED_TRACE(testing::PrintToString(values));
    PrintWindow window(onQueue("office"));
    enter(window, values);
    window.click("Print");
    expectValues(printed(jobOf(window.ended())), values);
  }
}

/// Runs two programs at a time.
TEST_F(Combination, OfAllSettingsArrivesFromTheCommandLine) {
  std::deque<std::pair<PanelValues, std::unique_ptr<Process>>> running;
  const auto takeOldest = [&] {
    const PanelValues values = running.front().first;
    SCOPED_TRACE(testing::PrintToString(values));
    expectValues(printed(jobOf(running.front().second->wait())), values);
    running.pop_front();
  };
  for (const PanelValues &values : all()) {
    running.emplace_back(values, std::make_unique<Process>(batchWords(values)));
    if (running.size() == 2)
      takeOldest();
  }
  while (!running.empty())
    takeOldest();
}

} // namespace
