#include "ShiftedPdf.hpp"

#include <qpdf/QPDF.hh>
#include <qpdf/QPDFPageDocumentHelper.hh>
#include <qpdf/QPDFPageObjectHelper.hh>
#include <qpdf/QPDFWriter.hh>

#include <array>
#include <cmath>
#include <cstdio>
#include <ctime>
#include <map>
#include <memory>
#include <utility>
#include <vector>

namespace imageposition {

namespace {

constexpr const char *kMark = "/ImagePosition"; // in the catalogue's page-piece dictionary
constexpr int kDecimals = 4;                    // of a point: less than a thousandth of 0.1 mm

QPDFObjectHandle markIn(QPDF &pdf) {
  QPDFObjectHandle pieces = pdf.getRoot().getKey("/PieceInfo");
  return pieces.isDictionary() ? pieces.getKey(kMark) : QPDFObjectHandle::newNull();
}

std::string now() {
  const std::time_t time = std::time(nullptr);
  std::tm utc{};
  gmtime_r(&time, &utc);
  std::array<char, 32> text{};
  std::strftime(text.data(), text.size(), "D:%Y%m%d%H%M%SZ", &utc);
  return text.data();
}

QPDFObjectHandle arrayOf(const Offset &offset) {
  return QPDFObjectHandle::newArray({QPDFObjectHandle::newInteger(offset.right.count),
                                     QPDFObjectHandle::newInteger(offset.down.count)});
}

void mark(QPDF &pdf, const ShiftPlan &plan) {
  auto applied = QPDFObjectHandle::newDictionary();
  applied.replaceKey("/Front", arrayOf(plan.front));
  applied.replaceKey("/Back", arrayOf(plan.back));
  auto piece = QPDFObjectHandle::newDictionary();
  piece.replaceKey("/LastModified", QPDFObjectHandle::newString(now()));
  piece.replaceKey("/Private", applied);
  QPDFObjectHandle root = pdf.getRoot();
  if (!root.getKey("/PieceInfo").isDictionary())
    root.replaceKey("/PieceInfo", QPDFObjectHandle::newDictionary());
  root.getKey("/PieceInfo").replaceKey(kMark, piece);
}

/// Moves pages; pages that move alike share the streams that do it.
class PageMover {
public:
  explicit PageMover(QPDF &pdf) : pdf_(pdf) {}

  void move(QPDFPageObjectHelper &page, const Offset &offset) {
    if (offset == Offset{})
      return;
    QPDFObjectHandle rotation = page.getAttribute("/Rotate", false);
    QPDFObjectHandle unit = page.getAttribute("/UserUnit", false);
    const Translation by = translationOf(offset, rotation.isInteger() ? rotation.getIntValue() : 0,
                                         unit.isNumber() ? unit.getNumericValue() : 1);
    // QPDF's addPageContents formats a description of each stream, twice a page.
    QPDFObjectHandle contents = page.getObjectHandle().getKey("/Contents");
    std::vector<QPDFObjectHandle> streams{before(by)};
    if (contents.isArray())
      for (QPDFObjectHandle &stream : contents.getArrayAsVector())
        streams.push_back(stream);
    else if (contents.isStream())
      streams.push_back(contents);
    streams.push_back(after());
    page.getObjectHandle().replaceKey("/Contents", QPDFObjectHandle::newArray(streams));
  }

private:
  QPDFObjectHandle before(const Translation &by) {
    const std::string matrix = "q 1 0 0 1 " +
                               QPDFObjectHandle::newReal(by.x.count, kDecimals).unparse() + " " +
                               QPDFObjectHandle::newReal(by.y.count, kDecimals).unparse() + " cm\n";
    const auto known = before_.find(matrix);
    if (known != before_.end())
      return known->second;
    return before_.emplace(matrix, pdf_.newStream(matrix)).first->second;
  }

  QPDFObjectHandle after() {
    if (!after_.isInitialized())
      after_ = pdf_.newStream("\nQ\n");
    return after_;
  }

  QPDF &pdf_;
  std::map<std::string, QPDFObjectHandle> before_;
  QPDFObjectHandle after_;
};

void requireSize(QPDFPageObjectHelper &page) {
  const QPDFObjectHandle::Rectangle box = page.getMediaBox().getArrayAsRectangle();
  if (!(std::abs(box.urx - box.llx) > 0 && std::abs(box.ury - box.lly) > 0)) // also for NaN
    throw PdfTrouble(PdfTrouble::Kind::Damaged, "a page has no size");
}

/// Like the last page, but empty.
void addBlankPage(QPDF &pdf, QPDFPageObjectHelper &last) {
  auto page = QPDFObjectHandle::newDictionary();
  page.replaceKey("/Type", QPDFObjectHandle::newName("/Page"));
  page.replaceKey("/Resources", QPDFObjectHandle::newDictionary());
  for (const char *const name : {"/MediaBox", "/Rotate", "/UserUnit"})
    if (QPDFObjectHandle value = last.getAttribute(name, true); !value.isNull())
      page.replaceKey(name, value.shallowCopy());
  QPDFPageDocumentHelper(pdf).addPage(pdf.makeIndirectObject(page), false);
}

class Reporter : public QPDFWriter::ProgressReporter {
public:
  explicit Reporter(const ShiftProgress &progress) : progress_(progress) {}
  void reportProgress(int percent) override { progress_(percent); }

private:
  ShiftProgress progress_;
};

void write(QPDF &pdf, const Descriptor &to, const ShiftProgress &progress) {
  const auto stream = streamOf(to, "wb");
  QPDFWriter writer(pdf);
  writer.setOutputFile("result", stream.get(), false);
  writer.setStreamDataMode(qpdf_s_preserve);
  if (progress)
    writer.registerProgressReporter(std::make_shared<Reporter>(progress));
  writer.write();
  if (std::fflush(stream.get()) != 0)
    throw PdfTrouble(PdfTrouble::Kind::Unwritable, "the disk is full");
}

} // namespace

std::size_t shiftPages(const Descriptor &from, const Descriptor &to, const ShiftPlan &plan,
                       const ShiftProgress &progress) {
  std::size_t count = 0;
  withPdf(from, [&](QPDF &pdf) {
    if (plan.isMoving() && !plan.isMovedAgain && !markIn(pdf).isNull())
      throw PdfTrouble(PdfTrouble::Kind::MovedBefore, "the image was moved before");
    auto pages = QPDFPageDocumentHelper(pdf).getAllPages();
    if (pages.empty())
      throw PdfTrouble(PdfTrouble::Kind::Damaged, "there are no pages");
    PageMover mover(pdf);
    for (std::size_t i = 0; i < pages.size(); i++) {
      requireSize(pages[i]);
      mover.move(pages[i], plan.offsetOf(sideOf(plan.order, i)));
    }
    const bool isPadded = plan.isPadded && pages.size() % 2 != 0;
    if (isPadded)
      addBlankPage(pdf, pages.back());
    if (plan.isMoving())
      mark(pdf, plan);
    write(pdf, to, progress);
    count = pages.size() + (isPadded ? 1 : 0);
  });
  return count;
}

bool isShifted(const Descriptor &file) {
  bool isMarked = false;
  withPdf(file, [&](QPDF &pdf) { isMarked = !markIn(pdf).isNull(); });
  return isMarked;
}

void requirePermission(const Descriptor &file) {
  withPdf(file, [](QPDF &pdf) { requirePermission(pdf); });
}

} // namespace imageposition
