// The installed files, and running the program from them.
#include "OtherUsersFixture.hpp"
#include "ProcessRun.hpp"
#include "TemporaryFolder.hpp"

#include <gmock/gmock.h>

#include <sys/stat.h>
#include <unistd.h>

namespace {

using namespace imageposition::test;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

const char *const kModule = "print-dialog-gnustep.so";

/// `before`: words of a command that runs the installation.
void install(const std::string &prefix, std::vector<std::string> before = {}) {
  before.insert(before.end(), {CMAKE, "--install", IMAGEPOSITION_BINARY, "--prefix", prefix});
  const auto result = runProcess(before);
  ASSERT_EQ(result.status, 0) << testing::PrintToString(result);
}

/// A command line that needs the module.
std::vector<std::string> panelRun(const std::string &program) {
  return {program, "--batch",     "--ppd",    IMAGEPOSITION_SAMPLES "/duplex-shift.ppd",
          "--set", "FrontLRM=-3", "--summary"};
}

class Install : public testing::Test {
protected:
  static void SetUpTestSuite() {
    folder = std::make_unique<TemporaryFolder>();
    install(folder->path("first"));
    // Nothing may depend on the original prefix.
    std::filesystem::rename(folder->path("first"), prefix());
  }
  static void TearDownTestSuite() { folder.reset(); }

  static std::string prefix() { return folder->path("moved"); }
  static std::string program() { return prefix() + "/bin/print-dialog"; }
  static ProcessResult setPanel() { return runProcess(panelRun(program())); }
  /// The only file or folder of that name, in any of the system's library folders.
  static std::string find(const std::string &name) {
    for (const auto &entry : std::filesystem::recursive_directory_iterator(prefix()))
      if (entry.path().filename() == name)
        return entry.path().string();
    return {};
  }

