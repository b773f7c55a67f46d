#include "Folder.hpp"

#include "FileContent.hpp"
#include "TemporaryFolder.hpp"

#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace imageposition {

void PrintTo(const FolderEntry &entry, std::ostream *stream) {
  *stream << entry.name << (entry.isFolder ? "/" : "");
}

namespace {

using imageposition::test::TemporaryFolder;
using testing::ElementsAre;

TEST(Folder, ListsFoldersFirstAndIgnoresCase) {
  const TemporaryFolder folder;
  for (const char *name : {"beta.pdf", "Alpha.pdf", "alpha.pdf", ".hidden"})
    folder.write(name, "");
  for (const char *name : {"Zoo", "archive", ".config"})
    std::filesystem::create_directory(folder.path(name));
  EXPECT_THAT(contentOfFolder(folder.path("")),
              ElementsAre(FolderEntry{"archive", true}, FolderEntry{"Zoo", true},
                          FolderEntry{"Alpha.pdf", false}, FolderEntry{"alpha.pdf", false},
                          FolderEntry{"beta.pdf", false}));
}

TEST(Folder, FollowsLinksAndOmitsWhatCannotBePrinted) {
  const TemporaryFolder folder;
  folder.write("letter.pdf", "");
  std::filesystem::create_symlink("letter.pdf", folder.path("link.pdf"));
  std::filesystem::create_symlink(".", folder.path("here"));
  std::filesystem::create_symlink("nowhere", folder.path("broken"));
  std::filesystem::create_symlink("/dev/null", folder.path("device"));
  EXPECT_THAT(contentOfFolder(folder.path("")),
              ElementsAre(FolderEntry{"here", true}, FolderEntry{"letter.pdf", false},
                          FolderEntry{"link.pdf", false}));
}

TEST(Folder, ThatCannotBeReadSaysWhy) {
  const TemporaryFolder folder;
  folder.write("letter.pdf", "");
  for (const char *name : {"missing", "letter.pdf"})
    EXPECT_THROW(contentOfFolder(folder.path(name)), FileTrouble) << name;
}

TEST(TypedPath, IsReadAsTheUserMeansIt) {
  const struct {
    const char *typed, *home, *path;
  } rows[] = {
      {"a.pdf", "/home/me", "/srv/a.pdf"},
      {" a b.pdf\n", "/home/me", "/srv/a b.pdf"},
      {"../a.pdf", "/home/me", "/a.pdf"},
      {"sub/", "/home/me", "/srv/sub"},
      {"./sub//a.pdf", "/home/me", "/srv/sub/a.pdf"},
      {"/tmp/a.pdf", "/home/me", "/tmp/a.pdf"},
      {"/", "/home/me", "/"},
      {"..", "/home/me", "/"},
      {"../../..", "/home/me", "/"},
      {".", "/home/me", "/srv"},
      {"~", "/home/me", "/home/me"},
      {"~/a.pdf", "/home/me", "/home/me/a.pdf"},
      {"~a.pdf", "/home/me", "/srv/~a.pdf"},
      {"~/a.pdf", "", "/srv/~/a.pdf"},
      {" ", "/home/me", ""},
  };
  for (const auto &row : rows)
    EXPECT_EQ(pathFrom("/srv", row.typed, row.home), row.path) << row.typed;
}

} // namespace

} // namespace imageposition
