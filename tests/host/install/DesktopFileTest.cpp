// The desktop entry, and what software centres show.
#include "ProcessRun.hpp"
#include "TemporaryFolder.hpp"

#include <gmock/gmock.h>

namespace {

using namespace imageposition::test;
using testing::HasSubstr;

const std::string kFile = IMAGEPOSITION_INSTALL "/print-dialog.desktop";

TEST(DesktopFile, IsValid) {
  const auto result = runProcess({"desktop-file-validate", kFile});
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.output + result.errors, "");
}

TEST(DesktopFile, HasAValidDescriptionForSoftwareCentres) {
  const auto result = runProcess({"appstreamcli", "validate", "--no-net", "--explain",
                                  IMAGEPOSITION_INSTALL "/com.morva.PrintDialog.metainfo.xml"});
  EXPECT_EQ(result.status, 0) << testing::PrintToString(result);
}

TEST(DesktopFile, IsInTheLanguagesOfThePanel) {
  const std::string text = contentOf(kFile);
  for (const auto &entry : std::filesystem::directory_iterator(IMAGEPOSITION_RESOURCES)) {
    if (entry.path().extension() != ".lproj")
      continue;
    std::string language = entry.path().stem().string();
    language = language == "zh-Hans" ? "zh_CN" : language;
    const std::string mark = language == "en" ? "" : "[" + language + "]";
    for (const char *key : {"\nName", "\nComment"})
      EXPECT_THAT(text, HasSubstr(key + mark + "="));
  }
}

TEST(DesktopFile, ListsTheTypesThatCupsPrints) {
  const std::string text = contentOf(kFile);
  for (const char *type :
       {"application/pdf;", "application/postscript;", "image/png;", "image/jpeg;", "text/plain;"})
    EXPECT_THAT(text, HasSubstr(type));
}

} // namespace
