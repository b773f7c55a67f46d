#include "ChosenPages.hpp"

#include "PdfDocument.hpp"

#include <qpdf/QPDF.hh>
#include <qpdf/QPDFPageDocumentHelper.hh>
#include <qpdf/QPDFPageObjectHelper.hh>
#include <qpdf/QPDFWriter.hh>

#include <algorithm>
#include <cstdio>
#include <vector>

namespace imageposition {

namespace {

/// What leads from the catalogue to other pages, and does not change how a page looks.
constexpr const char *kReferring[] = {"/Outlines",   "/Dests",      "/Names", "/StructTreeRoot",
                                      "/OpenAction", "/PageLabels", "/AA",    "/Threads"};

std::vector<QPDFObjectHandle> chosen(QPDF &pdf, const PageRanges &pages) {
  pdf.pushInheritedAttributesToPage();
  const std::vector<QPDFObjectHandle> &all = pdf.getAllPages();
  std::vector<QPDFObjectHandle> kept;
  for (const PageRange &range : pages.ranges())
    for (std::size_t page = static_cast<std::size_t>(range.first);
         page <= std::min(static_cast<std::size_t>(range.last), all.size()); page++)
      kept.push_back(all[page - 1]);
  return kept;
}

/// A page tree with one node.
void keepOnly(QPDF &pdf, std::vector<QPDFObjectHandle> &pages) {
  auto tree = QPDFObjectHandle::newDictionary();
  tree.replaceKey("/Type", QPDFObjectHandle::newName("/Pages"));
  tree.replaceKey("/Count", QPDFObjectHandle::newInteger(static_cast<long long>(pages.size())));
  tree.replaceKey("/Kids", QPDFObjectHandle::newArray(pages));
  const QPDFObjectHandle root = pdf.makeIndirectObject(tree);
  for (QPDFObjectHandle &page : pages) {
    page.replaceKey("/Parent", root);
    page.removeKey("/B"); // article threads
  }
  QPDFObjectHandle catalogue = pdf.getRoot();
  catalogue.replaceKey("/Pages", root);
  for (const char *const key : kReferring)
    catalogue.removeKey(key);
}

} // namespace

std::size_t choosePages(const Descriptor &from, const Descriptor &to, const PageRanges &pages) {
  std::size_t count = 0;
  withPdf(from, [&](QPDF &pdf) {
    std::vector<QPDFObjectHandle> kept = chosen(pdf, pages);
    if (kept.empty())
      throw PdfTrouble(PdfTrouble::Kind::Damaged, "there are no such pages");
    count = kept.size();
    keepOnly(pdf, kept);
    const auto stream = streamOf(to, "wb");
    QPDFWriter writer(pdf);
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
