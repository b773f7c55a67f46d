#include "LayoutCheck.hpp"

#include "DrawnRectangles.hpp"
#include "FileContent.hpp"
#include "FilterChain.hpp"
#include "PdfDocument.hpp"
#include "TemporaryData.hpp"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <fcntl.h>
#include <filesystem>
#include <optional>
#include <sstream>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

namespace imageposition {

namespace {

constexpr double kTolerance = 0.1; // points; the image moves in steps of 0.28
constexpr const char *kLayout = "OutputOrder=Normal emit-jcl=false";
constexpr const char *kNeutral = "number-up=1 page-set=all print-scaling=none "
                                 "orientation-requested=3 mirror=false page-border=none "
                                 "OutputOrder=Normal emit-jcl=false";

/// A printer for A4 paper.
constexpr const char *kPrinter = R"ppd(*PPD-Adobe: "4.3"
*FormatVersion: "4.3"
*FileVersion: "1.0"
*LanguageVersion: English
*LanguageEncoding: ISOLatin1
*PCFileName: "CHECK.PPD"
*Product: "(Check)"
*Manufacturer: "Check"
*ModelName: "Check"
*ShortNickName: "Check"
*NickName: "Check"
*PSVersion: "(3010.000) 0"
*LanguageLevel: "3"
*ColorDevice: True
*cupsFilter: "application/vnd.cups-pdf 0 -"
*OpenUI *PageSize: PickOne
*DefaultPageSize: A4
*PageSize A4: ""
*CloseUI: *PageSize
*OpenUI *PageRegion: PickOne
*DefaultPageRegion: A4
*PageRegion A4: ""
*CloseUI: *PageRegion
*DefaultImageableArea: A4
*ImageableArea A4: "18 36 577 806"
*DefaultPaperDimension: A4
*PaperDimension A4: "595 842"
)ppd";

/// An upright page and one that is wider than high, with the same rectangle. Readers find the
/// objects although there is no table of them.
constexpr const char *kDocument = R"(%PDF-1.4
1 0 obj
<< /Type /Catalog /Pages 2 0 R >>
endobj
2 0 obj
<< /Type /Pages /Kids [3 0 R 4 0 R] /Count 2 >>
endobj
3 0 obj
<< /Type /Page /Parent 2 0 R /MediaBox [0 0 595 842] /Contents 5 0 R /Resources << >> >>
endobj
4 0 obj
<< /Type /Page /Parent 2 0 R /MediaBox [0 0 842 595] /Contents 5 0 R /Resources << >> >>
endobj
5 0 obj
<< /Length 19 >>
stream
72 144 100 50 re f

endstream
endobj
trailer
<< /Size 6 /Root 1 0 R >>
%%EOF
)";

struct ExpectedPage {
  double left, top, right, bottom; // of the rectangle, in points, as shown
};

/// Upright paper; the second page is turned onto it, with its left edge at the top or the bottom.
constexpr ExpectedPage kUpright{72, 842 - 194, 172, 842 - 144};
constexpr ExpectedPage kTurned{144, 72, 194, 172};

bool isNear(Point length, double expected) {
  return std::abs(length.count - expected) <= kTolerance;
}

bool isAt(const DrawnPage &page, const ExpectedPage &expected) {
  if (page.rectangles.size() != 1)
    return false;
  const PageRectangle &one = page.rectangles[0];
  return isNear(page.width, 595) && isNear(page.height, 842) && isNear(one.left, expected.left) &&
         isNear(one.top, expected.top) && isNear(one.right, expected.right) &&
         isNear(one.bottom, expected.bottom);
}

bool isAsExpected(const Descriptor &result) try {
  const std::vector<DrawnPage> pages = drawnRectangles(result);
  return pages.size() == 2 && isAt(pages[0], kUpright) && isAt(pages[1], kTurned);
} catch (const PdfTrouble &) {
  return false;
}

bool laysOutAsExpected(const MoverTask &task, Children &children) {
  MoverTask check;
  check.filters = task.filters;
  check.chooser = task.chooser;
  check.user = task.user;
  check.title = "check";
  check.format = "application/pdf";
  const Descriptor printer = temporaryFile(kPrinter), document = temporaryFile(kDocument);
  const Descriptor first = temporaryFile(), second = temporaryFile();
  const auto filters = filtersFor(check, document, children);
  check.options = kLayout;
  if (filters.empty() || runFilters(filters, check, document, printer, first, children) ||
      !isAsExpected(first))
    return false;
  check.options = kNeutral;
  return !runFilters(filters, check, first, printer, second, children) && isAsExpected(second);
}

/// Changes when the filters or the libraries that they use are replaced.
std::string stateOf(const MoverTask &task) {
  std::ostringstream state;
  for (const std::string &path :
       {task.filters, task.filters + "/pdftopdf", task.chooser, std::string("/usr/lib"),
        std::string("/usr/lib64"), std::string(IMAGEPOSITION_LIBRARIES)}) {
    struct stat status {};
    if (stat(path.c_str(), &status) == 0)
      state << path << ' ' << status.st_ino << ' ' << status.st_size << ' ' << status.st_mtim.tv_sec
            << '.' << status.st_mtim.tv_nsec << '\n';
  }
  return state.str();
}

constexpr const char *kGood = "as expected\n";
constexpr const char *kBad = "otherwise\n";

/// None if nothing is remembered of these filters.
std::optional<bool> remembered(const std::string &path, const std::string &state) try {
  const auto content = contentOfFile(path);
  if (content == kGood + state)
    return true;
  return content == kBad + state ? std::optional(false) : std::nullopt;
} catch (const FileTrouble &) {
  return std::nullopt;
}

/// Another process may do so at the same time. If it cannot be written, the check is repeated.
void remember(const std::string &path, const std::string &content) {
  std::error_code ignored;
  std::filesystem::create_directories(std::filesystem::path(path).parent_path(), ignored);
  std::string scratch = path + ".XXXXXX";
  Descriptor file(mkostemp(&scratch[0], O_CLOEXEC));
  const bool isWritten = file.isOpen() && write(file.get(), content.data(), content.size()) ==
                                              static_cast<ssize_t>(content.size());
  if (file.isOpen() && (!isWritten || std::rename(scratch.c_str(), path.c_str()) != 0))
    unlink(scratch.c_str());
}

} // namespace

bool isLayoutAsExpected(const MoverTask &task, Children &children) {
  const std::string state = stateOf(task);
  if (!task.verdict.empty())
    if (const auto known = remembered(task.verdict, state))
      return *known;
  const bool isGood = laysOutAsExpected(task, children);
  if (!task.verdict.empty())
    remember(task.verdict, (isGood ? kGood : kBad) + state);
  return isGood;
}

} // namespace imageposition
