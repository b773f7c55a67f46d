#include "PreviewColours.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace {

using namespace imageposition;

double linear(int component) {
  const double value = component / 255.0;
  return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
}

/// As defined by WCAG 2.
double luminance(Rgb colour) {
  return 0.2126 * linear(redOf(colour)) + 0.7152 * linear(greenOf(colour)) +
         0.0722 * linear(blueOf(colour));
}

double contrast(Rgb a, Rgb b) {
  const auto [darker, lighter] = std::minmax({luminance(a), luminance(b)});
  return (lighter + 0.05) / (darker + 0.05);
}

TEST(PreviewColours, TextStandsOutFromThePaper) {
  for (const PreviewColours *colours : {&kLightPreview, &kDarkPreview})
    for (const Rgb colour : {colours->text, colours->secondaryText, colours->front, colours->back})
      EXPECT_GE(contrast(colour, colours->paper), 4.5) << std::hex << colour;
}

TEST(PreviewColours, LinesStandOutFromThePaper) {
  for (const PreviewColours *colours : {&kLightPreview, &kDarkPreview})
    for (const Rgb colour : {colours->lost, colours->outline, colours->printable})
      EXPECT_GE(contrast(colour, colours->paper), 3) << std::hex << colour;
}

TEST(PaperColours, LetTheLinesOfRealPagesStandOut) {
  for (const PaperColours *colours : {&kLightPaper, &kDarkPaper})
    for (const Rgb colour : {kLightPreview.text, kLightPreview.front, kLightPreview.back,
                             kLightPreview.lost, kLightPreview.printable})
      EXPECT_GE(contrast(colour, colours->paper), 3) << std::hex << colour;
}

TEST(PaperColours, LookLikePaper) {
  for (const PaperColours *colours : {&kLightPaper, &kDarkPaper}) {
    EXPECT_GE(contrast(colours->ink, colours->paper), 12);
    EXPECT_GE(contrast(colours->through, colours->paper), 3);
    EXPECT_LE(contrast(colours->mark, colours->paper), 1.5);
  }
}

struct Blindness {
  const char *name;
  double matrix[3][3];
};

// The complete loss of one kind of cone, in linear light (Machado, Oliveira and Fernandes 2009).
constexpr Blindness kBlindnesses[] = {
    {"protanopia",
     {{0.152286, 1.052583, -0.204868},
      {0.114503, 0.786281, 0.099216},
      {-0.003882, -0.048116, 1.051998}}},
    {"deuteranopia",
     {{0.367322, 0.860646, -0.227968},
      {0.280085, 0.672501, 0.047413},
      {-0.011820, 0.042940, 0.968881}}},
    {"tritanopia",
     {{1.255528, -0.076749, -0.178779},
      {-0.078411, 0.930809, 0.147602},
      {0.004733, 0.691367, 0.303900}}},
};

double encoded(double value) {
  value = std::clamp(value, 0.0, 1.0);
  return 255 * (value <= 0.0031308 ? 12.92 * value : 1.055 * std::pow(value, 1 / 2.4) - 0.055);
}

/// The distance between two perceived colours, in components from 0 to 255.
double distance(Rgb a, Rgb b, const Blindness &blindness) {
  double sum = 0;
  for (const auto &row : blindness.matrix) {
    const auto seen = [&row](Rgb colour) {
      return encoded(row[0] * linear(redOf(colour)) + row[1] * linear(greenOf(colour)) +
                     row[2] * linear(blueOf(colour)));
    };
    sum += std::pow(seen(a) - seen(b), 2);
  }
  return std::sqrt(sum);
}

TEST(PreviewColours, ColourBlindUsersCanTellSidesAndLossApart) {
  constexpr double kClearlyDifferent = 60;
  for (const PreviewColours *colours : {&kLightPreview, &kDarkPreview})
    for (const Blindness &blindness : kBlindnesses) {
      EXPECT_GE(distance(colours->front, colours->back, blindness), kClearlyDifferent)
          << blindness.name;
      EXPECT_GE(distance(colours->front, colours->lost, blindness), kClearlyDifferent)
          << blindness.name;
      EXPECT_GE(distance(colours->back, colours->lost, blindness), kClearlyDifferent)
          << blindness.name;
    }
}

} // namespace
