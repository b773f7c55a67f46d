// Attempts by other users of the computer to get their code into the program.
#include "OtherUsersFixture.hpp"
#include "PluginFixture.hpp"

#include <sys/stat.h>
#include <unistd.h>

namespace {

using namespace imageposition::test;
using testing::HasSubstr;
using testing::StrEq;

namespace fs = std::filesystem;

/// Changes the current folder during its lifetime.
class WorkingFolder {
public:
  explicit WorkingFolder(const std::string &path) { fs::current_path(path); }
  ~WorkingFolder() { fs::current_path(before_); }
  WorkingFolder(const WorkingFolder &) = delete;
  WorkingFolder &operator=(const WorkingFolder &) = delete;

private:
  const fs::path before_ = fs::current_path();
};

class OtherUsers : public PluginFixture {
protected:
  void SetUp() override { chmod(folder.path().c_str(), 0755); }

  /// A world-writable folder.
  std::string openFolder(const std::string &name = "open", mode_t mode = 0777) const {
    fs::create_directories(folder.path(name));
    chmod(folder.path(name).c_str(), mode);
    return folder.path(name);
  }

  /// A copy of the plug-in whose code is linked with these options.
  std::string linked(const std::string &name, const Words &options) const {
    const std::string bundle = copy(name);
    fs::remove(bundle + "/Fixture");
    buildLibrary(bundle + "/Fixture", "the plug-in", options);
    return bundle;
  }

