#include "PaperName.hpp"

#include "PrinterDescription.hpp"

#include <gtest/gtest.h>

namespace imageposition {

namespace {

constexpr PaperSize kA4{{595.276}, {841.89}};
constexpr PaperSize kA5{{419.5}, {595.3}};
constexpr PaperSize kOdd{{200}, {300}};

class PaperName : public testing::Test {
protected:
  void choose(const char *media) {
    PrintSettingsStore settings;
    settings.set("PageSize", media);
    printer_.mark(settings);
  }
  std::string mismatch(const std::optional<PaperSize> &paper) {
    return paperMismatch({2, paper}, printer_.ppd());
  }

  PrinterDescription printer_ =
      PrinterDescription::fromFile(IMAGEPOSITION_SAMPLES "/duplex-shift.ppd");
};

TEST_F(PaperName, IsThePrintersOrTheUsualOneOrTheSize) {
  EXPECT_EQ(paperName(kA4, printer_.ppd()), "A4");
  EXPECT_EQ(paperName({{841.89}, {595.276}}, printer_.ppd()), "A4");
  EXPECT_EQ(paperName({{1190.55}, {1683.78}}, printer_.ppd()), "A2");
  EXPECT_EQ(paperName(kOdd, printer_.ppd()), "71 × 106 mm");
}

TEST_F(PaperName, IsMentionedOnlyIfTheMediaDiffers) {
  choose("A4");
  EXPECT_EQ(mismatch(kA4), "");
  EXPECT_EQ(mismatch(std::nullopt), "");
  EXPECT_EQ(mismatch(kA5), "A5 document on A4");
  EXPECT_EQ(mismatch(kOdd), "71 × 106 mm document on A4");
}

TEST_F(PaperName, OfTheMediaIsThatOfItsChoice) {
  choose("A5");
  ppdPageSize(printer_.ppd(), nullptr)->width =
      static_cast<float>(kA4.width.count); // as A4 without borders has
  ppdPageSize(printer_.ppd(), nullptr)->length = static_cast<float>(kA4.length.count);
  EXPECT_EQ(mismatch(kOdd), "71 × 106 mm document on A5");
}

} // namespace

} // namespace imageposition
