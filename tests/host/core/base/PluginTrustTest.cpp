#include "PluginTrust.hpp"

#include "TemporaryFolder.hpp"

#include <atomic>
#include <cerrno>
#include <cstdint>
#include <cstdio>
#include <fcntl.h>
#include <filesystem>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <thread>
#include <unistd.h>

namespace {

using namespace imageposition;
using imageposition::test::TemporaryFolder;
using Reason = UntrustedPart::Reason;

constexpr gid_t kSomeGroup = 12345;

/// A bundle with code and a resource that only its owner may write.
class PluginTrust : public testing::Test {
protected:
  PluginTrust() : people(TrustedPeople::here()) {
    folder.write("way/A.plugin/Resources/info", "");
    code = folder.write("way/A.plugin/code", "");
    for (const char *name : {"", "way", "way/A.plugin", "way/A.plugin/Resources"})
      chmod(folder.path(name).c_str(), 0755);
    for (const char *name : {"way/A.plugin/Resources/info", "way/A.plugin/code"})
      chmod(folder.path(name).c_str(), 0644);
  }

  std::optional<UntrustedPart> check() const { return untrustedPart(bundle, people); }

  void expectFound(const std::string &path, Reason reason) const {
    const auto part = check();
    ASSERT_TRUE(part) << path;
    EXPECT_EQ(part->path, path);
    EXPECT_EQ(part->reason, reason);
  }

