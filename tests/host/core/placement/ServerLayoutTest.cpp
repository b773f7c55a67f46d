#include "ServerLayout.hpp"

#include <gtest/gtest.h>

namespace imageposition {

namespace {

const std::string kPassingOn =
    "*PPD-Adobe: \"4.3\"\n*cupsFilter2: \"application/pdf application/pdf 0 -\"\n";

TEST(ServerLayout, IsThatOfQueuesThatPassPdfOn) {
  EXPECT_TRUE(isLaidOutByServer(kPassingOn));
  EXPECT_FALSE(isLaidOutByServer(
      "*PPD-Adobe: \"4.3\"\n*cupsFilter2: \"application/vnd.cups-pdf application/pdf 10 -\"\n"));
  EXPECT_FALSE(isLaidOutByServer(""));
}

TEST(ServerLayout, TurnsWidePagesAsTheServerSays) {
  const std::string description = "*PPD-Adobe: \"4.3\"\n*PageSize A4: \"\"\n";
  const std::string turned =
      "*PPD-Adobe: \"4.3\"\n*LandscapeOrientation: Plus90\n*PageSize A4: \"\"\n";
  const struct {
    const char *server;
    const std::string &result;
  } rows[] = {
      {"*PPD-Adobe: \"4.3\"\n*LandscapeOrientation: Plus90\n", turned},
      {"*PPD-Adobe: \"4.3\"\r\n*LandscapeOrientation:   Plus90 \r\n", turned},
      {"*PPD-Adobe: \"4.3\"\n*LandscapeOrientation: Any\n", description},
      {"*PPD-Adobe: \"4.3\"\n*LandscapeOrientation: Plus90\"\n*X: \"\"\n", description},
      {"*PPD-Adobe: \"4.3\"\n", description},
      {"", description},
  };
  for (const auto &row : rows)
    EXPECT_EQ(withLandscapeOf(row.server, description), row.result) << row.server;
  EXPECT_EQ(withLandscapeOf("\n*LandscapeOrientation: Minus90\n", turned), turned);
  EXPECT_EQ(withLandscapeOf("\n*LandscapeOrientation: Minus90\n", ""), "");
}

TEST(ServerLayout, IsUnknownIfTheServerCannotBeAsked) {
  const auto wait = [] { return true; };
  for (const char *const device :
       {"", "nonsense", "usb://Sample/Printer", "dnssd://office._ipp._tcp.local/cups",
        "ipp://localhost:1/printers/office"})
    EXPECT_EQ(withServerLayout(kPassingOn, device, wait), kPassingOn) << device;
}

} // namespace

} // namespace imageposition
