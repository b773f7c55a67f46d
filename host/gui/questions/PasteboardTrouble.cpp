#include "PasteboardTrouble.hpp"

#include "QuestionTexts.hpp"

#include <cstdlib>
#include <sys/stat.h>
#include <unistd.h>

namespace imageposition {

namespace {

/// As GNUstep chooses it; TMPDIR does not count.
std::string folderForTemporaryFiles() {
  for (const char *name : {"TEMP", "TMP"})
    if (const char *const folder = std::getenv(name))
      return folder;
  return "/tmp";
}

} // namespace

std::string pasteboardTrouble(const std::string &raised) {
  const std::string folder = folderForTemporaryFiles();
  const std::string own = folder + "/GNUstepSecure" + std::to_string(geteuid());
  struct stat status {};
  if (lstat(own.c_str(), &status) == 0 && status.st_uid != geteuid())
    return messages::pasteboardFolderOfOthers(own);
  if (access((folder + "/.").c_str(), W_OK | X_OK) != 0)
    return messages::pasteboardFolderUnusable(folder);
  return messages::pasteboardUnreachable(raised);
}

} // namespace imageposition
