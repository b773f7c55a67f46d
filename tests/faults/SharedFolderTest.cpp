// Files that other users have placed, in a folder that they can write, where the program writes.
#include "DialogFixture.hpp"

#include <sys/stat.h>
#include <unistd.h>

namespace {

using namespace imageposition::test;
using testing::HasSubstr;

namespace fs = std::filesystem;

/// "drop" is a folder that everybody can write; the rest belongs to the user. If the tests run as
/// root, the files that `lay...` creates belong to another user.
class SharedFolder : public DialogFixture {
protected:
  static constexpr uid_t kOther = 54321;
  static constexpr const char *kProfile = "PATH=/usr/bin\nexport PATH\n";

  void SetUp() override {
    folder.write("drop/.keep", "");
    chmod(folder.path().c_str(), 0755);
    chmod(folder.path("drop").c_str(), 0777);
    folder.write("home/.profile", kProfile);
  }

  void layLink(const std::string &name, const std::string &target) const {
    const std::string path = folder.path("drop/" + name);
    ASSERT_EQ(symlink(target.c_str(), path.c_str()), 0);
    giveAway(path);
  }
  std::string lay(const std::string &name, const std::string &content) const {
    const std::string path = folder.write("drop/" + name, content);
    giveAway(path);
    return path;
  }
  static void giveAway(const std::string &path) {
    if (geteuid() == 0) {
      ASSERT_EQ(lchown(path.c_str(), kOther, kOther), 0);
    }
  }

  ProcessResult writeTicket(const Words &more = {}) const {
    Words words{"--ticket", ticket, "--set", "FrontLRM=-3"};
    words.insert(words.end(), more.begin(), more.end());
    return batch(sample("duplex-shift.ppd"), words);
  }

  void expectRefused(const ProcessResult &result, const std::string &path) const {
    EXPECT_EQ(result.status, kTicket) << testing::PrintToString(result);
    EXPECT_THAT(result.errors, HasSubstr("\"" + path + "\""));
    EXPECT_EQ(contentOf(folder.path("home/.profile")), kProfile);
    EXPECT_FALSE(fs::is_regular_file(fs::symlink_status(ticket))) << "a partial file was written";
    EXPECT_LE(filesInDrop(), 2) << "a temporary file was left";
  }
  int filesInDrop() const {
    const fs::directory_iterator files(folder.path("drop"));
    return static_cast<int>(std::distance(begin(files), end(files)));
  }

  const std::string ticket = folder.path("drop/job.json");
  const std::string options = folder.path("drop/job.options");
};

TEST_F(SharedFolder, OptionsAreNotWrittenThroughALink) {
  layLink("job.options", "../home/.profile");
  expectRefused(writeTicket(), options);
  EXPECT_TRUE(fs::is_symlink(options));
}

TEST_F(SharedFolder, ASettingWhoseNameAShellWouldRunIsRejected) {
  layLink("job.options", "../home/.profile");
  const std::string json = R"({"settings": {"touch$IFS$HOME/acted;A": "1"}})";
  lay("job.json", json);
  const auto result = writeTicket();
  EXPECT_EQ(result.status, kTicket) << testing::PrintToString(result);
  EXPECT_THAT(result.errors, HasSubstr("touch$IFS$HOME/acted;A"));
  EXPECT_EQ(contentOf(folder.path("home/.profile")), kProfile);
  EXPECT_EQ(contentOf(ticket), json);
}

TEST_F(SharedFolder, ValuesThatAShellWouldRunArePlainValuesInTheOptions) {
  folder.write("drop/job.json",
               R"x({"settings": {"A": "1;touch${IFS}acted", "B": "$(touch acted)",
                   "C": "`touch acted`&", "D": "x\ntouch acted\n", "E": "\\$(touch acted)\"'",
                   "F": ">acted"}})x");
  ASSERT_EQ(writeTicket().status, kDone);
  const auto sourced =
      runProcess({"sh", "-c", "cd \"$0\" && . ./job.options; printf '%s|' \"$A\" \"$E\"; ls",
                  folder.path("drop")});
  EXPECT_THAT(sourced.output, HasSubstr("1;touch${IFS}acted|\\$(touch acted)\"'|"));
  EXPECT_FALSE(fs::exists(folder.path("drop/acted")));
}

TEST_F(SharedFolder, OptionsDoNotReplaceAFileThatPrintDialogDidNotWrite) {
  for (const char *content :
       {kProfile, "mine\n", "A=1", "A=1\n\nB=2\n", "# A=1\n", "A=a b\n", "A=\"1\n", "A=$B\n",
        "\x7F"
        "ELF=1\n"}) {
    SCOPED_TRACE(content);
    folder.write("drop/job.options", content);
    expectRefused(writeTicket(), options);
    EXPECT_EQ(contentOf(options), content);
  }
}

