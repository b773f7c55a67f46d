#include "ColouredPages.hpp"

#include "PdfFile.hpp"

#include <algorithm>
#include <cstdlib>
#include <random>
#include <vector>

namespace imageposition::bench {

namespace {

constexpr int kColours = 8;
constexpr int kStep = 24;     // between the colours of two pages
constexpr int kTolerance = 4; // rounding, while the page is rendered and painted
constexpr int kFewestPixels = 60;

int redOf(int page) { return 255 - kStep * (page % kColours); }
int blueOf(int page) { return 64 + kStep * (page % kColours); }

std::string markOf(int page) {
  return std::to_string(redOf(page) / 255.0) + " 0 " + std::to_string(blueOf(page) / 255.0) +
         " rg 200 300 200 200 re f 0 g ";
}

std::string stream(const std::string &entries, const std::string &content) {
  return "<< " + entries + " /Length " + std::to_string(content.size()) + " >>\nstream\n" +
         content + "\nendstream";
}

class Document {
public:
  /// Returns the object's number.
  std::string add(const std::string &object) {
    objects_.push_back(object);
    return std::to_string(objects_.size());
  }
  void addPage(const std::string &content, const std::string &resources) {
    const std::string contents = add(stream("", markOf(pages_++) + content));
    kids_ += add("<< /Type /Page /Parent 2 0 R /MediaBox [0 0 595 842] /Contents " + contents +
                 " 0 R /Resources << " + resources + " >> >>") +
             " 0 R ";
  }
  std::string file() {
    objects_[1] = "<< /Type /Pages /Kids [" + kids_ + "] /Count " + std::to_string(pages_) + " >>";
    return test::pdfOf(objects_);
  }

private:
  std::vector<std::string> objects_{"<< /Type /Catalog /Pages 2 0 R >>", ""};
  std::string kids_;
  int pages_ = 0;
};

} // namespace

std::uint32_t colourOfPage(int page) {
  return std::uint32_t(redOf(page)) << 16U | std::uint32_t(blueOf(page));
}

std::string colouredText(int pages) {
  std::string text = "BT /F 10 Tf 72 770 Td 12 TL ";
  for (int line = 0; line < 50; line++)
    text += "(Line " + std::to_string(line) + " of a page that reads like many others.) ' ";
  text += "ET";
  Document document;
  const std::string font = document.add("<< /Type /Font /Subtype /Type1 /BaseFont /Helvetica >>");
  for (int page = 0; page < pages; page++)
    document.addPage(text, "/Font << /F " + font + " 0 R >>");
  return document.file();
}

std::string colouredImages(int pages, std::size_t bytes) {
  Document document;
  std::mt19937 random(1);
  for (int page = 0; page < pages; page++) {
    std::string image(bytes, '\0');
    for (char &byte : image)
      byte = static_cast<char>(random());
    const std::string name = document.add(
        stream("/Type /XObject /Subtype /Image /Width 1000 /Height " +
                   std::to_string(bytes / 1000) + " /ColorSpace /DeviceGray /BitsPerComponent 8",
               image));
    document.addPage("q 500 0 0 200 40 40 cm /I Do Q", "/XObject << /I " + name + " 0 R >>");
  }
  return document.file();
}

Rectangle placeOfPage(const Picture &picture, int page) {
  const auto isNear = [](std::uint32_t value, int expected) {
    return std::abs(static_cast<int>(value & 0xFFU) - expected) <= kTolerance;
  };
  int left = picture.width, right = 0, top = 0, bottom = 0, count = 0;
  for (std::size_t i = 0; i < picture.pixels.size(); i++) {
    const std::uint32_t pixel = picture.pixels[i];
    if (!isNear(pixel >> 8U, 0) || !isNear(pixel >> 16U, redOf(page)) ||
        !isNear(pixel, blueOf(page)))
      continue;
    const int x = static_cast<int>(i % picture.width), y = static_cast<int>(i / picture.width);
    top = count++ == 0 ? y : top;
    bottom = y;
    left = std::min(left, x);
    right = std::max(right, x);
  }
  return count < kFewestPixels ? Rectangle{}
                               : Rectangle{left, top, right - left + 1, bottom - top + 1};
}

} // namespace imageposition::bench
