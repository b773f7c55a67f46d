// The service behind the real portal: requests that end well, badly, or not at all.
#include "PortalFixture.hpp"

#include <csignal>

namespace {

using namespace imageposition::test;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;

const char *const kDocument = IMAGEPOSITION_SAMPLES "/two-sided.pdf";

class PortalUse : public PortalFixture {
protected:
  static int count(const std::string &text, const std::string &part) {
    int found = 0;
    for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + 1))
      found++;
    return found;
  }
};

TEST_F(PortalUse, SettingsGoToTheDialogAndBack) {
  const auto application = session->application(
      {"prepare", "printer=office", "duplex=vertical", "n-copies=3", "number-up=2", "PPDName=A5",
       "Width=148", "Height=210", "Orientation=portrait", "editor-header=yes"});
  {
    PrintWindow dialog = window();
    EXPECT_EQ(dialog.field("Copies:"), "3");
    const auto shows = [&](const char *label, const char *choice) {
      const Screen screen = dialog.screen();
      const Control *const popUp = screen.beside(label, "popup");
      return popUp != nullptr && popUp->text == choice;
    };
    EXPECT_TRUE(shows("Media:", "A5"));
    EXPECT_TRUE(shows("Two-sided:", "Short Edge"));
    EXPECT_TRUE(dialog.says("From the application"));
    EXPECT_EQ(dialog.screen().find("button", "Open…"), nullptr);
    dialog.choose("Media:", "US Letter");
    dialog.press("Return");
  }
  const ProcessResult &result = application->wait();
  for (const char *line :
       {"response 0", "settings printer=office", "settings duplex=vertical", "settings n-copies=1",
        "settings number-up=1", "settings editor-header=yes", "page-setup PPDName=Letter",
        "page-setup Name=na_letter", "page-setup DisplayName=US Letter",
        "settings paper-width=215.9", "page-setup Orientation=portrait"})
    EXPECT_THAT(result.output, HasSubstr(std::string(line) + "\n"));
  EXPECT_THAT(newJobs(), IsEmpty());
}

TEST_F(PortalUse, APrinterThatIsMissingIsReplacedByTheDefault) {
  const auto application = session->application(
      {"prepare", "printer=Print to File", "cups-Unknown=x", "default-source=auto"});
  window().press("Return");
  EXPECT_THAT(application->wait().output, HasSubstr("settings printer=office\n"));
}

TEST_F(PortalUse, TheUsersSettingsAreTheJobs) {
  const auto application =
      session->application({"prepare", "number-up=2", "n-copies=3", "print", "file", kDocument});
  window().press("Return");
  EXPECT_EQ(count(application->wait().output, "response 0"), 2) << application->wait().errors;
  const auto jobs = newJobs();
  ASSERT_THAT(jobs, SizeIs(1));
  EXPECT_EQ(kept->cups().jobAttribute(jobs[0], "number-up"), "2");
  EXPECT_EQ(kept->cups().jobAttribute(jobs[0], "copies"), "3");
  EXPECT_EQ(kept->cups().jobAttribute(jobs[0], "job-name"), "Letter");
}

TEST_F(PortalUse, TwoApplicationsCanPrintAtOnce) {
  const auto first = session->application({"prepare", "print", "file", kDocument});
  ASSERT_TRUE(becomesTrue([&] { return session->dialogs().size() == 1; }));
  ASSERT_TRUE(isFocused("Print"));
  const auto second = session->application({"prepare", "print", "file", kDocument});
  ASSERT_TRUE(becomesTrue([&] { return session->dialogs().size() == 2; }));
  const auto windows = [] {
    return count(runProcess({"xdotool", "search", "--onlyvisible", "--name", "^Print$"}).output,
                 "\n");
  };
  ASSERT_TRUE(becomesTrue([&] { return windows() == 2; }));
  ASSERT_TRUE(isFocused("Print"));
  press("Return");
  ASSERT_TRUE(becomesTrue([&] { return first->hasEnded() != second->hasEnded(); }));
  ASSERT_TRUE(isFocused("Print"));
  press("Return");
  EXPECT_EQ(count(first->wait().output, "response 0"), 2) << first->wait().errors;
  EXPECT_EQ(count(second->wait().output, "response 0"), 2) << second->wait().errors;
  EXPECT_THAT(newJobs(), SizeIs(2));
}

TEST_F(PortalUse, ADialogThatIsKilledDisturbsNoOtherRequest) {
  const auto other = session->application({"prepare"});
  const pid_t survivor = session->dialog();
  ASSERT_TRUE(isFocused("Print"));
  const auto application = session->application({"prepare"});
  ASSERT_TRUE(becomesTrue([&] { return session->dialogs().size() == 2; }));
  for (const pid_t dialog : session->dialogs())
    if (dialog != survivor)
      kill(dialog, SIGKILL);
  EXPECT_THAT(application->wait().output, HasSubstr("response 2"));
  EXPECT_FALSE(other->hasEnded());
  ASSERT_TRUE(isFocused("Print"));
  press("Escape");
  EXPECT_THAT(other->wait().output, HasSubstr("response 1"));
  const auto next = session->application({"prepare", "print", "file", kDocument});
  window().press("Return");
  EXPECT_EQ(count(next->wait().output, "response 0"), 2) << next->wait().errors;
  EXPECT_THAT(newJobs(), SizeIs(1));
}