  TemporaryFolder folder;
  TrustedPeople people;
  std::string code;
  const std::string bundle = folder.path("way/A.plugin");
};

TEST_F(PluginTrust, AFileThatOnlyTheOwnerMayWriteIsTrusted) { EXPECT_FALSE(check()); }

TEST_F(PluginTrust, AWorldWritablePartIsNotTrusted) {
  for (const char *name : {"way", "way/A.plugin", "way/A.plugin/Resources", "way/A.plugin/code",
                           "way/A.plugin/Resources/info"}) {
    const std::string path = folder.path(name);
    struct stat before {};
    ASSERT_EQ(stat(path.c_str(), &before), 0);
    chmod(path.c_str(), before.st_mode | S_IWOTH);
    expectFound(path, Reason::OthersMayWrite);
    chmod(path.c_str(), before.st_mode);
    EXPECT_FALSE(check()) << path;
  }
}

TEST_F(PluginTrust, AWorldWritableParentFolderIsTrustedIfItHasTheStickyBit) {
  chmod(folder.path("way").c_str(), 01777);
  EXPECT_FALSE(check());
  chmod(bundle.c_str(), 01777); // anybody could add a file to the bundle
  expectFound(bundle, Reason::OthersMayWrite);
}

// A group's list of members is incomplete: it may also be the primary group of users.
TEST_F(PluginTrust, OnlyTheGroupOfRootMayWrite) {
  chmod(bundle.c_str(), 0775);
  if (geteuid() == 0) {
    EXPECT_FALSE(check());
    ASSERT_EQ(chown(bundle.c_str(), geteuid(), kSomeGroup), 0);
  }
  expectFound(bundle, Reason::OthersMayWrite);
}

TEST_F(PluginTrust, AnAccessControlListCountsLikeAGroup) {
  struct {
    std::uint32_t version = 2;
    struct {
      std::uint16_t tag, rights;
      std::uint32_t id;
    } entries[5] = {
        {0x01, 6, ~0U}, {0x02, 6, 12345}, {0x04, 4, ~0U}, {0x10, 6, ~0U}, {0x20, 4, ~0U}};
  } const list; // see acl(5) and posix_acl_xattr.h; another user may write
  for (const std::string &path : {code, folder.path("way/A.plugin/Resources")}) {
    ASSERT_EQ(setxattr(path.c_str(), "system.posix_acl_access", &list, sizeof list, 0), 0);
    expectFound(path, Reason::OthersMayWrite);
    ASSERT_EQ(removexattr(path.c_str(), "system.posix_acl_access"), 0);
    chmod(path.c_str(), 0755);
    EXPECT_FALSE(check());
  }
}

TEST_F(PluginTrust, AnyPartOwnedByAnotherUserIsNotTrusted) {
  people.owners = {0};
  if (geteuid() == 0) {
    ASSERT_EQ(chown(code.c_str(), 65534, getegid()), 0);
    expectFound(code, Reason::OthersOwnIt);
    people.owners.insert(65534);
    EXPECT_FALSE(check());
    ASSERT_EQ(chown(folder.path("way").c_str(), 12345, getegid()), 0);
    expectFound(folder.path("way"), Reason::OthersOwnIt);
  } else {
    const auto part = check();
    ASSERT_TRUE(part);
    EXPECT_EQ(part->reason, Reason::OthersOwnIt);
  }
}

TEST_F(PluginTrust, TheTargetOfALinkIsChecked) {
  const std::string elsewhere = folder.write("open/code", "");
  chmod(folder.path("open").c_str(), 0777);
  std::filesystem::create_symlink(elsewhere, bundle + "/link");
  expectFound(folder.path("open"), Reason::OthersMayWrite);
  std::filesystem::remove(bundle + "/link");

  // Nor may another user be able to replace the link.
  std::filesystem::create_symlink(bundle, folder.path("open/B.plugin"));
  const auto part = untrustedPart(folder.path("open/B.plugin"), people);
  ASSERT_TRUE(part);
  EXPECT_EQ(part->path, folder.path("open"));
}

TEST_F(PluginTrust, CyclicAndDanglingLinksAreFollowedAsFarAsPossible) {
  std::filesystem::create_symlink(bundle, bundle + "/circle");
  std::filesystem::create_symlink("../../way/A.plugin/Resources/./info", bundle + "/relative");
  std::filesystem::create_symlink(folder.path("gone"), bundle + "/nowhere");
  EXPECT_FALSE(check());
  // Another user could create the missing target.
  std::filesystem::create_symlink(folder.path("open/gone"), bundle + "/soon");
  std::filesystem::create_directory(folder.path("open"));
  chmod(folder.path("open").c_str(), 01777);
  expectFound(folder.path("open"), Reason::OthersMayWrite);
  std::filesystem::remove(bundle + "/soon");
  std::filesystem::create_symlink("itself", bundle + "/itself");
  expectFound(bundle + "/itself", Reason::Unknown);
}

TEST_F(PluginTrust, ALinkOwnedByAnotherUserIsNotTrustedEvenIfItsTargetIs) {
  if (geteuid() != 0)
    return; // only root can give a link away
  std::filesystem::create_directory(folder.path("open"));
  chmod(folder.path("open").c_str(), 01777);
  std::filesystem::create_symlink(code, folder.path("open/link"));
  std::filesystem::create_symlink(folder.path("open/link"), bundle + "/link");
  EXPECT_FALSE(check());
  ASSERT_EQ(lchown(folder.path("open/link").c_str(), 65534, kSomeGroup), 0);
  expectFound(folder.path("open/link"), Reason::OthersOwnIt);
}

TEST_F(PluginTrust, AFolderSwappedForALinkDuringTheCheckIsNotTrusted) {
  if (geteuid() != 0)
    return; // only root can give a folder away
  const std::string open = folder.path("open"), theirs = open + "/theirs", link = open + "/link";
  std::filesystem::create_directories(theirs + "/A.plugin");
  std::filesystem::create_symlink(folder.path("way"), link); // a trusted folder
  chmod(open.c_str(), 01777);
  for (const std::string &path : {theirs, link})
    ASSERT_EQ(lchown(path.c_str(), 65534, kSomeGroup), 0);
  std::atomic<bool> isDone = false;
  std::thread swapping([&] {
    while (!isDone)
      renameat2(AT_FDCWD, theirs.c_str(), AT_FDCWD, link.c_str(), RENAME_EXCHANGE);
  });
  for (int i = 0; i < 2000 && !HasFailure(); i++)
    EXPECT_TRUE(untrustedPart(theirs + "/A.plugin", people)) << "after " << i << " tries";
  isDone = true;
  swapping.join();
}

// On 32-bit systems stat() fails for such files by default.
TEST_F(PluginTrust, TheSizeAndTimeOfAFileDoNotPreventItsCheck) {
  chmod(code.c_str(), 0666);
  std::filesystem::resize_file(code, 0x140000000);
  expectFound(code, Reason::OthersMayWrite);
  std::filesystem::resize_file(code, 0);
  for (const std::string &path : {bundle, code}) {
    const timespec times[] = {{2366841600, 0}, {2366841600, 0}}; // 2045
    ASSERT_EQ(utimensat(AT_FDCWD, path.c_str(), times, 0), 0);
    expectFound(code, Reason::OthersMayWrite);
  }
}

TEST_F(PluginTrust, APathThatCannotBeExaminedIsNotTrusted) {
  const auto expectUnknown = [&](const std::string &path, int error) {
    const auto part = untrustedPart(path, people);
    ASSERT_TRUE(part) << path;
    EXPECT_EQ(part->reason, Reason::Unknown) << path;
    EXPECT_EQ(part->error, error) << path;
  };
  expectUnknown(folder.path("none"), ENOENT);
  expectUnknown("", ENOENT);
  expectUnknown(code + "/within", ENOTDIR);
  expectUnknown(folder.path(std::string(300, 'x')), ENAMETOOLONG);
}

TEST_F(PluginTrust, APlaceIsCheckedWithoutItsContents) {
  chmod(code.c_str(), 0666);
  EXPECT_FALSE(untrustedPlace(bundle, people));
  EXPECT_TRUE(untrustedPlace(code, people));
  EXPECT_FALSE(untrustedPlace(folder.path("way/none/at/all"), people));
  chmod(folder.path("way").c_str(), 01777);
  EXPECT_FALSE(untrustedPlace(bundle, people));
  EXPECT_TRUE(untrustedPlace(folder.path("way"), people));
  EXPECT_TRUE(untrustedPlace(folder.path("way/none/at/all"), people));
}

TEST_F(PluginTrust, TheUserAndRootAreTrusted) {
  EXPECT_EQ(people.owners.count(0), 1u);
  EXPECT_EQ(people.owners.count(geteuid()), 1u);
}

} // namespace