TEST_F(SharedFolder, OptionsReplaceAnEarlierVersionOfThemselves) {
  const std::string account = "Account='a \"b\" \\ $c\nd'";
  ASSERT_EQ(writeTicket({"-o", account}).status, kDone);
  const std::string before = contentOf(options);
  ASSERT_EQ(writeTicket({"--set", "FrontLRM=4"}).status, kDone);
  EXPECT_NE(contentOf(options), before);
  EXPECT_THAT(contentOf(options), HasSubstr("LeftRightMargin=4\n"));
}

TEST_F(SharedFolder, OptionsDoNotReplaceAnotherUsersFile) {
  if (geteuid() != 0)
    GTEST_SKIP() << "only root can give a file away";
  lay("job.options", "A=1\n");
  expectRefused(writeTicket(), options);
  EXPECT_EQ(contentOf(options), "A=1\n");
}

TEST_F(SharedFolder, AnotherUsersLinkIsNotFollowedForTheTicketEither) {
  if (geteuid() != 0)
    GTEST_SKIP() << "only root can give a link away";
  folder.write("home/job.json", R"({"settings": {}})");
  layLink("job.json", "../home/job.json");
  expectRefused(writeTicket(), ticket);
  EXPECT_EQ(contentOf(folder.path("home/job.json")), R"({"settings": {}})");
}

TEST_F(SharedFolder, AnotherUsersLinkIsNotFollowedAsAFolderOnTheWayEither) {
  if (geteuid() != 0)
    GTEST_SKIP() << "only root can give a link away";
  const std::string real = folder.write("home/job.json", R"({"settings": {}})");
  layLink("dl", "../home");
  for (const std::string name : {"dl/job.json", "dl/new.json", "dl/../home/job.json"}) {
    const auto result =
        batch(sample("duplex-shift.ppd"), {"--ticket", folder.path("drop/" + name)});
    EXPECT_EQ(result.status, kTicket) << name << testing::PrintToString(result);
    EXPECT_THAT(result.errors, HasSubstr("a symbolic link owned by another user")) << name;
  }
  EXPECT_EQ(contentOf(real), R"({"settings": {}})");
  EXPECT_FALSE(fs::exists(folder.path("home/new.json")));
  EXPECT_FALSE(fs::exists(folder.path("home/job.options")));
}

TEST_F(SharedFolder, TheUsersOwnLinkIsFollowedAsAFolderOnTheWay) {
  fs::create_directory(folder.path("drop/sub"));
  fs::create_directory_symlink("..//drop/./sub/", folder.path("home/one"));
  fs::create_directory_symlink(folder.path("home/one"), folder.path("home/two"));
  const auto result =
      batch(sample("duplex-shift.ppd"), {"--ticket", folder.path("home") + "/two/job.json"});
  EXPECT_EQ(result.status, kDone) << testing::PrintToString(result);
  EXPECT_TRUE(fs::exists(folder.path("drop/sub/job.json")));
  EXPECT_TRUE(fs::exists(folder.path("drop/sub/job.options")));
}

TEST_F(SharedFolder, LinksInALoopAreNamed) {
  fs::create_directory_symlink("b", folder.path("drop/a"));
  fs::create_directory_symlink("a", folder.path("drop/b"));
  const auto result =
      batch(sample("duplex-shift.ppd"), {"--ticket", folder.path("drop/a/job.json")});
  EXPECT_EQ(result.status, kTicket) << testing::PrintToString(result);
  EXPECT_THAT(result.errors, HasSubstr("drop/a/job.json\""));
}

TEST_F(SharedFolder, OptionsAreNotWrittenThroughADanglingLink) {
  layLink("job.options", "../home/.pam_environment");
  expectRefused(writeTicket(), options);
  EXPECT_FALSE(fs::exists(folder.path("home/.pam_environment")));
}

TEST_F(SharedFolder, TheFileBehindAHardLinkStaysUnchanged) {
  ASSERT_EQ(link(folder.path("home/.profile").c_str(), options.c_str()), 0);
  expectRefused(writeTicket(), options);
  ASSERT_EQ(link(folder.path("home/.profile").c_str(), ticket.c_str()), 0);
  unlink(options.c_str());
  EXPECT_EQ(writeTicket().status, kTicket); // it is read first, and is not a ticket
  EXPECT_EQ(contentOf(folder.path("home/.profile")), kProfile);
}

