#include "ReadingForm.hpp"

#include "AlignmentTexts.hpp"

#include <algorithm>

namespace imageposition {

namespace {

constexpr std::size_t kCreaseColumns = 2;

} // namespace

bool ReadingForm::Entry::isEmpty() const {
  return typed.find_first_not_of(" \t") == std::string::npos;
}

ReadingForm::ReadingForm(std::size_t sheets, bool hasRulers)
    : sheets_(sheets), entries_(sheets, std::vector<Entry>(kVernierCount)) {
  if (hasRulers)
    entries_.emplace_back(kCreaseColumns);
}

void ReadingForm::enter(Place place, const std::string &text) {
  Entry &entry = entries_[place.row][place.column];
  entry.typed = text;
  entry.number = readScaleNumber(text);
  if (entry.number || entry.isEmpty())
    entry.shown = entry.number.value_or(TenthMillimetre());
}

void ReadingForm::step(Place place, int tenths) {
  const std::int64_t wanted = shown(place).count + tenths;
  enter(place, numberText({std::clamp(wanted, -kLargestReading.count, kLargestReading.count)}));
}

std::string ReadingForm::text(Place place) const {
  const Entry &shown = entry(place);
  return shown.number ? numberText(*shown.number) : shown.typed;
}

TenthMillimetre ReadingForm::shown(Place place) const noexcept { return entry(place).shown; }

ScalePicture ReadingForm::picture(Place place) const {
  if (place.row == creaseRow())
    return creasePicture(place.column == 0 ? Direction::Across : Direction::Down, shown(place));
  return vernierPicture(static_cast<VernierIndex>(place.column), shown(place));
}

std::string ReadingForm::mistake(Place place) const {
  const Entry &shown = entry(place);
  return shown.number || shown.isEmpty()
             ? ""
             : messages::numberNotOnScale(-kLargestReading, kLargestReading);
}

std::optional<ReadingForm::Problem> ReadingForm::problem() const {
  for (std::size_t row = 0; row < rows(); row++) {
    std::optional<std::size_t> firstEmpty;
    bool isBegun = false;
    for (std::size_t column = 0; column < columns(row); column++) {
      const Place place{row, column};
      if (const std::string text = mistake(place); !text.empty())
        return Problem{place, text};
      if (!entry(place).isEmpty())
        isBegun = true;
      else if (!firstEmpty)
        firstEmpty = column;
    }
    if (isBegun && firstEmpty)
      return Problem{{row, *firstEmpty},
                     row == creaseRow() ? messages::kCreaseIncomplete : messages::kSheetIncomplete};
  }
  return readings().empty() ? std::optional(Problem{{0, 0}, messages::kNothingRead}) : std::nullopt;
}

bool ReadingForm::isComplete(std::size_t row) const {
  return std::all_of(entries_[row].begin(), entries_[row].end(),
                     [](const Entry &entry) { return entry.number.has_value(); });
}

std::vector<SheetReading> ReadingForm::readings() const {
  std::vector<SheetReading> readings;
  for (std::size_t row = 0; row < sheets_; row++) {
    const auto number = [&](std::size_t column) { return *entries_[row][column].number; };
    if (isComplete(row))
      readings.push_back({{number(kFirstAcross), number(kFirstDown)},
                          {number(kSecondAcross), number(kSecondDown)}});
  }
  return readings;
}

std::optional<Offset> ReadingForm::crease() const {
  if (creaseRow() == rows() || !isComplete(creaseRow()))
    return std::nullopt;
  const auto &numbers = entries_[creaseRow()];
  return Offset{*numbers[0].number, *numbers[1].number};
}

} // namespace imageposition
