// Moved jobs on queues of every kind, compared with those of lp.
#include "DriverlessPrinter.hpp"
#include "ForbiddingPdf.hpp"
#include "FreePort.hpp"
#include "MovedJobFixture.hpp"

#include <gmock/gmock.h>

namespace imageposition {

namespace {

using namespace imageposition::test;
using testing::HasSubstr;
using testing::Not;

constexpr const char *kThroughGhostscript =
    "*cupsFilter: \"application/vnd.cups-pdf 0 foomatic-rip\"\n*FoomaticIDs: Sample ps2write\n"
    "*FoomaticRIPCommandLine: \"gs -q -dBATCH -dNOPAUSE -dSAFER -sDEVICE=ps2write "
    "-sOutputFile=- -\"\n";

/// What makes the device of a queue forward jobs without delay.
constexpr const char *kAtOnce = "?waitjob=false&snmp=false";

const Words kTwoSided{"-o", "Duplex=DuplexNoTumble"};

/// A second CUPS, to which queues of the first one forward their jobs.
class PrintServer {
public:
  PrintServer() : port_(std::to_string(freePort())), cups_("Listen 127.0.0.1:" + port_ + "\n") {}

  KeptJobs &jobs() noexcept { return cups_; }
  std::string uriOf(const std::string &queue) const {
    return "ipp://localhost:" + port_ + "/printers/" + queue + "";
  }

private:
  const std::string port_;
  KeptJobs cups_;
};

/// CUPS describes the paper of a server's queue to the hundredth of a millimetre.
std::string withExactPaper(std::string ppd) {
  const std::string rounded = "*PaperDimension A4/A4: \"595 842\"";
  return ppd.replace(ppd.find(rounded), rounded.size(),
                     "*PaperDimension A4/A4: \"595.2756 841.8898\"");
}

class Queues : public MovedJobFixture {
protected:
  static void SetUpTestSuite() {
    startCups();
    server = std::make_unique<PrintServer>();
    ASSERT_TRUE(server->jobs().cups().isRunning()) << server->jobs().cups().log();
    ASSERT_EQ(server->jobs().addQueue("office", withExactPaper(ppdWith(kTakesPdf))).status, 0);
    ASSERT_EQ(server->jobs().addQueue("moving", ppdWith(kTakesPdf, "duplex-shift")).status, 0);
  }
  static void TearDownTestSuite() {
    MovedJobFixture::TearDownTestSuite();
    server.reset();
  }

  /// Both jobs of `expectMoved` where the server's printer gets them.
  void expectMovedOnServer(const std::string &queue, const Words &options,
                           const std::string &document, const Words &offsets = kOffsets) {
    const auto theirs = lp(queue, options, {document});
    ASSERT_EQ(theirs.status, 0) << testing::PrintToString(theirs);
    const std::string direct = server->jobs().contentOf(++forwarded);
    const auto ours = print(queue, options, {document}, offsets);
    ASSERT_EQ(ours.status, 0) << testing::PrintToString(ours);
    expectMoved(direct, server->jobs().contentOf(++forwarded));
    const std::string received = server->jobs().optionsOf(forwarded);
    EXPECT_THAT(received, Not(HasSubstr("Margin=")));
    EXPECT_THAT(received, HasSubstr("nocom.morva.printsettings.19AImagePositionEnable"));
  }

