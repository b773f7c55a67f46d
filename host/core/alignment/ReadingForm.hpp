/// What a reader of alignment sheets has entered so far.
#ifndef IMAGEPOSITION_CORE_ALIGNMENT_READINGFORM_HPP
#define IMAGEPOSITION_CORE_ALIGNMENT_READINGFORM_HPP

#include "Measurement.hpp"
#include "VernierPicture.hpp"

#include <optional>
#include <string>
#include <vector>

namespace imageposition {

/// A row for each sheet, with a number for each of its verniers, and one for the creases, with a
/// number across and one down. Numbers are in millimetres. A row is read as a whole or not at all.
class ReadingForm {
public:
  struct Place {
    std::size_t row = 0; ///< A sheet, or `creaseRow`.
    std::size_t column = 0;
  };

  /// What keeps a row from being used.
  struct Problem {
    Place place; ///< Where to correct it.
    std::string text;
  };

  /// `hasRulers`: whether the sheets have the rulers for the creases.
  ReadingForm(std::size_t sheets, bool hasRulers);

  std::size_t rows() const noexcept { return entries_.size(); }
  std::size_t columns(std::size_t row) const noexcept { return entries_[row].size(); }
  std::size_t creaseRow() const noexcept { return sheets_; }

  /// Takes the field's content, even while the user is typing.
  void enter(Place place, const std::string &text);
  /// Adds tenths of a millimetre to the number, within the scale. An empty entry counts as 0, an
  /// invalid one as the last number.
  void step(Place place, int tenths);
  /// The entry, with at most one decimal; the text as typed if it is not a number on the scale.
  std::string text(Place place) const;
  /// The entry; 0 while it is empty, and the last number while it is invalid.
  TenthMillimetre shown(Place place) const noexcept;
  /// What the scale looks like with `shown`.
  ScalePicture picture(Place place) const;

  /// Why the entry is not a number on the scale; empty if it is, or if there is none.
  std::string mistake(Place place) const;
  /// The first mistake, missing number, or lack of any reading.
  std::optional<Problem> problem() const;

  /// Of the sheets that are complete; may be empty.
  std::vector<SheetReading> readings() const;
  /// None unless both numbers are there.
  std::optional<Offset> crease() const;

private:
  struct Entry {
    std::string typed;
    std::optional<TenthMillimetre> number; // of `typed`
    TenthMillimetre shown;

    bool isEmpty() const;
  };

  const Entry &entry(Place place) const { return entries_[place.row][place.column]; }
  bool isComplete(std::size_t row) const;

  std::size_t sheets_;
  std::vector<std::vector<Entry>> entries_;
};

} // namespace imageposition

#endif
