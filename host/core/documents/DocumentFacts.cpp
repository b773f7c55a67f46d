#include "DocumentFacts.hpp"

#include <cmath>
#include <iomanip>
#include <locale>
#include <sstream>

namespace imageposition {

namespace {

constexpr double kTolerance = 5;       // points, as CUPS matches sizes
constexpr double kLargestSize = 1e6;   // points
constexpr int kMostPages = 10'000'000; // more than any file has that is read in seconds

bool isNear(Point left, Point right) noexcept {
  return std::abs(left.count - right.count) <= kTolerance;
}

bool isLength(double points) { return points > 0 && points <= kLargestSize; }

} // namespace

bool PaperSize::isSame(const PaperSize &other) const noexcept {
  return (isNear(width, other.width) && isNear(length, other.length)) ||
         (isNear(width, other.length) && isNear(length, other.width));
}

std::string writeFacts(const DocumentFacts &facts) {
  std::ostringstream line;
  line.imbue(std::locale::classic());
  line << std::setprecision(9) << facts.pages;
  if (facts.paper)
    line << ' ' << facts.paper->width.count << ' ' << facts.paper->length.count;
  line << '\n';
  return line.str();
}

std::optional<DocumentFacts> readFacts(std::string_view line) {
  if (line.empty() || line.back() != '\n')
    return std::nullopt;
  std::istringstream words{std::string(line)};
  words.imbue(std::locale::classic());
  DocumentFacts facts;
  if (!(words >> facts.pages) || facts.pages < 1 || facts.pages > kMostPages)
    return std::nullopt;
  PaperSize paper;
  if ((words >> std::ws).eof())
    return facts;
  if (!(words >> paper.width.count >> paper.length.count) || !(words >> std::ws).eof() ||
      !isLength(paper.width.count) || !isLength(paper.length.count))
    return std::nullopt;
  facts.paper = paper;
  return facts;
}

std::string writeDefect(DocumentDefect defect) {
  switch (defect) {
  case DocumentDefect::Password:
    return "password\n";
  case DocumentDefect::Forbidden:
    return "forbidden\n";
  case DocumentDefect::Damaged:
    break;
  }
  return "damaged\n";
}

std::optional<DocumentDefect> readDefect(std::string_view line) {
  for (const auto defect :
       {DocumentDefect::Password, DocumentDefect::Forbidden, DocumentDefect::Damaged})
    if (line == writeDefect(defect))
      return defect;
  return std::nullopt;
}

} // namespace imageposition
