// Alignment sheets on their whole way: printed, read, and corrected, on a printer with a known
// error.
#include "DriverlessPrinter.hpp"
#include "MovedJobFixture.hpp"
#include "PrintedSheet.hpp"

#include "CupsHandles.hpp"
#include "PreviewGeometry.hpp"

#include <cmath>
#include <utility>

namespace imageposition {

namespace {

using namespace imageposition::test;

/// By how much the printer displaces the back, in millimetres, as its reader sees it.
constexpr double kRight = 1.73, kDown = -0.38;
constexpr double kMostLeft = 0.05 + 0.012; // half a tenth, and a rendered dot's half

struct Row {
  const char *queue;
  const char *duplex;
};

void PrintTo(const Row &row, std::ostream *stream) { *stream << row.queue << ' ' << row.duplex; }

class PrintedSheets : public MovedJobFixture, public testing::WithParamInterface<Row> {
protected:
  static void SetUpTestSuite() {
    startCups();
    addQueue("office", kTakesPdf);
    printer = std::make_unique<DriverlessPrinter>();
    ASSERT_TRUE(printer->isReady() && printer->addQueue(kept->cups(), "driverless"));
  }
  static void TearDownTestSuite() {
    MovedJobFixture::TearDownTestSuite();
    printer.reset();
  }

  void SetUp() override {
    runProcess({PRINT_DIALOG, "--delete-alignments", GetParam().queue}, kept->cups().environment());
  }

  ProcessResult align(const Words &more) {
    Words words{PRINT_DIALOG, "--align", "-d", GetParam().queue};
    for (const Words &part : {options_, more})
      words.insert(words.end(), part.begin(), part.end());
    auto result = runProcess(words, kept->cups().environment());
    EXPECT_EQ(result.status, 0) << testing::PrintToString(result);
    return result;
  }

  /// What the printer gets of a job.
  std::string received(const ProcessResult &sent) {
    return isDriverless_ ? printer->documentOf(++printed) : kept->contentOf(sent);
  }

  SheetLayout layout() const {
    const std::string description =
        kept->cups().root() + "/ppd/" + GetParam().queue + std::string(".ppd");
    const PpdFile ppd(ppdOpenFile(description.c_str()));
    ppdMarkDefaults(ppd.get());
    ppdMarkOption(ppd.get(), "PageSize", "A4");
    ppdMarkOption(ppd.get(), "Duplex", GetParam().duplex);
    const PreviewRequest request = readPreviewRequest({}, ppd.get());
    return *layOutSheet(request.page, request.turning);
  }

  static void expectTogether(const PrintedSheet &sheet) {
    for (int i = 0; i < kVernierCount; i++)
      EXPECT_NEAR(sheet.back(i).zero, sheet.front(i).zero, kMostLeft) << i;
  }

  const Words options_{"-o", "PageSize=A4", "-o", std::string("Duplex=") + GetParam().duplex};
  const bool isDriverless_ = GetParam().queue == std::string("driverless");
  static inline std::unique_ptr<DriverlessPrinter> printer;
  static inline int printed = 0; // jobs of the driverless printer
};

INSTANTIATE_TEST_SUITE_P(Queues, PrintedSheets,
                         testing::Values(Row{"office", "DuplexNoTumble"},
                                         Row{"office", "DuplexTumble"},
                                         Row{"driverless", "DuplexNoTumble"},
                                         Row{"driverless", "DuplexTumble"}));

std::string wordFor(const SheetReading &reading) {
  std::string word;
  for (const TenthMillimetre length :
       {reading.first.right, reading.first.down, reading.second.right, reading.second.down})
    word += (word.empty() ? "" : ",") + std::to_string(static_cast<double>(length.count) / 10);
  return word;
}

TEST_P(PrintedSheets, GiveTheNextJobOffsetsThatBringItsSidesTogether) {
  constexpr int kSecondSheet = 3; // the number of its front
  const PrintedSheet before(layout(), received(align({})), kSecondSheet);
  const std::string reading = wordFor(before.reading(kRight, kDown));
  align({"--reading", reading, "--reading", reading, "--reading", reading});

  expectTogether({layout(), received(align({})), kSecondSheet, {kRight, kDown}});

  front_ = {};
  back_ = {{-17}, {4}};
  const Words document{numbered(4)};
  const std::string direct = received(lp(GetParam().queue, options_, document));
  expectMoved(direct, received(print(GetParam().queue, options_, document, {})));
}

} // namespace

} // namespace imageposition