  void expectNamed(const std::string &bundle, const std::string &library,
                   const std::string &place) const {
    const auto result = load(bundle);
    expectUnheard(result, "was not loaded");
    EXPECT_THAT(result.errors, HasSubstr("\"" + library + "\""));
    EXPECT_THAT(result.errors, HasSubstr("\"" + place + "\""));
  }
};

TEST_F(OtherUsers, CannotReplaceAPluginsCodeThroughTheUsersOwnGroup) {
  // The group has no other members, but is also another account's group.
  const std::string accounts = folder.write("passwd", "root:x:0:0::/:/bin/sh\n"
                                                      "victim:x:12345:12345::/:/bin/sh\n"
                                                      "other:x:12346:12345::/:/bin/sh\n");
  const std::string groups = folder.write("group", "root:x:0:\nvictim:x:12345:\n");
  const std::string bundle = copy();
  const Words program{PRINT_DIALOG, "--batch", "--plugin",
                      bundle,       "--ppd",   sample("duplex-shift.ppd")};
  fs::permissions(bundle + "/Fixture", fs::perms::group_write, fs::perm_options::add);
  Words words = program;
  if (geteuid() == 0) {
    for (const auto &entry : fs::recursive_directory_iterator(bundle))
      ASSERT_EQ(chown(entry.path().c_str(), 12345, 12345), 0);
    ASSERT_EQ(chown(bundle.c_str(), 12345, 12345), 0);
    openFolder(".", 01777);
    words = {"unshare",
             "--mount",
             "sh",
             "-c",
             "mount --bind \"$0\" /etc/passwd && mount --bind \"$1\" /etc/group && shift &&"
             "exec setpriv --reuid=12345 --regid=12345 --clear-groups \"$@\"",
             accounts,
             groups};
    words.insert(words.end(), program.begin(), program.end());
  }
  const auto result = runProcess(words, {"FIXTURE_JOURNAL=" + journal});
  expectUnheard(result, "other users can modify \"" + bundle + "/Fixture\"");
  EXPECT_THAT(result.errors, HasSubstr("chmod go-w " + bundle + "/Fixture)"));
}

TEST_F(OtherUsers, CannotPutLibrariesWhereAPluginsCodeLooksForThem) {
  const std::string open = openFolder();
  buildLibrary(open + "/libneeded.so", "theirs", {"-Wl,-soname,libneeded.so"});
  const std::string needed = open + "/libneeded.so";
  for (const std::string kind : {"enable", "disable"}) {
    const std::string tags = "-Wl,--" + kind + "-new-dtags";
    SCOPED_TRACE(tags);
    const std::string there =
        linked(kind + "-there.plugin", {needed, tags, "-Wl,-rpath,/usr/lib:" + open});
    expectNamed(there, there + "/Fixture", open);
    const std::string origin =
        linked(kind + "-origin.plugin", {needed, tags, "-Wl,-rpath,$ORIGIN/../open"});
    expectNamed(origin, origin + "/Fixture", origin + "/../open");
    const std::string braces =
        linked(kind + "-braces.plugin", {needed, tags, "-Wl,-rpath,${ORIGIN}/../open"});
    expectNamed(braces, braces + "/Fixture", braces + "/../open");
  }
}

TEST_F(OtherUsers, CannotCreateAMissingFolderOfAPluginsRunPath) {
  const std::string missing = openFolder("open", 01777) + "/later/libs";
  const std::string bundle = linked("Copy.plugin", {"-Wl,-rpath," + missing});
  expectNamed(bundle, bundle + "/Fixture", missing);
}

TEST_F(OtherUsers, CannotPutLibrariesIntoTheCurrentFolder) {
  const WorkingFolder open(openFolder());
  buildLibrary("libneeded.so", "theirs", {"-Wl,-soname,libneeded.so"});
  for (const std::string path : {".", "libs/..", ":/usr/lib", "/usr/lib:"}) {
    SCOPED_TRACE(path);
    const std::string bundle = linked("Copy.plugin", {"libneeded.so", "-Wl,-rpath," + path});
    expectUnheard(load(bundle), bundle + "/Fixture");
    fs::remove_all(bundle);
  }
  buildLibrary("libneeded.so", "theirs", {}); // without a soname, the linker records the path
  const std::string bundle = linked("Copy.plugin", {"./libneeded.so"});
  expectNamed(bundle, bundle + "/Fixture", "./libneeded.so");
}

TEST_F(OtherUsers, CannotReplaceALibraryThatIsNamedByItsPath) {
  const std::string open = openFolder();
  buildLibrary(open + "/libneeded.so", "theirs", {}); // without a soname
  const std::string bundle = linked("Copy.plugin", {open + "/libneeded.so"});
  expectNamed(bundle, bundle + "/Fixture", open + "/libneeded.so");
}

TEST_F(OtherUsers, CannotReplaceTheDependenciesOfAPluginsLibrary) {
  const std::string open = openFolder();
  buildLibrary(open + "/libdeep.so", "theirs", {"-Wl,-soname,libdeep.so"});
  fs::create_directory(folder.path("libs"));
  const std::string middle = folder.path("libs/libmiddle.so");
  buildLibrary(middle, "middle",
               {open + "/libdeep.so", "-Wl,-soname,libmiddle.so", "-Wl,-rpath," + open});
  const std::string bundle =
      linked("Copy.plugin", {middle, "-Wl,-rpath," + folder.path("libs"),
                             "-Wl,--allow-shlib-undefined", "-Wl,-rpath-link," + open});
  expectNamed(bundle, middle, open);
}

TEST_F(OtherUsers, CannotReplaceTheTargetOfAFilterLibrary) {
  const std::string open = openFolder();
  buildLibrary(open + "/libneeded.so", "theirs", {});
  for (const std::string option : {"-Wl,--filter=", "-Wl,--auxiliary="}) {
    SCOPED_TRACE(option);
    const std::string bundle = linked("Copy.plugin", {option + open + "/libneeded.so"});
    expectNamed(bundle, bundle + "/Fixture", open + "/libneeded.so");
    fs::remove_all(bundle);
  }
}

TEST_F(OtherUsers, CannotOwnAPluginsLibrary) {
  if (geteuid() != 0)
    return; // only root can change the owner of a file
  fs::create_directory(folder.path("libs"));
  const std::string needed = folder.path("libs/libneeded.so");
  buildLibrary(needed, "theirs", {"-Wl,-soname,libneeded.so"});
  const std::string bundle = linked("Copy.plugin", {needed, "-Wl,-rpath," + folder.path("libs")});
  ASSERT_EQ(chown(needed.c_str(), kAnotherUser, kAnotherUser), 0);
  expectNamed(bundle, bundle + "/Fixture", needed);
}

TEST_F(OtherUsers, DoNotMatterForLibrariesInTheOwnersFolders) {
  const std::string bundle = copy();
  fs::remove(bundle + "/Fixture");
  buildLibrary(bundle + "/libneeded.so", "ours", {"-Wl,-soname,libneeded.so"});
  buildLibrary(bundle + "/Fixture", "the plug-in",
               {bundle + "/libneeded.so", "-Wl,-rpath,/usr/lib/none/at/all:$ORIGIN"});
  expectLeftOut(load(bundle), "lacks its principal class");
  EXPECT_THAT(contentOf(journal), StrEq("ours\nthe plug-in\n"));
}

TEST_F(OtherUsers, CannotRedirectALinkInsideThePlugin) {
  if (geteuid() != 0)
    return; // only root can change the owner of a link
  const std::string bundle = copy();
  const std::string open = openFolder("open", 01777);
  fs::rename(bundle + "/Resources", folder.path("resources"));
  fs::create_directory_symlink(folder.path("resources"), open + "/link");
  ASSERT_EQ(lchown((open + "/link").c_str(), kAnotherUser, kAnotherUser), 0);
  fs::create_directory_symlink(open + "/link", bundle + "/Resources");
  expectUnheard(load(bundle), "\"" + open + "/link\" belongs to another user");
}

TEST_F(OtherUsers, CannotHideInAnUnreadableFolder) {
  const std::string bundle = copy();
  chmod((bundle + "/Resources/Info-gnustep.plist").c_str(), 0666);
  chmod((bundle + "/Resources").c_str(), 0311);
  Words words{PRINT_DIALOG, "--batch", "--plugin", bundle, "--ppd", sample("duplex-shift.ppd")};
  if (geteuid() == 0)
    words.insert(words.begin(), {"setpriv", "--bounding-set=-dac_override,-dac_read_search"});
  expectUnheard(runProcess(words, {"FIXTURE_JOURNAL=" + journal}),
                "was not loaded: \"" + bundle + "/Resources\" cannot be examined");
  chmod((bundle + "/Resources").c_str(), 0755);
}

TEST_F(OtherUsers, CannotUseAPathThatDependsOnAnOpenFolder) {
  const std::string open = openFolder();
  fs::rename(copy(), open + "/Copy.plugin");
  const WorkingFolder here(open);
  expectUnheard(load("Copy.plugin"), "other users can modify \"" + open + "\"");
}

} // namespace
