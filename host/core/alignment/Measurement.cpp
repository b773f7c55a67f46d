#include "Measurement.hpp"

#include "CustomValue.hpp"
#include "LengthUnit.hpp"
#include "NumberText.hpp"
#include "SharedKeys.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <string>

namespace imageposition {

namespace {

constexpr double kTenthsPerMillimetre = 10;
constexpr double kMostApart = 3;      // tenths
constexpr double kMostDeviation = 20; // tenths

/// The numbers in tenths; empty unless all of them are numbers that the scales have.
std::vector<TenthMillimetre> readTenths(std::string_view text) {
  constexpr std::string_view kSeparators = ",; \t";
  std::vector<TenthMillimetre> tenths;
  for (;;) {
    const std::size_t start = std::min(text.find_first_not_of(kSeparators), text.size());
    text.remove_prefix(start);
    if (text.empty())
      return tenths;
    const std::size_t end = std::min(text.find_first_of(kSeparators), text.size());
    const auto number = readScaleNumber(text.substr(0, end));
    if (!number)
      return {};
    tenths.push_back(*number);
    text.remove_prefix(end);
  }
}

double median(std::vector<double> values) {
  std::sort(values.begin(), values.end());
  const std::size_t middle = values.size() / 2;
  return values.size() % 2 == 1 ? values[middle] : (values[middle - 1] + values[middle]) / 2;
}

double spread(const std::vector<double> &values) {
  const auto ends = std::minmax_element(values.begin(), values.end());
  return *ends.second - *ends.first;
}

double half(TenthMillimetre first, TenthMillimetre second) {
  return static_cast<double>(first.count + second.count) / 2;
}

double between(TenthMillimetre first, TenthMillimetre second) {
  return static_cast<double>(second.count - first.count);
}

std::array<TenthMillimetre, kVernierCount> lengthsOf(const SheetReading &reading) {
  return {reading.first.right, reading.first.down, reading.second.right, reading.second.down};
}

/// How a side is turned and stretched about its middle.
struct Distortion {
  double angle = 0;   // radians, clockwise
  double stretch = 0; // as a part of 1
};

/// Solves right = stretch * x - angle * y and down = stretch * y + angle * x for the differences
/// between the corners.
Distortion distortionOf(const SheetLayout &layout, double right, double down) {
  const auto from = [&](VernierIndex first, VernierIndex second) -> SheetPoint {
    const SheetPoint a = layout.verniers[first].zero, b = layout.verniers[second].zero;
    return {(b.x - a.x) * kTenthsPerMillimetre, (b.y - a.y) * kTenthsPerMillimetre};
  };
  const SheetPoint across = from(kFirstAcross, kSecondAcross);
  const SheetPoint downwards = from(kFirstDown, kSecondDown);
  const double determinant = across.x * downwards.x + across.y * downwards.y;
  return {(across.x * down - downwards.y * right) / determinant,
          (downwards.x * right + across.y * down) / determinant};
}

/// At the sheet's corner, where it is largest.
double largestDisplacement(const SheetLayout &layout, const Distortion &distortion) {
  const double corner = std::hypot(layout.width, layout.height) / 2 * kTenthsPerMillimetre;
  return corner * std::hypot(distortion.angle, distortion.stretch);
}

/// Halves toward zero.
TenthMillimetre rounded(double tenths) {
  constexpr double kHalf = 0.5;
  const std::int64_t whole = std::llround(std::ceil(std::abs(tenths) - kHalf));
  return {tenths < 0 ? -whole : whole};
}

CorrectedOffsets limited(const SideOffsets &offsets, TenthMillimetre most) {
  CorrectedOffsets corrected{offsets, false};
  for (Offset *const offset : {&corrected.offsets.front, &corrected.offsets.back})
    for (TenthMillimetre *const length : {&offset->right, &offset->down})
      length->count = std::clamp(length->count, -most.count, most.count);
  corrected.isLimited = !(corrected.offsets == offsets);
  return corrected;
}

/// By how much a sheet's readings differ from the medians, at most.
double deviationOf(const SheetReading &reading, const std::array<double, kVernierCount> &medians) {
  const std::array<TenthMillimetre, kVernierCount> lengths = lengthsOf(reading);
  double most = 0;
  for (std::size_t i = 0; i < lengths.size(); i++)
    most = std::max(most, std::abs(static_cast<double>(lengths[i].count) - medians[i]));
  return most;
}

int doubtfulIn(const std::vector<SheetReading> &readings) {
  if (readings.size() < 3)
    return 0;
  std::array<double, kVernierCount> medians{};
  for (std::size_t i = 0; i < medians.size(); i++) {
    std::vector<double> values;
    values.reserve(readings.size());
    for (const SheetReading &reading : readings)
      values.push_back(static_cast<double>(lengthsOf(reading)[i].count));
    medians[i] = median(values);
  }
  const auto worst = std::max_element(
      readings.begin(), readings.end(), [&](const SheetReading &one, const SheetReading &other) {
        return deviationOf(one, medians) < deviationOf(other, medians);
      });
  return deviationOf(*worst, medians) > kMostDeviation
             ? static_cast<int>(worst - readings.begin()) + 1
             : 0;
}

} // namespace

std::optional<TenthMillimetre> readScaleNumber(std::string_view text) {
  const auto number = readNumber(asciiNumber(text));
  if (!number ||
      std::abs(*number) * kTenthsPerMillimetre > static_cast<double>(kLargestReading.count))
    return std::nullopt;
  return TenthMillimetre{std::llround(*number * kTenthsPerMillimetre)};
}

std::optional<SheetReading> readSheetReading(std::string_view text) {
  const auto tenths = readTenths(text);
  if (tenths.size() != kVernierCount)
    return std::nullopt;
  return SheetReading{{tenths[kFirstAcross], tenths[kFirstDown]},
                      {tenths[kSecondAcross], tenths[kSecondDown]}};
}

std::optional<Offset> readCreaseReading(std::string_view text) {
  const auto tenths = readTenths(text);
  if (tenths.size() != 2)
    return std::nullopt;
  return Offset{tenths[0], tenths[1]};
}

bool Measurement::areCornersApart() const noexcept {
  return std::abs(cornersRight) > kMostApart || std::abs(cornersDown) > kMostApart;
}

Measurement measure(const SheetLayout &layout, const std::vector<SheetReading> &readings) {
  std::vector<double> right, down, cornersRight, cornersDown;
  for (const SheetReading &reading : readings) {
    right.push_back(half(reading.first.right, reading.second.right));
    down.push_back(half(reading.first.down, reading.second.down));
    cornersRight.push_back(between(reading.first.right, reading.second.right));
    cornersDown.push_back(between(reading.first.down, reading.second.down));
  }
  Measurement result{median(right),
                     median(down),
                     spread(right),
                     spread(down),
                     median(cornersRight),
                     median(cornersDown),
                     0,
                     0,
                     0,
                     0,
                     0};
  const Distortion distortion = distortionOf(layout, result.cornersRight, result.cornersDown);
  constexpr double kDegreesPerRadian = 180 / M_PI;
  constexpr double kPercent = 100;
  result.angle = distortion.angle * kDegreesPerRadian;
  result.stretch = distortion.stretch * kPercent;
  result.left = largestDisplacement(layout, distortion);
  result.sheets = static_cast<int>(readings.size());
  result.doubtful = doubtfulIn(readings);
  return result;
}

SideOffsets sideOffsetsIn(const PrintSettingsStore &settings) {
  PrintSettingsStore plain = settings;
  for (int i = 0; i < settings.optionCount(); i++) {
    const cups_option_t &option = settings.options()[i];
    if (hasCustomPrefix(option.value)) // lpoptions and presets write it
      plain.set(option.name, withoutCustomPrefix(option.value));
  }
  const PreviewRequest job = readPreviewRequest(plain, nullptr);
  return {job.front, job.back};
}

void setSideOffsets(PrintSettingsStore &settings, const SideOffsets &offsets) {
  const auto set = [&settings](const char *key, TenthMillimetre length) {
    settings.set(key, std::to_string(length.count));
  };
  settings.set(IPA_KEY_ENABLE, IPA_VALUE_TRUE);
  set(IPA_KEY_FRONT_LEFT_RIGHT, offsets.front.right);
  set(IPA_KEY_FRONT_TOP_BOTTOM, offsets.front.down);
  set(IPA_KEY_BACK_LEFT_RIGHT, offsets.back.right);
  set(IPA_KEY_BACK_TOP_BOTTOM, offsets.back.down);
}

bool operator==(const SideOffsets &a, const SideOffsets &b) noexcept {
  return a.front == b.front && a.back == b.back;
}

CorrectedOffsets withBackMoved(const SideOffsets &present, const Measurement &measurement,
                               TenthMillimetre most) {
  SideOffsets moved = present;
  moved.back.right = present.back.right - rounded(measurement.right);
  moved.back.down = present.back.down - rounded(measurement.down);
  return limited(moved, most);
}

CorrectedOffsets withBothMoved(const SideOffsets &present, const Offset &crease,
                               const SheetLayout &layout, TenthMillimetre most) {
  SideOffsets moved = present;
  moved.front.right = present.front.right + crease.right;
  moved.front.down = present.front.down + crease.down;
  const bool isMirrored = layout.isMirroredLeftRight;
  moved.back.right = present.back.right + (isMirrored ? -crease.right : crease.right);
  moved.back.down = present.back.down + (isMirrored ? crease.down : -crease.down);
  return limited(moved, most);
}

SideOffsets forOtherTurning(const SideOffsets &offsets) noexcept {
  return {offsets.front, {-offsets.back.right, -offsets.back.down}};
}

} // namespace imageposition
