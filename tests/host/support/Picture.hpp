/// The picture beside the panel, by its pixels on the display.
#ifndef IMAGEPOSITION_TESTS_HOST_PICTURE_HPP
#define IMAGEPOSITION_TESTS_HOST_PICTURE_HPP

#include "Screen.hpp"

#include <vector>

namespace imageposition::test {

/// The outermost pixels of an outline, from the picture's upper left corner.
struct Outline {
  int left = -1;
  int top = -1;
  int right = -1;
  int bottom = -1;
};

/// A screenshot of it, in its light colours.
class Picture {
public:
  /// Empty without a picture on the screen.
  explicit Picture(const Screen &screen);

  /// What is printed, on the pages named "Front" and "Back".
  Outline front() const;
  Outline back() const;
  /// The paper of the page named "Front".
  Outline paper() const;
  /// Where the front's cross is in the enlarged centre; -1 when it is hidden.
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
  /// How many pixels of a part of a column, or a row, have that colour.
  int inColumn(int x, int top, int bottom, const Pixel &colour) const;
  int inRow(int y, int left, int right, const Pixel &colour) const;
  int pagesHeight() const { return height_ / 2; }

  int width_ = 0;
  int height_ = 0;
  std::vector<unsigned char> pixels_; ///< Red, green, blue; row by row.
};

} // namespace imageposition::test

#endif
