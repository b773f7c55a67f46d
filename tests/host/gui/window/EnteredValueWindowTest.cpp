// Options with several choices, and custom values, from keys and clicks to the printer.
#include "OptionsPpd.hpp"
#include "Picture.hpp"
#include "WholeJob.hpp"

#include <sys/stat.h>

namespace {

using namespace imageposition::test;
using testing::Contains;
using testing::HasSubstr;
using testing::Key;
using testing::Not;
using testing::Pair;

class EnteredValue : public WholeJob {
protected:
  void SetUp() override {
    WholeJob::SetUp();
    addQueue("finisher", "finisher.ppd");
  }

  static bool shows(const PrintWindow &window, const char *label, const std::string &text) {
    return window.becomes([&](const Screen &shown) {
      const Control *const popUp = shown.beside(label, "popup");
      return popUp != nullptr && popUp->text == text;
    });
  }
  static bool asks(const PrintWindow &window, const char *title) {
    return window.becomes([&](const Screen &) { return window.hasKeyboard(title); });
  }
  static void press(PrintWindow &window, const std::string &key, int times) {
    for (int i = 0; i < times; i++)
      window.press(key);
  }
  static void savePreset(PrintWindow &window, const char *name) {
    window.choose("Preset:", "Save as preset");
    ASSERT_TRUE(asks(window, "Name of the preset"));
    window.write(name);
    window.press("Return");
    ASSERT_TRUE(shows(window, "Preset:", name));
  }
  /// Whether the field beside the label has the light theme's focus ring.
  static bool hasRing(const Screen &shown, const char *label) {
    const Control *const field = shown.beside(label, "field");
    if (field == nullptr)
      return false;
    const std::string place = std::to_string(field->width) + "x" + std::to_string(field->height) +
                              "+" + std::to_string(field->x) + "+" + std::to_string(field->y);
    const Words words{"import", "-window", "root", "-crop", place, "-depth", "8", "txt:-"};
    return runProcess(words).output.find("#2F6FE0") != std::string::npos;
  }
  static bool isTicked(const PrintWindow &window, const char *title) {
    const Screen shown = window.screen();
    const Control *const box = shown.find("button", title);
    return box != nullptr && box->isOn;
  }
};

TEST_F(EnteredValue, OfSeveralChoicesAllTickedOnesArePrinted) {
  PrintWindow window(withoutPanelOn("finisher"));
  EXPECT_TRUE(isTicked(window, "Punch")) << "the PPD's default";
  window.tick("Staple", true);
  window.tick("Fold", true);
  EXPECT_TRUE(isTicked(window, "Punch"));
  window.tick("Punch", false);
  savePreset(window, "folded");
  window.click("Print");
  EXPECT_THAT(printed(jobOf(window.ended())).options, Contains(Pair("Finishing", "Staple,Fold")));

  PrintWindow again(withoutPanelOn("finisher"));
  EXPECT_FALSE(isTicked(again, "Staple"));
  again.choose("Preset:", "folded");
  ASSERT_TRUE(again.becomes([&](const Screen &) { return isTicked(again, "Staple"); }));
  EXPECT_TRUE(isTicked(again, "Fold"));
  EXPECT_FALSE(isTicked(again, "Punch"));
  again.choose("Settings:", "Summary");
  EXPECT_TRUE(again.says("Staple, Fold  (usually Punch)"));
  again.click("Print");
  EXPECT_THAT(printed(jobOf(again.ended())).options, Contains(Pair("Finishing", "Staple,Fold")));
}

TEST_F(EnteredValue, OfSeveralChoicesNoneCanBeTickedAndOneInConflictIsNamed) {
  PrintWindow window(withoutPanelOn("finisher"));
  window.tick("Punch", false);
  EXPECT_TRUE(window.becomes([&](const Screen &) { return isTicked(window, "None"); }));
  window.tick("Staple", true);
  EXPECT_TRUE(window.becomes([&](const Screen &) { return !isTicked(window, "None"); }));
  window.tick("Fold", true);
  window.choose("Media Type:", "Heavy");
  EXPECT_TRUE(window.says("cannot combine \"Media Type: Heavy Paper\" and \"Finishing: Fold\". "
                          "Change to \"Finishing: Staple\"."));
  window.click("Resolve");
  EXPECT_TRUE(window.becomes([&](const Screen &) { return !isTicked(window, "Fold"); }));
  EXPECT_TRUE(isTicked(window, "Staple"));
  window.click("Print");
  const PrintedJob job = printed(jobOf(window.ended()));
  EXPECT_THAT(job.options, Contains(Pair("Finishing", "Staple")));
  EXPECT_THAT(job.options, Contains(Pair("MediaType", "Heavy")));
}

TEST_F(EnteredValue, OfThePageSizeIsCheckedDuringTypingShownAndPrinted) {
  PrintWindow window(withoutPanelOn("finisher"));
  window.choose("Media:", "Custom");
  ASSERT_TRUE(asks(window, "Media Size"));
  EXPECT_TRUE(window.says("70.56 to 246.94 mm"));
  window.write("1000"); // instead of the width, which is selected
  EXPECT_TRUE(window.says("Width is out of range. Enter 70.56 to 246.94 mm."));
  window.press("Return");
  EXPECT_TRUE(window.hasKeyboard("Media Size")) << "it waits for something better";
  window.enter("Width:", "100");
  EXPECT_FALSE(window.screen().says("out of range"));
  window.enter("Height:", "200,5");
  window.choose("Unit:", "Inches");
  EXPECT_TRUE(window.becomes([&](const Screen &) { return window.field("Width:") == "3.937"; }));
  EXPECT_EQ(window.field("Height:"), "7.894");
  EXPECT_TRUE(window.says("2.778 to 9.722 in"));
  window.enter("Height:", "200 mm");
  window.enter("Width:", "100 mm");
  window.press("Return");
  ASSERT_TRUE(shows(window, "Media:", "Custom: 100 × 200 mm"));
  ASSERT_TRUE(asks(window, "Print"));
  window.choose("Settings:", "Summary");
  EXPECT_TRUE(window.says("Custom: 100 × 200 mm  (usually A4)"));
  savePreset(window, "card");
  window.click("Print");
  EXPECT_THAT(printed(jobOf(window.ended())).options,
              Contains(Pair("PageSize", "Custom.100x200mm")));

  PrintWindow again(withoutPanelOn("finisher/card"));
  EXPECT_TRUE(shows(again, "Media:", "Custom: 100 × 200 mm"));
  again.choose("Media:", "A5");
  again.click("Print");
  EXPECT_THAT(printed(jobOf(again.ended())).options, Contains(Pair("PageSize", "A5")));
}

TEST_F(EnteredValue, ShowsTheFocusInOneFieldAndErrorsOfAnyField) {
  PrintWindow window(withoutPanelOn("finisher"));
  window.choose("Media:", "Custom");
  ASSERT_TRUE(asks(window, "Media Size"));
  EXPECT_TRUE(window.becomes([](const Screen &shown) { return hasRing(shown, "Width:"); }));
  window.write("1");
  window.press("Tab");
  EXPECT_TRUE(window.becomes(
      [](const Screen &shown) { return hasRing(shown, "Height:") && !hasRing(shown, "Width:"); }));
  window.write("1");
  EXPECT_TRUE(window.says("Height is out of range."));
  window.write("50");
  EXPECT_TRUE(window.says("Width is out of range.")) << "the height is 150";
  window.press("Return");
  EXPECT_TRUE(window.becomes([](const Screen &shown) { return hasRing(shown, "Width:"); }));
  window.write("100");
  EXPECT_TRUE(window.becomes([](const Screen &shown) { return !shown.says("out of range"); }));
  window.press("Escape");
  ASSERT_TRUE(asks(window, "Print"));
  window.press("Escape");
}

TEST_F(EnteredValue, OnTheCommandLineIsShownAndCanBeReplaced) {
  Words words = withoutPanelOn("finisher");
  words.insert(words.begin(), {"-o", "PageSize=Custom.4x6in", "-o", "Finishing=Staple,Fold"});
  PrintWindow window(words);
  EXPECT_TRUE(shows(window, "Media:", "Custom: 4 × 6 in"));
  EXPECT_TRUE(isTicked(window, "Staple") && isTicked(window, "Fold"));
  window.choose("Media:", "Custom…");
  ASSERT_TRUE(asks(window, "Media Size"));
  EXPECT_EQ(window.field("Width:"), "4");
  window.press("Escape");
  ASSERT_TRUE(asks(window, "Print"));
  EXPECT_TRUE(shows(window, "Media:", "Custom: 4 × 6 in"));
  window.press("space"); // the pop-up has the focus again
  EXPECT_TRUE(window.becomes([](const Screen &shown) { return shown.find("item", "A5"); }));
  window.press("Escape");
  EXPECT_TRUE(window.becomes([](const Screen &shown) { return !shown.find("item", "A5"); }));
  window.click("Print");
  EXPECT_THAT(printed(jobOf(window.ended())).options, Contains(Pair("PageSize", "Custom.4x6in")));
}

/// The keys that lead from the media to the last of the pane's pop-ups, and to its last item.
TEST_F(EnteredValue, OfAPasswordIsHiddenEverywhereButInTheJob) {
  PrintWindow window(withoutPanelOn("finisher"));
  window.press("alt+m");
  press(window, "Tab", 12);
  window.press("space");
  press(window, "Down", 1);
  window.press("Return");
  ASSERT_TRUE(asks(window, "Private Printing"));
  window.write("it's \"me\"");
  window.press("Tab");
  window.write("abc");
  EXPECT_TRUE(window.says("Password has a length of 3. The printer accepts 4 to 16"));
  window.write(" \\'d");
  for (const char *key : {"ctrl+a", "ctrl+c", "alt+u", "End", "ctrl+v"})
    window.press(key);   // hidden text is not copied, see `shown`
  window.press("alt+c"); // to the code
  window.write("12a4");
  EXPECT_TRUE(window.says("Code must consist of digits."));
  window.press("ctrl+a");
  window.write("0123");
  EXPECT_TRUE(
      window.becomes([](const Screen &shown) { return !shown.says("must consist of digits"); }));
  window.press("Return");
  ASSERT_TRUE(asks(window, "Print"));
  const char *const shown = "Custom: User: it's \"me\", Password: ••••, Code: ••••";
  ASSERT_TRUE(shows(window, "Private Printing:", shown));
  window.choose("Settings:", "Summary");
  EXPECT_TRUE(window.says(shown));
  savePreset(window, "private");
  EXPECT_TRUE(window.says("The preset leaves out \"Secret\""));
  EXPECT_THAT(command({"lpoptions", "-p", "finisher/private"}), Not(HasSubstr("0123")));
  window.choose("Settings:", "Summary");
  for (const Control &control : window.screen().controls)
    EXPECT_THAT(control.text, Not(HasSubstr("0123")));
  window.click("Print");
  const PrintedJob job = printed(jobOf(window.ended()));
  EXPECT_THAT(job.options,
              Contains(Pair("Secret", R"({User="it's \"me\"" Password="abc \\'d" Code=0123})")))
      << job.optionText;
  EXPECT_THAT(window.ended().errors, Not(HasSubstr("0123")));
}

TEST_F(EnteredValue, OfAPasswordIsInATicketThatOnlyItsOwnerCanRead) {
  const std::string ticket = folder.write("job.json", "{\"settings\": {}}");
  chmod(ticket.c_str(), 0644);
  PrintWindow window({"--ppd", IMAGEPOSITION_SAMPLES "/finisher.ppd", "--ticket", ticket, "-o",
                      "Secret={User=me Password=abcd Code=0123}", document()});
  window.click("Print");
  EXPECT_EQ(window.ended().status, 0);
  for (const std::string &file : {ticket, folder.path("job.options")}) {
    EXPECT_THAT(contentOf(file), HasSubstr("0123"));
    struct stat status {};
    ASSERT_EQ(stat(file.c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777, 0600U) << file;
  }
}

TEST_F(EnteredValue, OfAPanelsOptionIsEnteredOutsideThePanelAndReachesIt) {
  folder.write("printer.ppd", kOptionsPpd);
  PrintWindow window(
      {"--ppd", folder.path("printer.ppd"), "--ticket", folder.path("job.json"), document()});
  window.choose("Shift:", "Custom…");
  ASSERT_TRUE(asks(window, "Shift"));
  window.write("-7");
  window.press("Return");
  ASSERT_TRUE(shows(window, "Shift:", "Custom: -7"));
  window.click("Print");
  EXPECT_EQ(window.ended().status, 0);
  EXPECT_THAT(contentOf(folder.path("job.options")), HasSubstr("LeftRightMargin=Custom.-7"));

  command({"lpoptions", "-p", "office/entered", "-o", "LeftRightMargin=Custom.-7"});
  PrintWindow withPanel(onQueue("office"));
  withPanel.choose("Preset:", "entered");
  EXPECT_TRUE(
      withPanel.becomes([&](const Screen &) { return withPanel.field(kLeftRight) == "-7"; }));
}

TEST_F(EnteredValue, OfAPasswordIsHiddenInADryRun) {
  const std::vector<std::string> secret{"-o", "Secret={User=me Password=abcd Code=0123}"};
  Words words = withoutPanelOn("finisher");
  words.insert(words.begin(), secret.begin(), secret.end());
  words.insert(words.begin(), "--dry-run");
  PrintWindow window(words);
  window.click("Print");
  EXPECT_THAT(window.ended().output, HasSubstr("Secret (nameWithoutLanguage) = ••••\n"));
  EXPECT_THAT(window.ended().output, Not(HasSubstr("0123")));
}

} // namespace
