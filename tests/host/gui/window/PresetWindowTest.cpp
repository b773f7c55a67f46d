// Presets, as a user manages them in the window.
#include "WholeJob.hpp"

#include <algorithm>
#include <cstdlib>
#include <stdexcept>

namespace {

using namespace imageposition::test;
using testing::HasSubstr;
using testing::Not;

class PresetWindow : public WholeJob {
protected:
  void SetUp() override {
    WholeJob::SetUp();
    std::filesystem::remove(lpoptions());
    std::filesystem::remove(cups().root() + "/lpoptions");
  }

  static std::string lpoptions() { return std::string(getenv("HOME")) + "/.cups/lpoptions"; }

  static bool showsPreset(const PrintWindow &window, const std::string &name) {
    return window.becomes([&](const Screen &shown) {
      const Control *const preset = shown.beside("Preset:", "popup");
      return preset != nullptr && preset->text == name;
    });
  }

  static void answerName(PrintWindow &window, const std::string &name) {
    if (!window.becomes([&](const Screen &) { return window.hasKeyboard("Name of the preset"); }))
      throw std::runtime_error("no question for a name");
    window.press("ctrl+a");
    window.write(name);
    window.click("OK");
    EXPECT_TRUE(showsPreset(window, name));
  }

  static void save(PrintWindow &window, const std::string &name) {
    window.choose("Preset:", "Save as preset");
    answerName(window, name);
  }

