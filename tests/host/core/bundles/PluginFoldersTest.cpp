#include "PluginFolders.hpp"

#include "TemporaryFolder.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using imageposition::findPlugins;
using imageposition::test::TemporaryFolder;
using testing::ElementsAre;
using testing::IsEmpty;

class PluginFolders : public testing::Test {
protected:
  std::string bundle(const std::string &name) {
    folder.write(name + "/code", "");
    return folder.path(name);
  }

  TemporaryFolder folder;
  const std::string installed = folder.path("installed");
  const std::string beside = folder.path("beside");
};

TEST_F(PluginFolders, ABundleThatTheUserNamesIsUsedAloneEvenIfItDoesNotExist) {
  bundle("installed/A.plugin");
  EXPECT_THAT(
      findPlugins({{"missing.plugin"}, {folder.path("installed/A.plugin")}}, {installed, beside}),
      ElementsAre("missing.plugin"));
}

TEST_F(PluginFolders, APrintersPathIsNeverFollowedOutsideTheFolders) {
  const std::string ours = bundle("installed/M.plugin");
  const std::string elsewhere = bundle("elsewhere/M.plugin");
  const std::string unknown = bundle("elsewhere/N.plugin");
  EXPECT_THAT(findPlugins({{}, {elsewhere}}, {installed}), ElementsAre(ours));
  EXPECT_THAT(findPlugins({{}, {unknown}}, {beside}), IsEmpty());
  for (const char *path : {"../elsewhere/N.plugin", "/../elsewhere/N.plugin/.", "N.plugin/../.."})
    EXPECT_THAT(findPlugins({{}, {path}}, {beside}), IsEmpty()) << path;
}

TEST_F(PluginFolders, APathOfAnotherSystemSelectsTheBundleOfThatName) {
  bundle("installed/A.plugin");
  const std::string named = bundle("beside/M.plugin");
  EXPECT_THAT(findPlugins({{}, {"/Library/Printers/M.plugin"}}, {installed, beside}),
              ElementsAre(named));
  EXPECT_THAT(findPlugins({{}, {"/Library/Printers/M.plugin/"}}, {installed, beside}),
              ElementsAre(named));
}

TEST_F(PluginFolders, WithoutANamedOrFoundBundleTheFirstFolderWithBundlesIsUsed) {
  const std::string b = bundle("beside/B.plugin");
  const std::string a = bundle("beside/A.plugin");
  bundle("beside/not a plugin");
  folder.write("beside/file.plugin", "a file");
  EXPECT_THAT(findPlugins({}, {installed, beside}), ElementsAre(a, b));
  EXPECT_THAT(findPlugins({{}, {"/gone/X.plugin"}}, {installed, beside}), ElementsAre(a, b));
  const std::string first = bundle("installed/C.plugin");
  EXPECT_THAT(findPlugins({}, {installed, beside}), ElementsAre(first));
}

TEST_F(PluginFolders, ABundleIsUsedOnce) {
  const std::string a = bundle("installed/A.plugin");
  EXPECT_THAT(findPlugins({{a, a + "/", folder.path("installed/../installed/A.plugin")}, {}}, {}),
              ElementsAre(a));
  bundle("installed/A.plugin");
  EXPECT_THAT(findPlugins({{}, {"A.plugin", "/gone/A.plugin"}}, {installed}),
              ElementsAre(folder.path("installed/A.plugin")));
}

TEST_F(PluginFolders, InvalidNamesFindNothing) {
  for (const char *name : {"", "/", ".", "..", "relative.plugin", "//"})
    EXPECT_THAT(findPlugins({{}, {name}}, {installed}), IsEmpty()) << name;
}

} // namespace