TEST_F(PortalUse, AForgedTokenOpensTheDialogWithTheDocument) {
  for (const char *token : {"0", "1234567"}) {
    session->forgetScreen();
    const auto application = session->application({"token", token, "print", "file", kDocument});
    {
      PrintWindow dialog = window();
      EXPECT_TRUE(dialog.says("standard input"));
      EXPECT_THAT(newJobs(), IsEmpty()) << "before the user has agreed";
      dialog.press("Escape");
    }
    EXPECT_THAT(application->wait().output, HasSubstr("response 1"));
    EXPECT_THAT(newJobs(), IsEmpty());
  }
}

TEST_F(PortalUse, ATokenIsGoodForOneDocument) {
  const auto application =
      session->application({"prepare", "print", "file", kDocument, "print", "file", kDocument});
  const pid_t first = session->dialog();
  window().press("Return");
  windowAfter(first).press("Return");
  EXPECT_EQ(count(application->wait().output, "response 0"), 3) << application->wait().errors;
}

TEST_F(PortalUse, CloseClosesTheWindow) {
  const auto application = session->application({"prepare"});
  window();
  application->send(SIGUSR1);
  EXPECT_THAT(application->wait().output, HasSubstr("response -1"));
  EXPECT_TRUE(hasNoDialog());
  const auto next = session->application({"prepare"});
  ASSERT_TRUE(isFocused("Print"));
  press("Escape");
  EXPECT_THAT(next->wait().output, HasSubstr("response 1"));
}

TEST_F(PortalUse, AJobThatCannotBePrintedComesBackToTheUser) {
  const auto application = session->application({"prepare", "print", "file", kDocument});
  kept->cups().run({"cupsreject", "office"});
  const pid_t first = session->dialog();
  window().press("Return");
  {
    PrintWindow dialog = windowAfter(first);
    dialog.press("Return");
    EXPECT_TRUE(dialog.says("is not accepting jobs"));
    kept->cups().run({"cupsaccept", "office"});
    dialog.press("Return");
  }
  EXPECT_EQ(count(application->wait().output, "response 0"), 2) << application->wait().errors;
  EXPECT_THAT(newJobs(), SizeIs(1));
}

TEST_F(PortalUse, TheDialogEndsWithTheService) {
  const auto application = session->application({"prepare"});
  window();
  kill(session->service(), SIGKILL);
  EXPECT_TRUE(hasNoDialog());
  EXPECT_THAT(application->wait().output, HasSubstr("response 2"));
}

class PortalInGerman : public PortalFixture {
protected:
  void SetUp() override { startSession({"LANGUAGE=de", "LANG=C.UTF-8", "LC_ALL"}); }
};

TEST_F(PortalInGerman, TheDialogHasTheLanguageOfTheSession) {
  const auto application = session->application({"prepare"});
  window("Drucken").press("Escape");
  EXPECT_THAT(application->wait().output, HasSubstr("response 1"));
}

TEST_F(PortalUse, ADialogOfAWaylandWindowHasTheTitleOfTheRequest) {
  const auto application = session->application({"prepare", "parent=wayland:handle"});
  window("Print \xE2\x80\x93 Letter").press("Escape");
  EXPECT_THAT(application->wait().output, HasSubstr("response 1"));
}

TEST_F(PortalUse, AnUnknownParentIsNoParent) {
  const auto application = session->application({"prepare", "parent=x11:rm -rf"});
  window().press("Escape");
  EXPECT_THAT(application->wait().output, HasSubstr("response 1"));
}

TEST_F(PortalUse, TheServiceEndsWhenItHasNothingToDo) {
  Process service({PRINT_DIALOG_PORTAL, "--idle", "1"}, session->environment());
  EXPECT_TRUE(becomesTrue([&] { return service.hasEnded(); }));
  EXPECT_EQ(service.wait().status, 0) << service.wait().errors;
}

TEST_F(PortalUse, TheServiceNeedsTheSession) {
  std::vector<std::string> none = session->environment();
  none.push_back("XDG_RUNTIME_DIR");
  EXPECT_EQ(runProcess({PRINT_DIALOG_PORTAL}, none).status, 1);
  EXPECT_EQ(runProcess({PRINT_DIALOG_PORTAL}, {"DBUS_SESSION_BUS_ADDRESS=unix:path=/none"}).status,
            1);
  EXPECT_EQ(runProcess({PRINT_DIALOG_PORTAL, "--unknown"}).status, 2);
}

} // namespace
