#include "SheetDrawing.hpp"

#include "SheetCanvas.hpp"
#include "VernierPicture.hpp"

namespace imageposition {

namespace {

void draw(SheetCanvas &canvas, const FigureLabel &label) {
  canvas.label(label.centre, label.text, label.size);
}

void draw(SheetCanvas &canvas, const Figure &figure) {
  for (const FigureLine &line : figure.lines)
    canvas.line(line.from, line.to, line.width);
  for (const FigureLabel &label : figure.labels)
    draw(canvas, label);
  if (const auto &triangle = figure.triangle)
    canvas.triangle(triangle->tip, triangle->base, triangle->halfBase);
}

void drawExample(SheetCanvas &canvas, const SheetArea &middle, const std::string &caption) {
  constexpr double kDisplaced = static_cast<double>(kExampleDisplacement.count) / 10;
  constexpr double kAbove = 9.5, kHalfFrame = 21, kFrameTop = 14, kFrameBottom = 20;
  constexpr double kCaption = 16, kCaptionSize = 7;
  const SheetPoint zero{(middle.left + middle.right) / 2,
                        (middle.top + middle.bottom) / 2 - kAbove};
  canvas.setGrey(kShownThrough);
  draw(canvas, frontComb({Direction::Across, zero}));
  canvas.setGrey(0);
  draw(canvas, backComb({Direction::Across, {zero.x + kDisplaced, zero.y}}));
  canvas.label({zero.x, zero.y + kCaption}, caption, kCaptionSize);
  canvas.frame(
      {zero.x - kHalfFrame, zero.y - kFrameTop, zero.x + kHalfFrame, zero.y + kFrameBottom});
}

void drawWords(SheetCanvas &canvas, const SideWords &words, const SheetArea &top,
               const SheetArea &bottom) {
  constexpr double kNameSize = 26, kSheetSize = 13, kFactSize = 10.5, kAdviceSize = 10.5;
  constexpr double kArrow = 8, kArrowBase = 3, kBesideArrow = 9;
  canvas.triangle({top.left + kArrowBase, top.top}, {top.left + kArrowBase, top.top + kArrow},
                  kArrowBase);
  std::vector<Paragraph> heading{{words.name, kNameSize, true}, {words.sheet, kSheetSize, true}};
  for (const std::string &fact : words.facts)
    heading.push_back({fact, kFactSize});
  canvas.words({top.left + kBesideArrow, top.top, top.right, top.bottom}, heading);
  std::vector<Paragraph> advice;
  for (const std::string &step : words.advice)
    advice.push_back({step, kAdviceSize});
  canvas.words(bottom, advice);
}

void drawFront(SheetCanvas &canvas, const SheetLayout &layout, const SideWords &words) {
  canvas.beginMirror(layout.isMirroredLeftRight);
  for (const Vernier &vernier : layout.verniers)
    draw(canvas, frontComb(vernier));
  canvas.endMirror();
  if (layout.middle)
    for (const Vernier &ruler : rulersIn(*layout.middle))
      draw(canvas, creaseRuler(ruler));
  drawWords(canvas, words, layout.frontTop, layout.frontBottom);
  canvas.endPage();
}

void drawBack(SheetCanvas &canvas, const SheetLayout &layout, const SideWords &words,
              const std::string &example) {
  for (std::size_t i = 0; i < layout.verniers.size(); i++) {
    const Vernier &vernier = layout.verniers[i];
    draw(canvas, backComb(vernier));
    draw(canvas, nameBeside(vernier, vernierName(static_cast<VernierIndex>(i))));
  }
  if (layout.middle)
    drawExample(canvas, *layout.middle, example);
  drawWords(canvas, words, layout.backTop, layout.backBottom);
  canvas.endPage();
}

} // namespace

std::optional<std::string> drawSheets(const SheetTask &task) {
  const auto layout = layOutSheet(task.page, task.turning);
  if (!layout)
    return std::nullopt;
  SheetCanvas canvas(layout->width, layout->height, task.title);
  canvas.setGrey(0);
  for (const SheetWords &sheet : task.sheets) {
    drawFront(canvas, *layout, sheet.front);
    drawBack(canvas, *layout, sheet.back, task.example);
  }
  return canvas.finish();
}

} // namespace imageposition