  static inline std::unique_ptr<PrintServer> server;
  static inline int forwarded = 0; // jobs of the server
};

const std::vector<Words> kLayouts{{}, {"-o", "number-up=2"}, {"-o", "landscape"}};

TEST_F(Queues, MoveTheImageThroughFoomaticAndGhostscript) {
  addQueue("foomatic", kThroughGhostscript);
  for (const Words &options : kLayouts)
    for (const std::string &document : {numbered(3), mixed()}) {
      SCOPED_TRACE(testing::PrintToString(options) + document);
      const auto ours = print("foomatic", options, {document});
      ASSERT_EQ(ours.status, 0) << testing::PrintToString(ours);
      const auto moved = boxesInPostScript(kept->contentOf(ours));
      const auto direct = boxesInPostScript(kept->contentOf(lp("foomatic", options, {document})));
      expectMovedBoxes(direct, moved, kTolerance);
    }
}

TEST_F(Queues, MoveTheImageOnADriverlessPrinter) {
  const DriverlessPrinter printer;
  ASSERT_TRUE(printer.isReady() && printer.addQueue(kept->cups(), "driverless"));
  int printed = 0;
  for (Words options : kLayouts) {
    SCOPED_TRACE(testing::PrintToString(options));
    options.insert(options.end(), kTwoSided.begin(), kTwoSided.end());
    for (const std::string &document : {numbered(3), mixed()}) {
      ASSERT_EQ(lp("driverless", options, {document}).status, 0);
      const std::string direct = printer.documentOf(++printed);
      const auto ours = print("driverless", options, {document});
      ASSERT_EQ(ours.status, 0) << testing::PrintToString(ours);
      expectMoved(direct, printer.documentOf(++printed));
    }
  }
}

TEST_F(Queues, MoveTheImageOnceBeforeAJobIsForwarded) {
  addQueue("forwarding", kTakesPdf, {"-v", server->uriOf("office") + kAtOnce});
  for (const Words &options : kLayouts)
    for (const std::string &document : {numbered(3), mixed()}) {
      SCOPED_TRACE(testing::PrintToString(options) + document);
      expectMovedOnServer("forwarding", options, document);
    }
}

TEST_F(Queues, MoveTheImageOnceBeforeAJobIsForwardedToADriverThatMovesImages) {
  addQueue("forwarding-to-driver", kTakesPdf, {"-v", server->uriOf("moving") + kAtOnce});
  expectMovedOnServer("forwarding-to-driver", {}, numbered(3));
  ASSERT_TRUE(kept->cups().addDriverlessQueue("shared-driver", server->uriOf("moving")));
  expectMovedOnServer("shared-driver", kTwoSided, numbered(3));
}

TEST_F(Queues, MoveTheImageOfWhatAnotherServerLaysOut) {
  ASSERT_TRUE(kept->cups().addDriverlessQueue("shared", server->uriOf("office")));
  for (Words options : kLayouts) {
    options.insert(options.end(), kTwoSided.begin(), kTwoSided.end());
    for (const std::string &document : {numbered(3), mixed()}) {
      SCOPED_TRACE(testing::PrintToString(options) + document);
      expectMovedOnServer("shared", options, document);
    }
  }
}

TEST_F(Queues, MoveTheImageAsTheirDefaultsSay) {
  Words defaults{"-o", "number-up-default=2",
                 "-o", "LeftRightMargin-default=25",
                 "-o", "TopBottomMargin-default=-7",
                 "-o", "BackLeftRightMargin-default=-30",
                 "-o", "BackTopBottomMargin-default=14",
                 "-o", "com.morva.printsettings.19AImagePositionEnable-default=True"};
  addQueue("defaults", kTakesPdf, defaults);
  expectMoved("defaults", {}, {numbered(5)}, {});
  defaults.insert(defaults.end(), {"-v", server->uriOf("moving") + kAtOnce});
  addQueue("forwarding-defaults", kTakesPdf, defaults);
  const auto sent = print("forwarding-defaults", {}, {numbered(5)}, {});
  ASSERT_EQ(sent.status, 0) << testing::PrintToString(sent);
  ASSERT_NE(server->jobs().contentOf(++forwarded), "");
  const std::string received = server->jobs().optionsOf(forwarded);
  for (const char *const offset :
       {"LeftRightMargin=0", "TopBottomMargin=0", "BackLeftRightMargin=0", "BackTopBottomMargin=0",
        "nocom.morva.printsettings.19AImagePositionEnable"})
    EXPECT_THAT(" " + received, HasSubstr(" " + std::string(offset) + " "));
}

TEST_F(Queues, MoveTheImageAsTheUsersOptionsSay) {
  addQueue("lpoptions", kTakesPdf);
  Words words{"lpoptions", "-p", "lpoptions"};
  words.insert(words.end(), kOffsets.begin(), kOffsets.end());
  ASSERT_EQ(kept->cups().run(words).status, 0);
  expectMoved("lpoptions", {}, {numbered(3)}, {});
}

TEST_F(Queues, WarnOfDocumentsThatCupsWillNotPrintIfTheirDriverMovesTheImage) {
  ASSERT_EQ(kept->addQueue("moving", ppdWith(kTakesPdf, "duplex-shift")).status, 0);
  const std::string secret = folder_.write("secret.pdf", pdfWithPassword());
  const std::string forbidden = folder_.write("forbidden.pdf", pdfThatForbidsPrinting());
  const std::string damaged = folder_.write("damaged.pdf", pdfWithNumberedPages(1).substr(0, 200));
  const auto sent = print("moving", {"-H", "hold"}, {secret, numbered(1), forbidden, damaged});
  EXPECT_EQ(sent.status, 0) << testing::PrintToString(sent);
  EXPECT_THAT(sent.errors,
              HasSubstr("\"secret.pdf\" is protected by a password: CUPS accepts it, but prints "
                        "nothing. Save a copy without it, and print that.\n"
                        "\"forbidden.pdf\" does not allow printing: CUPS accepts it, but prints "
                        "nothing.\n"
                        "\"damaged.pdf\" is damaged: CUPS accepts it, but may print nothing. Save "
                        "the document again, then print it.\n"));
  EXPECT_EQ(print("moving", {"-H", "hold", "-s"}, {secret}).errors, "");
  EXPECT_THAT(print("moving", {"-H", "hold", "-o", "raw"}, {damaged}).errors,
              Not(HasSubstr("damaged")));
  EXPECT_THAT(print("moving", {"-H", "hold"}, {numbered(1)}).errors, Not(HasSubstr("CUPS")));
  kept->cups().run({"cancel", "-a", "-x"});
}

TEST_F(Queues, AreRefusedWithoutADescription) {
  ASSERT_EQ(kept->cups().run({"lpadmin", "-p", "raw", "-E", "-v", kept->uri(), "-m", "raw"}).status,
            0);
  const auto refused = print("raw", {}, {numbered(1)});
  EXPECT_NE(refused.status, 0);
  EXPECT_THAT(refused.errors, HasSubstr("no printer description for the queue \"raw\""));
}

} // namespace

} // namespace imageposition
