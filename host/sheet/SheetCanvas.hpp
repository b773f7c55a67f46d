/// The page of a PDF document, in millimetres.
#ifndef IMAGEPOSITION_SHEET_SHEETCANVAS_HPP
#define IMAGEPOSITION_SHEET_SHEETCANVAS_HPP

#include "SheetLayout.hpp"

#include <cairo.h>

#include <memory>
#include <string>
#include <vector>

namespace imageposition {

/// A paragraph in one size of type.
struct Paragraph {
  std::string text;
  double size = 0; ///< In points, for the usual size of the text that it belongs to.
  bool isBold = false;
};

/// Draws black on pages of one size. Lengths are in millimetres from the upper-left corner.
class SheetCanvas {
public:
  SheetCanvas(double width, double height, const std::string &title);
  ~SheetCanvas();
  SheetCanvas(const SheetCanvas &) = delete;
  SheetCanvas &operator=(const SheetCanvas &) = delete;

  void line(SheetPoint from, SheetPoint to, double width);
  /// Filled; the tip is at `tip`, and the base `depth` away from it towards `to`.
  void triangle(SheetPoint tip, SheetPoint to, double halfBase);
  /// A frame of thin lines.
  void frame(const SheetArea &area);
  /// A short label, centred about a point.
  void label(SheetPoint centre, const std::string &text, double points);
  /// Paragraphs at the top of an area, smaller if they would not fit.
  void words(const SheetArea &area, const std::vector<Paragraph> &paragraphs);

  /// Mirrors what is drawn until `endMirror`: left-right, or else top-bottom.
  void beginMirror(bool isLeftRight);
  void endMirror();
  /// 0 is black, 1 white.
  void setGrey(double grey);

  void endPage();
  /// The document; nothing can be drawn afterwards. Throws a `std::runtime_error`.
  std::string finish();

private:
  double heightOf(const SheetArea &area, const std::vector<Paragraph> &paragraphs, double scale,
                  bool isDrawn);

  double width_;
  double height_;
  std::string document_;
  std::unique_ptr<cairo_surface_t, void (*)(cairo_surface_t *)> surface_;
  std::unique_ptr<cairo_t, void (*)(cairo_t *)> cairo_;
};

} // namespace imageposition

#endif
