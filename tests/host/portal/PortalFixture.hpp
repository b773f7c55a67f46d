/// Applications that print through the portal to a printer that keeps what it gets.
#ifndef IMAGEPOSITION_TESTS_HOST_PORTAL_PORTALFIXTURE_HPP
#define IMAGEPOSITION_TESTS_HOST_PORTAL_PORTALFIXTURE_HPP

#include "FocusedWindow.hpp"
#include "KeptJobs.hpp"
#include "PortalSession.hpp"
#include "PrintWindow.hpp"
#include "Waiting.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace imageposition::test {

/// The queue "office", whose driver takes PDF and does not move the image, is the default.
class PortalFixture : public testing::Test {
protected:
  static void SetUpTestSuite() {
    kept = std::make_unique<KeptJobs>();
    lastJob = 0;
  }
  static void TearDownTestSuite() { kept.reset(); }

  void SetUp() override { startSession({}); }
  void TearDown() override {
    session.reset();
    kept->cups().run({"cancel", "-a", "-x"});
  }

  void startSession(const std::vector<std::string> &more) {
    ASSERT_TRUE(kept->cups().isRunning()) << kept->cups().log();
    std::string ppd = contentOf(IMAGEPOSITION_SAMPLES "/duplex-plain.ppd");
    ppd.insert(ppd.find("*DefaultFont:"), "*cupsFilter: \"application/vnd.cups-pdf 0 -\"\n");
    ASSERT_EQ(kept->addQueue("office", ppd).status, 0);
    ASSERT_EQ(kept->cups().run({"lpadmin", "-d", "office"}).status, 0);
    std::vector<std::string> environment = kept->cups().environment();
    environment.insert(environment.end(), more.begin(), more.end());
    session = std::make_unique<PortalSession>(environment);
    ASSERT_TRUE(session->isRunning()) << session->log();
  }

  /// The window of the dialog that follows the one with that process.
  PrintWindow windowAfter(pid_t dialog) const {
    std::vector<pid_t> found;
    becomesTrue([&] {
      found = session->dialogs();
      return found.size() == 1 && found.front() != dialog;
    });
    return PrintWindow(found.empty() ? 0 : found.front(), session->screenFile());
  }
  /// The window of the only dialog.
  PrintWindow window(const std::string &title = "Print") const {
    return PrintWindow(session->dialog(), session->screenFile(), title);
  }
  static void press(const std::string &key) { runProcess({"xdotool", "key", key}); }
  static bool isFocused(const std::string &title) {
    return becomesTrue([&] { return FocusedWindow::find().title == title; });
  }
  bool hasNoDialog() const {
    return becomesTrue([&] { return session->dialogs().empty(); });
  }

  /// The numbers of the jobs that CUPS has received since the last call.
  static std::vector<int> newJobs();

  static std::unique_ptr<KeptJobs> kept;
  static int lastJob;
  std::unique_ptr<PortalSession> session;
};

} // namespace imageposition::test

#endif
