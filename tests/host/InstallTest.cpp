// What is installed, and that it works from where it was put.
#include "tests/host/ProcessRun.hpp"
#include "tests/host/TemporaryFolder.hpp"

#include <gmock/gmock.h>

namespace {

using namespace imageposition::test;
using testing::HasSubstr;
using testing::Not;

class Install : public testing::Test {
protected:
  static void SetUpTestSuite() {
    folder = std::make_unique<TemporaryFolder>();
    const auto result =
        runProcess({CMAKE, "--install", IMAGEPOSITION_BINARY, "--prefix", folder->path("first")});
    ASSERT_EQ(result.status, 0) << testing::PrintToString(result);
    // Nothing of it may know where it stood first.
    std::filesystem::rename(folder->path("first"), prefix());
  }
  static void TearDownTestSuite() { folder.reset(); }

  static std::string prefix() { return folder->path("moved"); }
  static std::string program() { return prefix() + "/bin/print-dialog"; }
  /// The only folder of that name, wherever this system has its libraries.
  static std::string find(const std::string &name) {
    for (const auto &entry : std::filesystem::recursive_directory_iterator(prefix()))
      if (entry.path().filename() == name)
        return entry.path().string();
    return {};
  }

  static std::unique_ptr<TemporaryFolder> folder;
};

std::unique_ptr<TemporaryFolder> Install::folder;

TEST_F(Install, PutsEverythingWhereOthersLookForIt) {
  for (const char *name :
       {"bin/print-dialog", "share/man/man1/print-dialog.1",
        "share/applications/print-dialog.desktop",
        "share/icons/hicolor/scalable/apps/print-dialog.svg",
        "share/bash-completion/completions/print-dialog", "share/zsh/site-functions/_print-dialog",
        "share/locale/de/LC_MESSAGES/print-dialog.mo"})
    EXPECT_TRUE(std::filesystem::is_regular_file(prefix() + "/" + name)) << name;
  EXPECT_THAT(find("MorvaADPImagePosition.plugin"), HasSubstr("/print-dialog/plugins/"));
}

TEST_F(Install, TheProgramRuns) {
  const auto result = runProcess({program(), "--version"});
  EXPECT_EQ(result.status, 0) << testing::PrintToString(result);
  EXPECT_THAT(result.output, HasSubstr("print-dialog "));
}

TEST_F(Install, ThePlugInIsFoundWithTheProgram) {
  const std::vector<std::string> line{
      program(), "--batch",     "--ppd",    IMAGEPOSITION_SAMPLES "/duplex-shift.ppd",
      "--set",   "FrontLRM=-3", "--summary"};
  const auto result = runProcess(line);
  EXPECT_EQ(result.status, 0) << testing::PrintToString(result);
  EXPECT_THAT(result.output, HasSubstr("LeftRightMargin=-3\n"));
  EXPECT_THAT(result.output, HasSubstr("Left-right offset (\xC3\x97 0.1 mm): -3\n"));
  // It is the installed one, and no other that this machine may have.
  const std::string plugin = find("MorvaADPImagePosition.plugin");
  std::filesystem::rename(plugin, plugin + ".away");
  std::filesystem::create_directory(plugin);
  const auto emptied = runProcess(line);
  std::filesystem::remove(plugin);
  std::filesystem::rename(plugin + ".away", plugin);
  EXPECT_THAT(emptied.errors, HasSubstr(std::filesystem::canonical(plugin).string()));
}

TEST_F(Install, TheCataloguesAreFoundWithTheProgram) {
  const std::string source = folder->write(
      "de.po", "msgid \"\"\nmsgstr \"Content-Type: text/plain; charset=UTF-8\\n\"\n"
               "msgid \"--set, --back and --summary need --batch.\"\nmsgstr \"Nur so.\"\n");
  const std::string catalogue = prefix() + "/share/locale/de/LC_MESSAGES/print-dialog.mo";
  ASSERT_EQ(runProcess({"msgfmt", "-o", catalogue, source}).status, 0);
  const auto result = runProcess({program(), "--ppd", "a.ppd", "--summary"},
                                 {"LC_ALL", "LANGUAGE=de", "LANG=C.UTF-8"});
  EXPECT_EQ(result.status, 2);
  EXPECT_THAT(result.errors, HasSubstr("Nur so."));
}

TEST_F(Install, ALinkToTheProgramServesAsWell) {
  const std::string link = folder->path("link");
  std::filesystem::create_symlink(program(), link);
  const auto result = runProcess(
      {link, "--batch", "--ppd", IMAGEPOSITION_SAMPLES "/duplex-shift.ppd", "--set", "FrontLRM=1"});
  EXPECT_EQ(result.status, 0) << testing::PrintToString(result);
}

} // namespace
