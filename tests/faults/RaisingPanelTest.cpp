// Another plug-in's panel that raises, in the window. PluginLoadingTest covers this without a
// window.
#include "WindowFixture.hpp"

namespace {

using namespace imageposition::test;
using testing::HasSubstr;
using testing::Not;

class RaisingPanel : public Window {
protected:
  void openBoth(const std::string &behaviour) {
    open("duplex-shift.ppd", {"--plugin", FIXTURE_PLUGIN, "--plugin", IMAGE_POSITION_PLUGIN},
         {"FIXTURE_BEHAVIOUR=" + behaviour, "FIXTURE_JOURNAL=" + journal});
  }

  /// Expects a message that names the panel that raised, and a job with the other panel's values.
  void expectLeftOut(const std::string &operation) {
    ASSERT_TRUE(says("failed in \"" + operation + "\"")) << dialogProcess->errorsSoFar();
    EXPECT_THAT(dialogProcess->errorsSoFar(), HasSubstr("Fixture.plugin\""));
    EXPECT_THAT(dialogProcess->errorsSoFar(),
                testing::AnyOf(HasSubstr("on demand"), HasSubstr("without description")));
    if (!dialogProcess->hasEnded())
      press({"Return"});
    EXPECT_EQ(ended().status, kDone) << testing::PrintToString(ended());
    EXPECT_EQ(printed().count("LeftRightMargin"), 1u);
  }
};

TEST_F(RaisingPanel, IsLeftOutWhenItRaisesWhileLoading) {
  for (const char *how : {"raise ", "throw ", "throw-number "})
    for (const char *operation : {"initWithBundle:", "PDEPanelsForType:withHostInfo:", "panelKind",
                                  "panelName", "supportedPPDOptionKeys", "panelView", "willShow"}) {
      SCOPED_TRACE(std::string(how) + operation);
      openBoth(std::string(how) + operation);
      expectLeftOut(operation);
    }
}

TEST_F(RaisingPanel, IsLeftOutWhenItRaisesWhilePrinting) {
  for (const char *how : {"raise ", "throw ", "throw-number "})
    for (const char *operation : {"shouldPrint", "saveValuesAndReturnError:"}) {
      SCOPED_TRACE(std::string(how) + operation);
      openBoth(std::string(how) + operation);
      press({"Return"});
      expectLeftOut(operation);
    }
}

TEST_F(RaisingPanel, IsLeftOutWhenItRaisesInTheSummary) {
  openBoth("raise summaryInfo");
  goTo(kPanes);
  press({"space", "End", "Return"});
  expectLeftOut("summaryInfo");
}

TEST_F(RaisingPanel, DoesNotPreventCancelling) {
  openBoth("raise restoreValuesAndReturnError:");
  press({"Escape"});
  EXPECT_EQ(ended().status, kCancelled) << testing::PrintToString(ended());
}

} // namespace
