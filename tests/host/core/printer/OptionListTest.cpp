#include "OptionList.hpp"

#include <gtest/gtest.h>

namespace {

using namespace imageposition;

PrinterOption mediaSize() {
  PrinterOption option;
  option.keyword = "PageSize";
  option.text = "Media Size";
  option.choices = {{"A4", "A4"}, {"Letter", "US Letter"}};
  option.chosen = "Letter";
  return option;
}

TEST(OptionList, ListsGroupsOptionsAndChoicesWithAStarBeforeTheChosenOne) {
  EXPECT_EQ(writeOptionList({{"General", "General settings", {mediaSize()}}}),
            "General settings\n"
            "  PageSize: Media Size\n"
            "    A4: A4\n"
            "  * Letter: US Letter\n");
}

TEST(OptionList, HasNoStarIfNothingIsChosen) {
  PrinterOption option = mediaSize();
  option.chosen.clear();
  EXPECT_EQ(writeOptionList({{"General", "General", {option}}}).find('*'), std::string::npos);
}

TEST(OptionList, ShowsWhichOptionsAcceptACustomValue) {
  PrinterOption option = mediaSize();
  option.takesCustomValue = true;
  EXPECT_NE(writeOptionList({{"General", "General", {option}}}).find("\n    Custom.WIDTHxHEIGHT\n"),
            std::string::npos);
  option.keyword = "Watermark";
  EXPECT_NE(writeOptionList({{"General", "General", {option}}}).find("\n    Custom.VALUE\n"),
            std::string::npos);
}

TEST(OptionList, HidesAPasswordOfTheJob) {
  PrinterOption option;
  option.keyword = "Secret";
  option.text = "Private Printing";
  CustomParameter code;
  code.name = "Code";
  code.text = "Code";
  code.kind = CustomParameter::Kind::Passcode;
  option.takesCustomValue = true;
  option.custom = CustomOption{"Secret", false, {code}};
  option.chosen = "Custom.0123";
  option.choices = {{"None", "Off"}, {option.chosen, option.textOf(option.chosen)}};
  EXPECT_EQ(writeOptionList({{"General", "General", {option}}}), "General\n"
                                                                 "  Secret: Private Printing\n"
                                                                 "    None: Off\n"
                                                                 "  * ••••: Custom: ••••\n"
                                                                 "    Custom.VALUE\n");
}

TEST(OptionList, ShowsANameWithLineBreaksOnOneLine) {
  PrinterOption option = mediaSize();
  option.text = "Media\nDuplex: None";
  option.choices.push_back({"Custom.1\n\x1B[2J", "Custom: 1"});
  const std::string list = writeOptionList({{"General", "General", {option}}});
  EXPECT_EQ(list.find("\nDuplex"), std::string::npos);
  EXPECT_NE(list.find("Custom.1\\n\\x1b[2J: Custom: 1\n"), std::string::npos) << list;
}

} // namespace