TEST_F(SharedFolder, APipeInTheWayIsNamedWithoutBlocking) {
  ASSERT_EQ(mkfifo(options.c_str(), 0666), 0);
  giveAway(options);
  expectRefused(writeTicket(), options);
}

TEST_F(SharedFolder, AFolderInTheWayIsNamed) {
  folder.write("drop/job.options/inside", "");
  expectRefused(writeTicket(), options);
}

TEST_F(SharedFolder, NewFilesInheritNoPermissionsFromAnotherUsersFile) {
  const std::string path = lay("job.json", R"({"settings": {}})");
  chmod(path.c_str(), 06777);
  ASSERT_EQ(writeTicket().status, kDone);
  struct stat status {};
  ASSERT_EQ(stat(ticket.c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 07000, 0U);
  if (geteuid() == 0) {
    EXPECT_EQ(status.st_mode & 0022, 0U);
  }
}

/// Paths that a user may name by mistake.
TEST_F(SharedFolder, APlaceThatIsNotAFileIsNamed) {
  for (const std::string name : {"", ".", "..", "new/", "new/..", ".keep/job.json"}) {
    SCOPED_TRACE(name);
    const auto result =
        batch(sample("duplex-shift.ppd"), {"--ticket", folder.path("drop") + "/" + name});
    EXPECT_EQ(result.status, kTicket) << testing::PrintToString(result);
    EXPECT_THAT(result.errors, HasSubstr("drop/" + name + "\""));
    EXPECT_EQ(filesInDrop(), 1);
  }
}

TEST_F(SharedFolder, ATicketAboveItsFolderIsWrittenThere) {
  fs::create_directory(folder.path("drop/sub"));
  const auto result =
      batch(sample("duplex-shift.ppd"), {"--ticket", folder.path("drop") + "/sub//../job.json"});
  EXPECT_EQ(result.status, kDone) << testing::PrintToString(result);
  EXPECT_TRUE(fs::exists(ticket));
  EXPECT_TRUE(fs::exists(options));
}

TEST_F(SharedFolder, AFileThatMayNotBeWrittenIsNotReplaced) {
  folder.write("drop/job.json", R"({"settings": {}})");
  chmod(ticket.c_str(), 0444);
  Words words{PRINT_DIALOG, "--batch", "--ppd", sample("duplex-shift.ppd"), "--ticket", ticket};
  if (geteuid() == 0)
    words.insert(words.begin(), {"setpriv", "--bounding-set=-dac_override,-dac_read_search"});
  const auto result = runProcess(words);
  EXPECT_EQ(result.status, kTicket) << testing::PrintToString(result);
  EXPECT_THAT(result.errors, HasSubstr("Permission denied"));
  EXPECT_EQ(contentOf(ticket), R"({"settings": {}})");
  EXPECT_FALSE(fs::exists(options));
}

// As under `ulimit -f 0`, which sends a signal that kills a program that does not handle it.
TEST_F(SharedFolder, WhenTheFileSizeLimitIsExceededTheFileIsNamedAndNothingIsLeft) {
  for (const char *limit : {"0", "1"}) { // of 512 or 1024 bytes
    SCOPED_TRACE(limit);
    const auto result = runProcess({"bash", "-c", "ulimit -f $0 && exec \"$@\"", limit,
                                    PRINT_DIALOG, "--batch", "--ppd", sample("duplex-shift.ppd"),
                                    "--ticket", ticket, "-o", "Note=" + std::string(3000, 'x')});
    EXPECT_EQ(result.status, kTicket) << testing::PrintToString(result);
    EXPECT_THAT(result.errors, HasSubstr("File too large"));
    EXPECT_EQ(filesInDrop(), 1);
  }
}

TEST_F(SharedFolder, AFailureAfterTheTicketWasWrittenSaysWhatWasWritten) {
  const auto result =
      runProcess({"sh", "-c", "exec \"$0\" \"$@\" >/dev/full", PRINT_DIALOG, "--batch", "--ppd",
                  sample("duplex-shift.ppd"), "--summary", "-s", "--ticket", ticket});
  EXPECT_EQ(result.status, kTicket) << testing::PrintToString(result);
  ASSERT_TRUE(fs::exists(ticket));
  EXPECT_THAT(result.errors, HasSubstr("Cannot write to standard output"));
  EXPECT_THAT(result.errors, HasSubstr(ticket));
  EXPECT_THAT(result.errors, HasSubstr(options));
}

} // namespace
