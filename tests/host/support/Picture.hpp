/// Reads the picture beside the panel from the display's pixels.
#ifndef IMAGEPOSITION_TESTS_HOST_SUPPORT_PICTURE_HPP
#define IMAGEPOSITION_TESTS_HOST_SUPPORT_PICTURE_HPP

#include "Screen.hpp"

#include <string>
#include <vector>

namespace imageposition::test {

/// The outermost pixels of an outline, from the picture's upper left corner.
struct Outline {
  int left = -1;
  int top = -1;
  int right = -1;
  int bottom = -1;
};

/// A screenshot of the picture, or of another kind of view, in its light colours.
class Picture {
public:
  /// Empty.
  Picture() = default;
  /// Empty if there is no such view on the screen.
  explicit Picture(const Screen &screen, const std::string &kind = "picture");

  bool operator==(const Picture &other) const { return pixels_ == other.pixels_; }
  bool operator!=(const Picture &other) const { return pixels_ != other.pixels_; }

  /// The outlines of the content on the pages "Front" and "Back".
  Outline front() const;
  Outline back() const;
  /// The outline of the paper of the page "Front".
  Outline paper() const;
  /// The leftmost black pixel, which only a document's page has; -1 if there is none.
  int pageInkLeft() const;
  /// The position of the front's cross in the enlarged centre; -1 if it is hidden.
  int frontMarkX() const;
  int frontMarkY() const;

private:
  struct Pixel {
    int red;
    int green;
    int blue;
    bool operator==(const Pixel &other) const {
      return red == other.red && green == other.green && blue == other.blue;
    }
  };
  Pixel at(int x, int y) const;
  Outline outline(const Pixel &colour) const;
  /// The number of pixels of that colour in part of a column or row.
  int inColumn(int x, int top, int bottom, const Pixel &colour) const;
  int inRow(int y, int left, int right, const Pixel &colour) const;
  int pagesHeight() const { return height_ / 2; }

  int width_ = 0;
  int height_ = 0;
  std::vector<unsigned char> pixels_; ///< Red, green, blue; row by row.
};

} // namespace imageposition::test

#endif
