#include "SheetCanvas.hpp"

#include "Units.hpp"

#include <cairo-pdf.h>
#include <pango/pangocairo.h>
#include <qpdf/QPDF.hh>
#include <qpdf/QPDFPageDocumentHelper.hh>
#include <qpdf/QPDFWriter.hh>

#include <algorithm>
#include <stdexcept>

namespace imageposition {

namespace {

constexpr const char *kFont = "sans-serif";

double points(double millimetres) { return millimetres / kMillimetresPerPoint; }

cairo_status_t append(void *document, const unsigned char *data, unsigned int length) try {
  static_cast<std::string *>(document)->append(reinterpret_cast<const char *>(data), length);
  return CAIRO_STATUS_SUCCESS;
} catch (const std::bad_alloc &) {
  return CAIRO_STATUS_NO_MEMORY;
}

using Layout = std::unique_ptr<PangoLayout, void (*)(gpointer)>;

Layout layoutOf(cairo_t *cairo, const std::string &text, double size, bool isBold) {
  Layout layout(pango_cairo_create_layout(cairo), g_object_unref);
  pango_context_set_round_glyph_positions(pango_layout_get_context(layout.get()), FALSE);
  PangoFontDescription *const font = pango_font_description_from_string(kFont);
  pango_font_description_set_absolute_size(font, size * PANGO_SCALE);
  pango_font_description_set_weight(font, isBold ? PANGO_WEIGHT_BOLD : PANGO_WEIGHT_NORMAL);
  pango_layout_set_font_description(layout.get(), font);
  pango_font_description_free(font);
  pango_layout_set_text(layout.get(), text.data(), static_cast<int>(text.size()));
  return layout;
}

/// Cairo gives every page a transparency group, although nothing is transparent. Ghostscript, in
/// the filters of PostScript printers, renders such pages at the printer's resolution, which puts
/// the lines up to half a dot beside their places.
std::string withoutGroups(const std::string &document) {
  QPDF pdf;
  pdf.processMemoryFile("sheets", document.data(), document.size());
  for (QPDFPageObjectHelper &page : QPDFPageDocumentHelper(pdf).getAllPages())
    page.getObjectHandle().removeKey("/Group");
  QPDFWriter writer(pdf);
  writer.setOutputMemory();
  writer.setObjectStreamMode(qpdf_o_disable);
  writer.write();
  const std::shared_ptr<Buffer> written = writer.getBufferSharedPointer();
  return {reinterpret_cast<const char *>(written->getBuffer()), written->getSize()};
}

} // namespace

SheetCanvas::SheetCanvas(double width, double height, const std::string &title)
    : width_(points(width)), height_(points(height)),
      surface_(cairo_pdf_surface_create_for_stream(append, &document_, width_, height_),
               cairo_surface_destroy),
      cairo_(cairo_create(surface_.get()), cairo_destroy) {
  cairo_pdf_surface_set_metadata(surface_.get(), CAIRO_PDF_METADATA_TITLE, title.c_str());
}

SheetCanvas::~SheetCanvas() = default;

void SheetCanvas::line(SheetPoint from, SheetPoint to, double width) {
  cairo_set_line_width(cairo_.get(), points(width));
  cairo_move_to(cairo_.get(), points(from.x), points(from.y));
  cairo_line_to(cairo_.get(), points(to.x), points(to.y));
  cairo_stroke(cairo_.get());
}

void SheetCanvas::triangle(SheetPoint tip, SheetPoint to, double halfBase) {
  const bool isUpright = tip.x == to.x;
  const double across = isUpright ? halfBase : 0, along = isUpright ? 0 : halfBase;
  cairo_move_to(cairo_.get(), points(tip.x), points(tip.y));
  cairo_line_to(cairo_.get(), points(to.x - across), points(to.y - along));
  cairo_line_to(cairo_.get(), points(to.x + across), points(to.y + along));
  cairo_fill(cairo_.get());
}

void SheetCanvas::frame(const SheetArea &area) {
  constexpr double kThin = 0.15;
  cairo_set_line_width(cairo_.get(), points(kThin));
  cairo_rectangle(cairo_.get(), points(area.left), points(area.top), points(area.width()),
                  points(area.height()));
  cairo_stroke(cairo_.get());
}

void SheetCanvas::label(SheetPoint centre, const std::string &text, double size) {
  const Layout layout = layoutOf(cairo_.get(), text, size, false);
  PangoRectangle ink;
  pango_layout_get_extents(layout.get(), &ink, nullptr);
  const auto offset = [](int position, int length) {
    return (position + length / 2.0) / PANGO_SCALE;
  };
  cairo_move_to(cairo_.get(), points(centre.x) - offset(ink.x, ink.width),
                points(centre.y) - offset(ink.y, ink.height));
  pango_cairo_show_layout(cairo_.get(), layout.get());
}

/// In points, for text whose sizes are multiplied by `scale`.
double SheetCanvas::heightOf(const SheetArea &area, const std::vector<Paragraph> &paragraphs,
                             double scale, bool isDrawn) {
  constexpr double kBetween = 0.25; // of the size
  double height = 0;
  for (const Paragraph &paragraph : paragraphs) {
    const Layout layout =
        layoutOf(cairo_.get(), paragraph.text, paragraph.size * scale, paragraph.isBold);
    pango_layout_set_width(layout.get(), static_cast<int>(points(area.width()) * PANGO_SCALE));
    pango_layout_set_wrap(layout.get(), PANGO_WRAP_WORD_CHAR);
    PangoRectangle extents;
    pango_layout_get_extents(layout.get(), nullptr, &extents);
    if (isDrawn) {
      cairo_move_to(cairo_.get(), points(area.left), points(area.top) + height);
      pango_cairo_show_layout(cairo_.get(), layout.get());
    }
    height += static_cast<double>(extents.height) / PANGO_SCALE + kBetween * paragraph.size * scale;
  }
  return height;
}

void SheetCanvas::words(const SheetArea &area, const std::vector<Paragraph> &paragraphs) {
  constexpr double kStep = 0.95, kSmallest = 0.4;
  double scale = 1;
  while (scale > kSmallest && heightOf(area, paragraphs, scale, false) > points(area.height()))
    scale *= kStep;
  heightOf(area, paragraphs, scale, true);
}

void SheetCanvas::beginMirror(bool isLeftRight) {
  cairo_save(cairo_.get());
  cairo_translate(cairo_.get(), isLeftRight ? width_ : 0, isLeftRight ? 0 : height_);
  cairo_scale(cairo_.get(), isLeftRight ? -1 : 1, isLeftRight ? 1 : -1);
}

void SheetCanvas::endMirror() { cairo_restore(cairo_.get()); }

void SheetCanvas::setGrey(double grey) { cairo_set_source_rgb(cairo_.get(), grey, grey, grey); }

void SheetCanvas::endPage() { cairo_show_page(cairo_.get()); }

std::string SheetCanvas::finish() {
  const cairo_status_t drawn = cairo_status(cairo_.get());
  cairo_surface_finish(surface_.get());
  const cairo_status_t written = cairo_surface_status(surface_.get());
  for (const cairo_status_t status : {drawn, written})
    if (status != CAIRO_STATUS_SUCCESS)
      throw std::runtime_error(cairo_status_to_string(status));
  return withoutGroups(document_);
}

} // namespace imageposition
