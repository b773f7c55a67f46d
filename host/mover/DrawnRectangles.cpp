#include "DrawnRectangles.hpp"

#include "PdfDocument.hpp"

#include <qpdf/QPDF.hh>
#include <qpdf/QPDFMatrix.hh>
#include <qpdf/QPDFPageDocumentHelper.hh>
#include <qpdf/QPDFPageObjectHelper.hh>

#include <algorithm>
#include <utility>

namespace imageposition {

namespace {

constexpr int kDeepest = 8; // of forms in forms
constexpr std::size_t kMostRectangles = 5000;

using Rectangle = QPDFObjectHandle::Rectangle;

class Drawing : public QPDFObjectHandle::ParserCallbacks {
public:
  Drawing(const QPDFObjectHandle &resources, const QPDFMatrix &matrix, int depth,
          std::vector<Rectangle> &found)
      : resources_(resources), matrix_(matrix), depth_(depth), found_(found) {}

  void handleObject(QPDFObjectHandle object) override {
    if (!object.isOperator()) {
      operands_.push_back(object);
      return;
    }
    const std::string name = object.getOperatorValue();
    if (name == "q")
      saved_.push_back(matrix_);
    else if (name == "Q" && !saved_.empty()) {
      matrix_ = saved_.back();
      saved_.pop_back();
    } else if (name == "cm" && hasNumbers(6))
      matrix_.concat({at(0), at(1), at(2), at(3), at(4), at(5)});
    else if (name == "re" && hasNumbers(4) && found_.size() < kMostRectangles)
      found_.push_back(matrix_.transformRectangle({at(0), at(1), at(0) + at(2), at(1) + at(3)}));
    else if (name == "Do" && operands_.size() == 1 && operands_[0].isName())
      draw(resources_.getKey("/XObject"), operands_[0].getName());
    operands_.clear();
  }
  void handleEOF() override {}

private:
  bool hasNumbers(std::size_t count) const {
    return operands_.size() == count &&
           std::all_of(operands_.begin(), operands_.end(),
                       [](QPDFObjectHandle operand) { return operand.isNumber(); });
  }
  double at(std::size_t index) { return operands_[index].getNumericValue(); }

  void draw(QPDFObjectHandle objects, const std::string &name) {
    if (!objects.isDictionary() || depth_ == 0)
      return;
    QPDFObjectHandle form = objects.getKey(name);
    if (!form.isFormXObject())
      return;
    QPDFMatrix matrix = matrix_;
    if (QPDFObjectHandle own = form.getDict().getKey("/Matrix"); own.isMatrix())
      matrix.concat(QPDFMatrix(own.getArrayAsMatrix()));
    QPDFObjectHandle resources = form.getDict().getKey("/Resources");
    Drawing inner(resources.isDictionary() ? resources : resources_, matrix, depth_ - 1, found_);
    form.parseAsContents(&inner);
  }

  QPDFObjectHandle resources_;
  QPDFMatrix matrix_;
  int depth_;
  std::vector<Rectangle> &found_;
  std::vector<QPDFMatrix> saved_;
  std::vector<QPDFObjectHandle> operands_;
};

DrawnPage drawnOn(QPDFPageObjectHelper &page) {
  const Rectangle box = page.getMediaBox().getArrayAsRectangle();
  QPDFObjectHandle rotation = page.getAttribute("/Rotate", false);
  const long long degrees = rotation.isInteger() ? (rotation.getIntValue() % 360 + 360) % 360 : 0;
  const double width = box.urx - box.llx, height = box.ury - box.lly;
  QPDFMatrix shown; // from the user space to the shown page, still upwards
  double shownWidth = width, shownHeight = height;
  if (degrees == 90 || degrees == 270)
    std::swap(shownWidth, shownHeight);
  if (degrees == 90)
    shown = {0, -1, 1, 0, 0, width};
  else if (degrees == 180)
    shown = {-1, 0, 0, -1, width, height};
  else if (degrees == 270)
    shown = {0, 1, -1, 0, height, 0};
  shown.translate(-box.llx, -box.lly);
  std::vector<Rectangle> found;
  Drawing drawing(page.getAttribute("/Resources", false), shown, kDeepest, found);
  page.parseContents(&drawing);
  DrawnPage drawn{{shownWidth}, {shownHeight}, {}};
  for (const Rectangle &one : found)
    drawn.rectangles.push_back(
        {{one.llx}, {shownHeight - one.ury}, {one.urx}, {shownHeight - one.lly}});
  return drawn;
}

} // namespace

std::vector<DrawnPage> drawnRectangles(const Descriptor &file) {
  std::vector<DrawnPage> pages;
  withPdf(file, [&](QPDF &pdf) {
    for (QPDFPageObjectHelper &page : QPDFPageDocumentHelper(pdf).getAllPages())
      pages.push_back(drawnOn(page));
  });
  return pages;
}

} // namespace imageposition