  static std::unique_ptr<TemporaryFolder> folder;
};

std::unique_ptr<TemporaryFolder> Install::folder;

TEST_F(Install, PutsEveryFileIntoItsStandardFolder) {
  for (const char *name :
       {"bin/print-dialog", "share/man/man1/print-dialog.1",
        "share/applications/print-dialog.desktop",
        "share/metainfo/com.morva.PrintDialog.metainfo.xml",
        "share/icons/hicolor/scalable/apps/print-dialog.svg",
        "share/bash-completion/completions/print-dialog", "share/zsh/site-functions/_print-dialog",
        "share/locale/de/LC_MESSAGES/print-dialog.mo", "share/man/man8/print-dialog-portal.8",
        "share/xdg-desktop-portal/portals/print-dialog.portal",
        "share/doc/print-dialog/portals.conf.example"})
    EXPECT_TRUE(std::filesystem::is_regular_file(prefix() + "/" + name)) << name;
  EXPECT_THAT(find("MorvaADPImagePosition.plugin"), HasSubstr("/print-dialog/plugins/"));
  EXPECT_THAT(find(kModule), HasSubstr("/print-dialog/"));
}

TEST_F(Install, TheProgramRuns) {
  const auto result = runProcess({program(), "--version"});
  EXPECT_EQ(result.status, 0) << testing::PrintToString(result);
  EXPECT_THAT(result.output, testing::MatchesRegex("print-dialog [0-9.]+\nBuilt with CUPS [0-9.]+, "
                                                   "GNUstep GUI [0-9.]+, Pango [0-9.]+, qpdf "
                                                   "[0-9.]+\\.\n"));
}

TEST_F(Install, TheProgramFindsThePlugIn) {
  const auto result = setPanel();
  EXPECT_EQ(result.status, 0) << testing::PrintToString(result);
  EXPECT_THAT(result.output, HasSubstr("LeftRightMargin=-3\n"));
  EXPECT_THAT(result.output, HasSubstr("Left-right offset (\xC3\x97 0.1 mm): -3\n"));
  // The installed plug-in, not another one on this machine.
  const std::string plugin = find("MorvaADPImagePosition.plugin");
  std::filesystem::rename(plugin, plugin + ".away");
  std::filesystem::create_directory(plugin);
  const auto emptied = setPanel();
  std::filesystem::remove(plugin);
  std::filesystem::rename(plugin + ".away", plugin);
  EXPECT_THAT(emptied.errors, HasSubstr(std::filesystem::canonical(plugin).string()));
}

TEST_F(Install, TheProgramFindsTheCatalogues) {
  const std::string source = folder->write(
      "de.po", "msgid \"\"\nmsgstr \"Content-Type: text/plain; charset=UTF-8\\n\"\n"
               "msgid \"--set, --back and --summary require --batch.\"\nmsgstr \"Nur so.\"\n");
  const std::string catalogue = prefix() + "/share/locale/de/LC_MESSAGES/print-dialog.mo";
  ASSERT_EQ(runProcess({"msgfmt", "-o", catalogue, source}).status, 0);
  const auto result = runProcess({program(), "--ppd", "a.ppd", "--summary"},
                                 {"LC_ALL", "LANGUAGE=de", "LANG=C.UTF-8"});
  EXPECT_EQ(result.status, 2);
  EXPECT_THAT(result.errors, HasSubstr("Nur so."));
}

TEST_F(Install, ALinkToTheProgramWorks) {
  const std::string link = folder->path("link");
  std::filesystem::create_symlink(program(), link);
  const auto result = runProcess(panelRun(link));
  EXPECT_EQ(result.status, 0) << testing::PrintToString(result);
}

TEST_F(Install, TheBusFindsThePortalsService) {
  const std::string name = "org.freedesktop.impl.portal.desktop.print_dialog";
  const std::string service = contentOf(prefix() + "/share/dbus-1/services/" + name + ".service");
  EXPECT_THAT(service, HasSubstr("\nName=" + name + "\n"));
  // Not moved with the prefix.
  const std::string program = find("print-dialog-portal").substr(prefix().size());
  EXPECT_THAT(service, HasSubstr("\nExec=" + folder->path("first") + program + "\n"));
  EXPECT_THAT(contentOf(prefix() + "/share/xdg-desktop-portal/portals/print-dialog.portal"),
              HasSubstr("\nDBusName=" + name + "\n"));
}

TEST_F(Install, ThePortalsServiceFindsTheProgram) {
  const std::string run = folder->path("run");
  std::filesystem::create_directory(run);
  const auto response = runProcess(
      {"dbus-run-session", "--", "sh", "-c",
       "\"$0\" & gdbus wait --session --timeout 30 \"$1\" && gdbus call --session --dest \"$1\" "
       "--object-path /org/freedesktop/portal/desktop "
       "--method org.freedesktop.impl.portal.Print.PreparePrint /request '' '' '' '{}' '{}' '{}'",
       find("print-dialog-portal"), "org.freedesktop.impl.portal.desktop.print_dialog"},
      {"XDG_RUNTIME_DIR=" + run, "DISPLAY"});
  EXPECT_THAT(response.output, HasSubstr("(uint32 2, "))
      << "there is no display" << response.errors;
}

/// A damaged installed module.
class InstallOfTheModule : public Install {
protected:
  void SetUp() override { std::filesystem::copy_file(module, kept); }
  void TearDown() override {
    std::filesystem::rename(kept, module);
    EXPECT_EQ(setPanel().status, 0);
  }

  void expectFailure(const std::string &reason) const {
    const auto result = runProcess(panelRun(program()), {"FIXTURE_JOURNAL=/dev/null"});
    EXPECT_EQ(result.status, 10) << testing::PrintToString(result);
    EXPECT_THAT(result.errors, HasSubstr(module));
    EXPECT_THAT(result.errors, HasSubstr(reason));
    EXPECT_THAT(result.errors, HasSubstr("Reinstall print-dialog"));
    EXPECT_EQ(runProcess({program(), "--version"}).status, 0);
  }

