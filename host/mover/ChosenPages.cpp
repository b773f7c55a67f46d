#include "ChosenPages.hpp"

#include "PdfDocument.hpp"

#include <qpdf/QPDF.hh>
#include <qpdf/QPDFObjGen.hh>
#include <qpdf/QPDFWriter.hh>

#include <algorithm>
#include <cstdio>
#include <iterator>
#include <map>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace imageposition {

namespace {

/// What in the catalogue changes how pages look, or marks the document. The rest may lead to other
/// pages.
constexpr const char *kKept[] = {"/AcroForm", "/Extensions", "/OCProperties", "/PieceInfo",
                                 "/Version"};

constexpr const char *kNoTree = "the page tree is not a tree";

/// What a page can inherit from a node of the page tree above it.
constexpr const char *kInherited[] = {"/Resources", "/MediaBox", "/CropBox", "/Rotate"};

/// Some catalogues name another node than the root; readers follow its parents.
QPDFObjectHandle rootOf(QPDF &pdf) {
  QPDFObjectHandle node = pdf.getRoot().getKey("/Pages");
  std::set<QPDFObjGen> seen;
  while (node.isDictionary() && node.hasKey("/Parent")) {
    if (!seen.insert(node.getObjGen()).second)
      throw PdfTrouble(PdfTrouble::Kind::Damaged, kNoTree);
    node = node.getKey("/Parent");
  }
  return node;
}

/// Walks the page tree up to the last chosen page. QPDF's own list reads all pages, which takes a
/// tenth of a second for thousands.
class ChosenOnly {
public:
  ChosenOnly(QPDF &pdf, const PageRanges &pages) : pdf_(pdf), ranges_(pages.ranges()) {
    visit(rootOf(pdf), {});
  }
  std::vector<QPDFObjectHandle> pages() const { return pages_; }

private:
  using Attributes = std::map<std::string, QPDFObjectHandle>;

  static bool isNode(QPDFObjectHandle &object) {
    return object.isDictionary() && object.hasKey("/Kids");
  }

  void visit(QPDFObjectHandle node, Attributes inherited) {
    const bool isLoop = node.isIndirect() && !visited_.insert(node.getObjGen()).second;
    if (!isNode(node) || isLoop)
      throw PdfTrouble(PdfTrouble::Kind::Damaged, kNoTree);
    for (const char *const name : kInherited)
      if (node.hasKey(name))
        inherited[name] = node.getKey(name);
    QPDFObjectHandle kids = node.getKey("/Kids");
    for (int i = 0; i < kids.getArrayNItems() && count_ < ranges_.back().last; i++) {
      QPDFObjectHandle kid = kids.getArrayItem(i);
      if (isNode(kid))
        visit(kid, inherited);
      else if (isChosen(++count_))
        take(kid, inherited);
    }
  }

  bool isChosen(int page) const {
    return std::any_of(ranges_.begin(), ranges_.end(), [=](const PageRange &range) {
      return range.first <= page && page <= range.last;
    });
  }

  void take(QPDFObjectHandle page, const Attributes &inherited) {
    if (!page.isDictionary())
      throw PdfTrouble(PdfTrouble::Kind::Damaged, "a page is not a dictionary");
    if (!page.isIndirect() || !taken_.insert(page.getObjGen()).second)
      page = pdf_.makeIndirectObject(page.shallowCopy());
    for (const auto &[name, value] : inherited)
      if (!page.hasKey(name))
        page.replaceKey(name, value);
    pages_.push_back(page);
  }

  QPDF &pdf_;
  const std::vector<PageRange> &ranges_; // sorted
  int count_ = 0;                        // of the pages so far
  std::set<QPDFObjGen> visited_, taken_;
  std::vector<QPDFObjectHandle> pages_;
};

/// QPDF reads all pages of the tree before it copies an object, and copies what a catalogue leads
/// to.
void keepOnly(QPDF &pdf, const std::vector<QPDFObjectHandle> &pages) {
  QPDFObjectHandle root = rootOf(pdf);
  for (const char *const name : kInherited)
    root.removeKey(name); // the pages have them
  root.replaceKey("/Type", QPDFObjectHandle::newName("/Pages"));
  root.replaceKey("/Count", QPDFObjectHandle::newInteger(static_cast<long long>(pages.size())));
  root.replaceKey("/Kids", QPDFObjectHandle::newArray(pages));
  for (QPDFObjectHandle page : pages) {
    page.replaceKey("/Type", QPDFObjectHandle::newName("/Page"));
    page.replaceKey("/Parent", root);
    page.removeKey("/B"); // article threads
  }
  QPDFObjectHandle catalogue = pdf.getRoot();
  for (const std::string &key : catalogue.getKeys())
    if (std::find(std::begin(kKept), std::end(kKept), key) == std::end(kKept))
      catalogue.removeKey(key);
  catalogue.replaceKey("/Type", QPDFObjectHandle::newName("/Catalog"));
  catalogue.replaceKey("/Pages", root);
}

/// To an empty document: QPDF reads all objects of a document before it adds one or writes it. What
/// leads from a page to one that is copied later becomes null.
void copy(QPDF &pdf, const std::vector<QPDFObjectHandle> &pages, QPDF &to) {
  to.setSuppressWarnings(true);
  to.emptyPDF();
  for (const QPDFObjectHandle &page : pages)
    to.addPage(page, false);
  QPDFObjectHandle catalogue = to.copyForeignObject(pdf.getRoot());
  for (const std::string &key : catalogue.getKeys())
    if (key != "/Pages")
      to.getRoot().replaceKey(key, catalogue.getKey(key));
}

} // namespace

std::size_t choosePages(const Descriptor &from, const Descriptor &to, const PageRanges &pages) {
  std::size_t count = 0;
  withPdf(from, [&](QPDF &pdf) {
    requirePermission(pdf);
    std::vector<QPDFObjectHandle> kept = ChosenOnly(pdf, pages).pages();
    if (kept.empty())
      throw PdfTrouble(PdfTrouble::Kind::Damaged, "there are no such pages");
    count = kept.size();
    keepOnly(pdf, kept);
    QPDF chosen;
    copy(pdf, kept, chosen);
    const auto stream = streamOf(to, "wb");
    QPDFWriter writer(chosen);
    writer.setMinimumPDFVersion(pdf.getPDFVersion(), pdf.getExtensionLevel());
    writer.setOutputFile("result", stream.get(), false);
    writer.setStreamDataMode(qpdf_s_preserve);
    writer.setPreserveEncryption(false);
    writer.write();
    if (std::fflush(stream.get()) != 0)
      throw PdfTrouble(PdfTrouble::Kind::Unwritable, "the disk is full");
  });
  return count;
}

} // namespace imageposition
