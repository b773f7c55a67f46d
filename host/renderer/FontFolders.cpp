#include "FontFolders.hpp"

#include <fontconfig/fontconfig.h>

namespace imageposition {

std::vector<std::string> prepareFonts() {
  std::vector<std::string> folders{"/usr/share/poppler", "/usr/local/share/poppler"};
  if (FcInit() == FcFalse)
    return folders;
  FcStrList *const list = FcConfigGetFontDirs(nullptr);
  if (list == nullptr)
    return folders;
  while (const FcChar8 *const folder = FcStrListNext(list))
    folders.emplace_back(reinterpret_cast<const char *>(folder));
  FcStrListDone(list);
  return folders;
}

} // namespace imageposition