  const std::string module = std::filesystem::canonical(find(kModule)).string();
  const std::string kept = module + ".kept";
};

TEST_F(InstallOfTheModule, ThatIsMissingIsReported) {
  std::filesystem::remove(module);
  expectFailure("is missing");
}

TEST_F(InstallOfTheModule, ThatIsTruncatedIsReported) {
  std::filesystem::resize_file(module, 100000);
  expectFailure("its end is missing");
}

TEST_F(InstallOfTheModule, ThatIsNotALibraryIsReportedWithTheLoadersReason) {
  std::filesystem::resize_file(module, 0);
  std::ofstream(module) << "no code";
  expectFailure("could not be loaded (");
}

TEST_F(InstallOfTheModule, ThatIsAnotherLibraryIsReported) {
  std::filesystem::remove(module);
  buildLibrary(module, "another", {});
  expectFailure("printDialogRun");
}

TEST_F(InstallOfTheModule, ThatOtherUsersCanModifyIsRefused) {
  std::filesystem::permissions(module, std::filesystem::perms::others_write,
                               std::filesystem::perm_options::add);
  expectFailure("another user could modify it");
}

/// The program in a world-writable folder such as /tmp.
class InstallAmongOthers : public testing::Test {
protected:
  InstallAmongOthers() {
    install(folder.path());
    chmod(folder.path().c_str(), 0755);
    chmod(place.c_str(), 01777);
  }

  /// Creates files that another user could create.
  static void giveAway(const std::string &path) {
    const int failed = geteuid() == 0 ? lchown(path.c_str(), kAnotherUser, kAnotherUser)
                                      : chmod(path.c_str(), 0777);
    ASSERT_EQ(failed, 0);
  }

  const TemporaryFolder folder;
  const std::string place = folder.path("bin");
  const std::string program = place + "/print-dialog";
};

TEST_F(InstallAmongOthers, TheProgramLoadsNoLibraryFromItsFolder) {
  const std::string journal = folder.path("journal");
  for (const char *name :
       {"libGL.so.1", "libcups.so.2", "libPrintCore.so", "libgnustep-gui.so.0.29", kModule}) {
    buildLibrary(place + "/" + name, name, {std::string("-Wl,-soname,") + name});
    giveAway(place + "/" + name);
    const auto result = runProcess(panelRun(program), {"FIXTURE_JOURNAL=" + journal});
    EXPECT_EQ(result.status, 0) << testing::PrintToString(result);
    EXPECT_THAT(contentOf(journal), IsEmpty());
    std::filesystem::remove(place + "/" + name);
  }
}

TEST_F(InstallAmongOthers, TheProgramLoadsNoCatalogueFromItsFolder) {
  const std::string source = folder.write(
      "de.po", "msgid \"\"\nmsgstr \"Content-Type: text/plain; charset=UTF-8\\n\"\n"
               "msgid \"--set, --back and --summary require --batch.\"\nmsgstr \"Gefälscht.\"\n");
  std::filesystem::create_directories(place + "/locale/de/LC_MESSAGES");
  const std::string catalogue = place + "/locale/de/LC_MESSAGES/print-dialog.mo";
  ASSERT_EQ(runProcess({"msgfmt", "-o", catalogue, source}).status, 0);
  giveAway(place + "/locale");
  const auto result = runProcess({program, "--ppd", "a.ppd", "--summary"},
                                 {"LC_ALL", "LANGUAGE=de", "LANG=C.UTF-8"});
  EXPECT_EQ(result.status, 2);
  EXPECT_THAT(result.errors, Not(HasSubstr("Gefälscht.")));
}

class InstallUnder : public testing::TestWithParam<const char *> {};

TEST_P(InstallUnder, AnyMaskOnlyTheOwnerCanWriteToInstalledFiles) {
  const TemporaryFolder folder;
  const std::string prefix = folder.path("prefix");
  install(prefix, {"sh", "-c", "umask \"$0\" && exec \"$@\"", GetParam()});
  for (const auto &entry : std::filesystem::recursive_directory_iterator(prefix)) {
    const std::string name = entry.path().filename();
    const bool runs = entry.is_directory() || name == "print-dialog" ||
                      name == "print-dialog-examiner" || name == "print-dialog-mover" ||
                      name == "print-dialog-renderer" || name == "print-dialog-sheet" ||
                      name == "print-dialog-portal";
    const auto mode = static_cast<unsigned>(entry.status().permissions());
    const bool isCompletion = entry.path().parent_path().filename() == "completions";
    EXPECT_EQ(mode, runs && !isCompletion ? 0755U : 0644U) << entry.path();
  }
}

INSTANTIATE_TEST_SUITE_P(Masks, InstallUnder, testing::Values("000", "002"));

} // namespace
