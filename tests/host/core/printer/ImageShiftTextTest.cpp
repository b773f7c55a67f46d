#include "ImageShiftText.hpp"

#include "CupsHandles.hpp"
#include "SharedKeys.h"
#include "TemporaryFolder.hpp"

#include <gtest/gtest.h>

namespace imageposition {

namespace {

using namespace imageposition::test;

const std::string kPlain = contentOf(IMAGEPOSITION_SAMPLES "/duplex-plain.ppd");

PpdFile opened(const std::string &text) {
  const TemporaryFolder folder;
  PpdFile ppd(ppdOpenFile(folder.write("printer.ppd", text).c_str()));
  if (ppd)
    ppdMarkDefaults(ppd.get());
  return ppd;
}

TEST(WithImageShift, AddsWhatThePanelLooksFor) {
  const auto text = withImageShift(kPlain);
  ASSERT_TRUE(text);
  const PpdFile ppd = opened(*text);
  ASSERT_TRUE(ppd);
  const ppd_attr_t *const support = ppdFindAttr(ppd.get(), IPA_ATTRIBUTE_SUPPORT, nullptr);
  ASSERT_NE(support, nullptr);
  EXPECT_STREQ(support->value, "true");
  for (const char *const key : {IPA_KEY_FRONT_LEFT_RIGHT, IPA_KEY_FRONT_TOP_BOTTOM,
                                IPA_KEY_BACK_LEFT_RIGHT, IPA_KEY_BACK_TOP_BOTTOM}) {
    const ppd_choice_t *const choice = ppdFindMarkedChoice(ppd.get(), key);
    ASSERT_NE(choice, nullptr) << key;
    EXPECT_STREQ(choice->choice, "0") << key;
    const ppd_coption_t *const custom = ppdFindCustomOption(ppd.get(), key);
    ASSERT_NE(custom, nullptr) << key;
    const ppd_cparam_t *const offset =
        ppdFindCustomParam(const_cast<ppd_coption_t *>(custom), "Offset"); // not modified
    ASSERT_NE(offset, nullptr) << key;
    EXPECT_EQ(offset->type, PPD_CUSTOM_INT) << key;
    EXPECT_EQ(offset->minimum.custom_int, -100) << key;
    EXPECT_EQ(offset->maximum.custom_int, 100) << key;
  }
  EXPECT_TRUE(isImageShiftAdded(ppd.get()));
}

TEST(WithImageShift, KeepsEverythingElse) {
  const PpdFile before = opened(kPlain), after = opened(*withImageShift(kPlain));
  EXPECT_EQ(after->num_groups, before->num_groups + 1);
  for (const char *const option : {"PageSize", "Duplex", "MediaType"}) {
    const ppd_option_t *const one = ppdFindOption(before.get(), option);
    const ppd_option_t *const other = ppdFindOption(after.get(), option);
    ASSERT_TRUE(one != nullptr && other != nullptr) << option;
    EXPECT_EQ(one->num_choices, other->num_choices) << option;
    EXPECT_STREQ(one->defchoice, other->defchoice) << option;
  }
  EXPECT_FALSE(isImageShiftAdded(before.get()));
  EXPECT_FALSE(isImageShiftAdded(nullptr));
}

TEST(WithImageShift, FitsDescriptionsOfAnyOrigin) {
  std::string carriageReturns = kPlain;
  for (std::size_t at = 0; (at = carriageReturns.find('\n', at)) != std::string::npos; at += 2)
    carriageReturns.insert(at, "\r");
  const std::string withoutEnd = kPlain.substr(0, kPlain.find_last_not_of('\n') + 1);
  for (const std::string &text : {carriageReturns, withoutEnd, contentOf(DRIVERLESS_PPD)}) {
    const auto added = withImageShift(text);
    ASSERT_TRUE(added);
    const PpdFile ppd = opened(*added);
    ASSERT_TRUE(ppd);
    EXPECT_TRUE(isImageShiftAdded(ppd.get()));
    EXPECT_NE(ppdFindOption(ppd.get(), IPA_KEY_BACK_TOP_BOTTOM), nullptr);
  }
}

TEST(WithImageShift, LeavesADescriptionThatHasItAlone) {
  EXPECT_FALSE(withImageShift(contentOf(IMAGEPOSITION_SAMPLES "/duplex-shift.ppd")));
  EXPECT_FALSE(withImageShift(*withImageShift(kPlain)));
}

TEST(WithImageShift, ReplacesARefusal) {
  const auto text = withImageShift(kPlain + "*AdjustDuplexPositionSupport: \"false\"\n");
  ASSERT_TRUE(text);
  const PpdFile ppd = opened(*text);
  ASSERT_TRUE(ppd);
  const ppd_attr_t *const support = ppdFindAttr(ppd.get(), IPA_ATTRIBUTE_SUPPORT, nullptr);
  ASSERT_NE(support, nullptr);
  EXPECT_STREQ(support->value, "true");
  EXPECT_EQ(ppdFindNextAttr(ppd.get(), IPA_ATTRIBUTE_SUPPORT, nullptr), nullptr);
}

TEST(WithImageShift, LeavesADescriptionThatUsesTheNamesOtherwiseAlone) {
  for (const char *const line :
       {"*OpenUI *LeftRightMargin/Margin: PickOne\n", "*OpenUI  *TopBottomMargin: PickOne\r\n",
        "*JCLOpenUI *BackLeftRightMargin: PickOne\n", "*OpenUI *backtopbottommargin: PickOne"})
    EXPECT_FALSE(withImageShift(kPlain + line)) << line;
  EXPECT_TRUE(withImageShift(kPlain + "*OpenUI *LeftRightMarginal: PickOne\n*CloseUI\n"));
}

} // namespace

} // namespace imageposition