  static void cancel(PrintWindow &window) {
    window.click("Cancel");
    EXPECT_EQ(window.ended().status, 1);
  }
};

TEST_F(PresetWindow, TwoDialogsSaveForTheSamePrinterAndLoseNothing) {
  PrintWindow first(onQueue("office"));
  first.moveTo(0, 20);
  PrintWindow second(onQueue("office"));
  second.moveTo(1120, 20);
  first.enter(kLeftRight, "-3");
  second.enter(kLeftRight, "7");
  save(first, "mine");
  save(second, "yours");
  cancel(first);
  cancel(second);
  const std::string file = contentOf(lpoptions());
  EXPECT_EQ(std::count(file.begin(), file.end(), '\n'), 2) << file;
  EXPECT_THAT(file, HasSubstr("Dest office/mine "));
  EXPECT_THAT(file, HasSubstr("LeftRightMargin=-3"));
  EXPECT_THAT(file, HasSubstr("Dest office/yours "));
  EXPECT_THAT(file, HasSubstr("LeftRightMargin=7"));
}

TEST_F(PresetWindow, APresetIsRenamedAndDeleted) {
  PrintWindow window(onQueue("office"));
  window.enter(kTopBottom, "-7");
  save(window, "draft");
  window.choose("Preset:", "Rename this preset");
  answerName(window, "final");
  EXPECT_THAT(contentOf(lpoptions()), HasSubstr("Dest office/final "));
  EXPECT_THAT(contentOf(lpoptions()), HasSubstr("TopBottomMargin=-7"));
  EXPECT_THAT(contentOf(lpoptions()), Not(HasSubstr("draft")));
  window.choose("Preset:", "Delete this preset");
  EXPECT_TRUE(window.becomes([&](const Screen &) { return window.hasKeyboard("Delete"); }));
  window.click("Delete");
  EXPECT_TRUE(showsPreset(window, "None"));
  EXPECT_THAT(contentOf(lpoptions()), Not(HasSubstr("final")));
  EXPECT_EQ(window.field(kTopBottom), "-7"); // its settings stay in the job
  cancel(window);
}

/// Presets of a printer with a large offset range, used on one with a smaller range.
class PresetOfAnotherPrinter : public PresetWindow {
protected:
  void SetUp() override {
    PresetWindow::SetUp();
    addQueue("small", "duplex-shift-narrow.ppd");
  }
  void TearDown() override {
    command({"lpadmin", "-x", "small"});
    PresetWindow::TearDown();
  }
  static bool shows(const PrintWindow &window, const std::string &label, const std::string &value) {
    return window.becomes([&](const Screen &) { return window.field(label) == value; });
  }
  /// Saves the values as "office/far".
  static void saveOnOffice(const PanelValues &values) {
    PrintWindow window(onQueue("office"));
    enter(window, values);
    save(window, "far");
    cancel(window);
  }
};

TEST_F(PresetOfAnotherPrinter, LoadsWhatFitsAndReportsWhatBecameOfTheRest) {
  saveOnOffice({false, {80, -7, 0, 0}});
  PrintWindow window(onQueue("small"));
  window.choose("Preset:", "office/far");
  EXPECT_TRUE(window.says("to 50 instead of 80: this printer accepts -50 to 50"));
  EXPECT_TRUE(shows(window, kTopBottom, "-7"));
  EXPECT_TRUE(shows(window, kLeftRight, "50"));
  window.click("Print");
  expectValues(printed(jobOf(window.ended())), {false, {50, -7, 0, 0}});
}

TEST_F(PresetOfAnotherPrinter, KeepsTheOffsetsOfTheBack) {
  saveOnOffice({true, {3, -7, 7, -80}});
  PrintWindow window(onQueue("small"));
  window.choose("Preset:", "office/far");
  EXPECT_TRUE(shows(window, kBackLeftRight, "7"));
  window.click("Print");
  expectValues(printed(jobOf(window.ended())), {true, {3, -7, 7, -50}});
}

TEST_F(PresetOfAnotherPrinter, ReportsHowThePanelChangesAValueThatTheDescriptionAllows) {
  std::string description = contentOf(IMAGEPOSITION_SAMPLES "/duplex-shift-narrow.ppd");
  const std::string narrow = "1 int -50 50";
  for (std::size_t at; (at = description.find(narrow)) != std::string::npos;)
    description.replace(at, narrow.size(), "1 int -200 200");
  command({"lpadmin", "-p", "small", "-P", folder.write("narrow.ppd", description)});
  saveOnOffice({false, {80, -7, 0, 0}});
  PrintWindow window(onQueue("small"));
  window.choose("Preset:", "office/far");
  EXPECT_TRUE(window.says("The panel changed Front Left-Right from \"80\" to \"50\"."));
  EXPECT_TRUE(shows(window, kLeftRight, "50"));
  cancel(window);
}

TEST_F(PresetOfAnotherPrinter, IsReportedToDifferIfTheWindowStartsWithIt) {
  command({"lpoptions", "-p", "small/far", "-o", "LeftRightMargin=80", "-o", "TopBottomMargin=-7"});
  PrintWindow window(onQueue("small/far"));
  EXPECT_TRUE(window.says("to 50 instead of 80: this printer accepts -50 to 50"));
  EXPECT_EQ(window.field(kLeftRight), "50");
  EXPECT_EQ(window.field(kTopBottom), "-7");
  cancel(window);
}

/// Its panel records the messages that it receives.
class PresetOfAPanel : public PresetWindow {
protected:
  /// How often the panel received a message.
  long asked(const std::string &operation) const {
    const std::string text = "\n" + contentOf(journal);
    long count = 0;
    for (std::size_t at = 0; (at = text.find("\n" + operation + "\n", at)) != std::string::npos;)
      count++, at++;
    return count;
  }

  const std::string journal = folder.path("journal");
  const Words words{"-d", "office", "--plugin", FIXTURE_PLUGIN, document()};
  const Words environment{"FIXTURE_JOURNAL=" + journal};
};

TEST_F(PresetOfAPanel, IsSavedWithTheJobsPresetAndRestoredFromIt) {
  PrintWindow window(words, environment);
  const long saved = asked("saveValuesAndReturnError:");
  EXPECT_EQ(asked("restoreValuesAndReturnError:"), 0);
  save(window, "draft");
  EXPECT_GT(asked("saveValuesAndReturnError:"), saved);
  window.choose("Preset:", "None");
  EXPECT_TRUE(showsPreset(window, "None"));
  EXPECT_TRUE(comesTrue([&] { return asked("restoreValuesAndReturnError:") == 1; }));
  window.choose("Preset:", "draft");
  EXPECT_TRUE(showsPreset(window, "draft"));
  EXPECT_TRUE(comesTrue([&] { return asked("restoreValuesAndReturnError:") == 2; }));
  cancel(window);
}

} // namespace
