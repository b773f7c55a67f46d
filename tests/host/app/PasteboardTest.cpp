// Copy and paste where GNUstep's pasteboard cannot be reached.
#include "WindowFixture.hpp"

#include <sys/stat.h>
#include <unistd.h>

namespace {

using namespace imageposition::test;
using testing::HasSubstr;
using testing::Not;

class Pasteboard : public Window {
protected:
  const std::string temporary = folder.path("temporary");
  const std::string secure = temporary + "/GNUstepSecure" + std::to_string(geteuid());

  /// With the permissions of /tmp.
  void makeTemporaryFolder() const {
    std::filesystem::create_directory(temporary);
    chmod(temporary.c_str(), 01777);
  }

  void openWithTemporaryFolder() { open("duplex-shift.ppd", {}, {"TEMP=" + temporary}); }

  /// Presses the key in a field with a value; afterwards the panel can still print it.
  void expectTroubleOnly(const std::string &key, const std::string &trouble) {
    type("42");
    press({"ctrl+a", key});
    ASSERT_TRUE(says(trouble)) << dialogProcess->errorsSoFar();
    press({"Return"});
    EXPECT_EQ(ended().status, kDone) << testing::PrintToString(ended());
    EXPECT_THAT(ended().errors, Not(HasSubstr("plug-in")));
    EXPECT_EQ(printed(), offsets("42", "0", "0", "0", "False"));
  }
};

TEST_F(Pasteboard, WhoseFolderBelongsToAnotherUserDisablesNoPanel) {
  if (geteuid() != 0)
    return; // only root can give a folder away
  makeTemporaryFolder();
  std::filesystem::create_directory(secure);
  ASSERT_EQ(chown(secure.c_str(), 65534, 65534), 0);
  for (const char *key : {"ctrl+c", "ctrl+x", "ctrl+v"}) {
    SCOPED_TRACE(key);
    openWithTemporaryFolder();
    expectTroubleOnly(key, "another user owns the folder \"" + secure + "\"");
  }
}

TEST_F(Pasteboard, WithoutAFolderDisablesNoPanel) {
  for (const char *key : {"ctrl+c", "ctrl+x", "ctrl+v"}) {
    SCOPED_TRACE(key);
    openWithTemporaryFolder();
    expectTroubleOnly(key, "\"" + temporary + "\" is not a folder that you can write to");
  }
}

TEST_F(Pasteboard, WhoseServerIsNotInstalledKeepsTheTextToCut) {
  const std::string configuration =
      folder.write("GNUstep.conf", contentOf(std::getenv("GNUSTEP_CONFIG_FILE")) +
                                       "GNUSTEP_SYSTEM_TOOLS=/nonexistent\n");
  chmod(configuration.c_str(), 0644);
  TemporaryFolder nobodyCopiedYet;
  open("duplex-shift.ppd", {},
       {"GNUSTEP_CONFIG_FILE=" + configuration, "PATH=/nonexistent",
        "TEMP=" + nobodyCopiedYet.path()});
  expectTroubleOnly("ctrl+x", "gnustep-gui-runtime");
}

TEST_F(Pasteboard, ThatFailsInASmallerWindowIsExplainedOverIt) {
  start({"--ppd", sample("duplex-shift.ppd")}, {"TEMP=" + temporary});
  press({"Return"});
  ASSERT_TRUE(becomesTrue([] { return isFocused("Save as ticket"); }));
  press({"ctrl+a", "ctrl+c"});
  ASSERT_TRUE(becomesTrue([] { return isFocused("Copy and paste"); }));
  press({"Return"});
  ASSERT_TRUE(becomesTrue([] { return isFocused("Save as ticket"); }));
  press({"Escape"});
  ASSERT_TRUE(becomesTrue(hasKeyboard));
  press({"Escape"});
  EXPECT_EQ(ended().status, kCancelled) << testing::PrintToString(ended());
}

} // namespace
