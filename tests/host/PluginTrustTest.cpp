#include "host/PluginTrust.hpp"

#include "tests/host/TemporaryFolder.hpp"

#include <fcntl.h>
#include <filesystem>
#include <grp.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

using namespace imageposition;
using imageposition::test::TemporaryFolder;
using Reason = UntrustedPart::Reason;

/// A bundle with code and a resource, that only its owner may change.
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

  std::optional<UntrustedPart> look() const { return untrustedPart(bundle, people); }

  void expectFound(const std::string &path, Reason reason) const {
    const auto part = look();
    ASSERT_TRUE(part) << path;
    EXPECT_EQ(part->path, path);
    EXPECT_EQ(part->reason, reason);
  }

  TemporaryFolder folder;
  TrustedPeople people;
  std::string code;
  const std::string bundle = folder.path("way/A.plugin");
};

TEST_F(PluginTrust, WhatOnlyTheOwnerMayChangeIsTrusted) { EXPECT_FALSE(look()); }

TEST_F(PluginTrust, AnythingThatEverybodyMayWriteToIsNamed) {
  for (const char *name : {"way", "way/A.plugin", "way/A.plugin/Resources", "way/A.plugin/code",
                           "way/A.plugin/Resources/info"}) {
    const std::string path = folder.path(name);
    struct stat before {};
    ASSERT_EQ(stat(path.c_str(), &before), 0);
    chmod(path.c_str(), before.st_mode | S_IWOTH);
    expectFound(path, Reason::OthersMayWrite);
    chmod(path.c_str(), before.st_mode);
    EXPECT_FALSE(look()) << path;
  }
}

TEST_F(PluginTrust, AFolderOfEverybodyIsFineOnTheWayIfItsEntriesAreTheirMakers) {
  chmod(folder.path("way").c_str(), 01777);
  EXPECT_FALSE(look());
  chmod(bundle.c_str(), 01777); // anybody could put something into the bundle itself
  expectFound(bundle, Reason::OthersMayWrite);
}

TEST_F(PluginTrust, AGroupMayWriteIfNobodyElseIsInIt) {
  people.groups = {getegid()};
  ASSERT_EQ(chown(bundle.c_str(), geteuid(), getegid()), 0);
  chmod(bundle.c_str(), 0775);
  EXPECT_FALSE(look());
  people.groups.clear();
  expectFound(bundle, Reason::OthersMayWrite);
}

TEST_F(PluginTrust, WhatBelongsToSomebodyElseIsNamedWhereverItIs) {
  people.owners = {0};
  if (geteuid() == 0) {
    ASSERT_EQ(chown(code.c_str(), 65534, getegid()), 0);
    expectFound(code, Reason::OthersOwnIt);
    people.owners.insert(65534);
    EXPECT_FALSE(look());
    ASSERT_EQ(chown(folder.path("way").c_str(), 12345, getegid()), 0);
    expectFound(folder.path("way"), Reason::OthersOwnIt);
  } else {
    const auto part = look();
    ASSERT_TRUE(part);
    EXPECT_EQ(part->reason, Reason::OthersOwnIt);
  }
}

TEST_F(PluginTrust, LinksAreFollowedToWhatIsUsed) {
  const std::string elsewhere = folder.write("open/code", "");
  chmod(folder.path("open").c_str(), 0777);
  std::filesystem::create_symlink(elsewhere, bundle + "/link");
  expectFound(folder.path("open"), Reason::OthersMayWrite);
  std::filesystem::remove(bundle + "/link");

  // What stands where the link is does not matter, but who can redirect it is not asked either:
  // whoever loads the bundle uses the path that was looked at.
  std::filesystem::create_symlink(bundle, folder.path("open/B.plugin"));
  EXPECT_FALSE(untrustedPart(folder.path("open/B.plugin"), people));

  std::filesystem::create_symlink(bundle, bundle + "/circle");
  std::filesystem::create_symlink(folder.path("gone"), bundle + "/nowhere");
  EXPECT_FALSE(look());
}

// Not even on a 32-bit processor, whose calls fail for such files unless told otherwise.
TEST_F(PluginTrust, NeitherItsSizeNorItsTimeHidesWhoMayChangeAFile) {
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

TEST_F(PluginTrust, WhatIsNotThereIsNobodys) {
  EXPECT_FALSE(untrustedPart(folder.path("none"), people));
  EXPECT_FALSE(untrustedPart("", people));
}

TEST_F(PluginTrust, TheRunnerAndTheSystemAreTrusted) {
  EXPECT_EQ(people.owners.count(0), 1u);
  EXPECT_EQ(people.owners.count(geteuid()), 1u);
  EXPECT_EQ(people.groups.count(0), 1u);
  const group *const users = getgrnam("users");
  ASSERT_NE(users, nullptr);
  EXPECT_EQ(people.groups.count(users->gr_gid), 0u);
}

} // namespace
