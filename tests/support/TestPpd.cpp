#include "TestPpd.h"

#include <cstdio>
#include <stdexcept>

// libcups has deprecated its PPD functions, but the plug-in's printers have PPDs.
#pragma GCC diagnostic ignored "-Wdeprecated-declarations"

namespace imageposition::test {
namespace {

constexpr const char *kMinimal = R"PPD(*PPD-Adobe: "4.3"
*FormatVersion: "4.3"
*FileVersion: "1.0"
*LanguageVersion: English
*LanguageEncoding: ISOLatin1
*PCFileName: "TEST.PPD"
*Manufacturer: "Test"
*Product: "(Test)"
*ModelName: "Test"
*ShortNickName: "Test"
*NickName: "Test"
*PSVersion: "(3010.000) 0"
*LanguageLevel: "3"
*ColorDevice: False
*DefaultColorSpace: Gray
*FileSystem: False
*Throughput: "1"
*OpenUI *PageSize/Page: PickOne
*DefaultPageSize: A4
*PageSize A4/A4: ""
*CloseUI: *PageSize
*OpenUI *PageRegion/Page: PickOne
*DefaultPageRegion: A4
*PageRegion A4/A4: ""
*CloseUI: *PageRegion
*DefaultImageableArea: A4
*ImageableArea A4/A4: "18 18 577 824"
*DefaultPaperDimension: A4
*PaperDimension A4/A4: "595 842"
)PPD";

} // namespace

TestPpd::TestPpd(const std::vector<std::string> &lines) {
  std::FILE *file = std::tmpfile();
  if (file == nullptr)
    throw std::runtime_error("cannot make a temporary file");
  std::fputs(kMinimal, file);
  for (const std::string &line : lines)
    std::fprintf(file, "%s\n", line.c_str());
  std::rewind(file);
  ppd_ = ppdOpen(file);
  std::fclose(file);
  if (ppd_ == nullptr) {
    int line = 0;
    const ppd_status_t status = ppdLastError(&line);
    throw std::runtime_error("line " + std::to_string(line) +
                             " of the test's PPD: " + ppdErrorString(status));
  }
  ppdMarkDefaults(ppd_);
}

TestPpd::~TestPpd() { ppdClose(ppd_); }

void TestPpd::mark(const std::string &option, const std::string &choice) {
  ppdMarkOption(ppd_, option.c_str(), choice.c_str());
}

std::vector<std::string> TestPpd::option(const std::string &keyword,
                                         const std::vector<std::string> &choices) {
  std::vector<std::string> lines = {"*OpenUI *" + keyword + ": PickOne",
                                    "*Default" + keyword + ": " + choices.at(0)};
  for (const std::string &choice : choices)
    lines.push_back("*" + keyword + " " + choice + ": \"\"");
  lines.push_back("*CloseUI: *" + keyword);
  return lines;
}

} // namespace imageposition::test
