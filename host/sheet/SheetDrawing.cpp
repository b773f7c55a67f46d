#include "SheetDrawing.hpp"

#include "SheetCanvas.hpp"

#include <cmath>
#include <cstdlib>

namespace imageposition {

namespace {

using vernier::kBackPitch;
using vernier::kFrontLines;
using vernier::kFrontPitch;
using vernier::kLargestTenth;
using vernier::kLargestWhole;
using vernier::kOverlap;
using vernier::kReach;

constexpr double kThin = 0.12;
constexpr double kThick = 0.25;
constexpr int kNumberedEvery = 5;
constexpr double kNumberSize = 6.5; // points
constexpr double kMinusWidth = 2;   // with its distance from the number
constexpr double kNumberAway = 2;   // from the end of its line, above or below
constexpr double kNumberBeside = 3.4;
constexpr double kFurther = 2; // how far a zero line reaches beyond the others

/// Its digits are centred about the point, for the eye to find their line.
void drawNumber(SheetCanvas &canvas, SheetPoint centre, int number) {
  const std::string kMinus = "\xe2\x88\x92";
  const double shift = number < 0 ? kMinusWidth / 2 : 0;
  canvas.label({centre.x - shift, centre.y},
               (number < 0 ? kMinus : "") + std::to_string(std::abs(number)), kNumberSize);
}

/// One half of a vernier. Lengths along a scale are to the right or downwards from its zero; depths
/// are from the place where the combs meet towards the back's comb.
class Comb {
public:
  Comb(SheetCanvas &canvas, const Vernier &vernier) : canvas_(canvas), vernier_(vernier) {}

  void drawFront() const { draw(kFrontPitch, kFrontLines, kLargestWhole, -1); }

  void drawBack() const {
    draw(kBackPitch, kLargestTenth, kLargestTenth, 1);
    constexpr double kSize = 2;
    canvas_.triangle(at(0, kReach - kSize), at(0, kReach), kSize / 3);
  }

  /// Beside the back's comb.
  void drawName(const std::string &name) const {
    constexpr double kNameSize = 12;
    constexpr double kBeside = 11, kAway = 6;
    canvas_.label(at(-kBeside, kAway), name, kNameSize);
  }

private:
  SheetPoint at(double along, double depth) const {
    const SheetPoint zero = vernier_.zero;
    if (vernier_.direction == Direction::Across)
      return {zero.x + along, zero.y + depth};
    return {zero.x + depth, zero.y + along};
  }

  /// `towards` is the sign of the depths on the comb's own side.
  void draw(double pitch, int lines, int numbered, int towards) const {
    constexpr double kBeyondSpine = 1;
    const double away = vernier_.direction == Direction::Across ? kNumberAway : kNumberBeside;
    for (int i = -lines; i <= lines; i++) {
      const bool isNumbered = i % kNumberedEvery == 0 && std::abs(i) <= numbered;
      const double inner = kOverlap + (i == 0 ? kFurther : isNumbered ? kFurther / 2 : 0);
      const double outer = kReach + (isNumbered ? kBeyondSpine : 0);
      canvas_.line(at(i * pitch, -inner * towards), at(i * pitch, outer * towards), kThin);
      if (isNumbered)
        drawNumber(canvas_, at(i * pitch, (outer + away) * towards), i);
    }
    canvas_.line(at(-lines * pitch, kReach * towards), at(lines * pitch, kReach * towards), kThick);
  }

  SheetCanvas &canvas_;
  const Vernier vernier_;
};

std::string nameOf(std::size_t vernier) {
  const char *const kNames[kVernierCount] = {"A \xe2\x86\x92", "A \xe2\x86\x93", "B \xe2\x86\x92",
                                             "B \xe2\x86\x93"};
  return kNames[vernier];
}

/// A ruler that a crease crosses.
void drawRuler(SheetCanvas &canvas, const Vernier &ruler, const std::string &name) {
  constexpr double kNumbered = 5, kWhole = 3, kHalf = 1.5; // millimetres
  constexpr double kNameAway = 4;
  const double away = ruler.direction == Direction::Across ? kNumberAway : kNumberBeside;
  const auto at = [&](double along, double depth) -> SheetPoint {
    if (ruler.direction == Direction::Across)
      return {ruler.zero.x + along, ruler.zero.y + depth};
    return {ruler.zero.x + depth, ruler.zero.y + along};
  };
  for (int halves = -2 * kLargestWhole; halves <= 2 * kLargestWhole; halves++) {
    const double along = halves / 2.0;
    const bool isNumbered = halves % (2 * kNumberedEvery) == 0;
    const double length = isNumbered ? kNumbered : halves % 2 == 0 ? kWhole : kHalf;
    canvas.line(at(along, 0), at(along, length), kThin);
    if (isNumbered)
      drawNumber(canvas, at(along, length + away), halves / 2);
  }
  canvas.line(at(-kLargestWhole, 0), at(kLargestWhole, 0), kThick);
  canvas.label(at(kLargestWhole + kNameAway, kWhole / 2), name, kNumberSize + 2);
}

void drawRulers(SheetCanvas &canvas, const SheetArea &middle) {
  const auto rulers = rulersIn(middle);
  drawRuler(canvas, rulers[0], "\xe2\x86\x92");
  drawRuler(canvas, rulers[1], "\xe2\x86\x93");
}

void drawExample(SheetCanvas &canvas, const SheetArea &middle, const std::string &caption) {
  constexpr double kDisplaced = 1.7, kShownThrough = 0.55;
  constexpr double kAbove = 9.5, kHalfFrame = 21, kFrameTop = 14, kFrameBottom = 20;
  constexpr double kCaption = 16, kCaptionSize = 7;
  const SheetPoint zero{(middle.left + middle.right) / 2,
                        (middle.top + middle.bottom) / 2 - kAbove};
  canvas.setGrey(kShownThrough);
  Comb(canvas, {Direction::Across, zero}).drawFront();
  canvas.setGrey(0);
  Comb(canvas, {Direction::Across, {zero.x + kDisplaced, zero.y}}).drawBack();
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
    Comb(canvas, vernier).drawFront();
  canvas.endMirror();
  if (layout.middle)
    drawRulers(canvas, *layout.middle);
  drawWords(canvas, words, layout.frontTop, layout.frontBottom);
  canvas.endPage();
}

void drawBack(SheetCanvas &canvas, const SheetLayout &layout, const SideWords &words,
              const std::string &example) {
  for (std::size_t i = 0; i < layout.verniers.size(); i++) {
    const Comb comb(canvas, layout.verniers[i]);
    comb.drawBack();
    comb.drawName(nameOf(i));
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
