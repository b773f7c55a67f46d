#include "OptionConflicts.hpp"

#include "OptionsPpd.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using namespace imageposition;
using imageposition::test::optionsPrinter;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

class OptionConflictsTest : public testing::Test {
protected:
  PrinterDescription printer = optionsPrinter();
  PrintSettingsStore job;
  OptionConflicts conflicts{printer, job};
};

TEST_F(OptionConflictsTest, TheDefaultsDoNotConflict) {
  EXPECT_THAT(conflicts.find(), IsEmpty());
  EXPECT_FALSE(conflicts.proposal());
}

TEST_F(OptionConflictsTest, AConflictNamesBothSides) {
  job.set("Duplex", "DuplexTumble");
  job.set("MediaType", "Transparency");
  const auto found = conflicts.find();
  ASSERT_THAT(found, SizeIs(1));
  EXPECT_EQ(found[0].sentence,
            "The printer cannot combine \"Kind of Paper: Foil\" and \"Two-Sided: Short Edge\".");
  EXPECT_THAT(found[0].sides, SizeIs(2));
}

TEST_F(OptionConflictsTest, AConflictOfThreeNamesAllSides) {
  job.set("Stapler", "True");
  job.set("Fold", "Z");
  EXPECT_THAT(conflicts.find(), IsEmpty());
  job.set("InputSlot", "Tray2");
  const auto found = conflicts.find();
  ASSERT_THAT(found, SizeIs(1));
  EXPECT_EQ(found[0].sentence, "The printer cannot combine \"Staple: Yes\", \"Fold: Z-fold\" and "
                               "\"Tray: Second Tray\".");
}

TEST_F(OptionConflictsTest, AnUninstalledAccessoryConflicts) {
  job.set("OptionalTray", "False");
  job.set("InputSlot", "Tray2");
  ASSERT_THAT(conflicts.find(), SizeIs(1));
  EXPECT_THAT(conflicts.find()[0].sentence, HasSubstr("Second Tray: Not Installed"));
  const auto proposal = conflicts.proposal();
  ASSERT_TRUE(proposal);
  EXPECT_EQ(proposal->sentence, "Change to \"Tray: First Tray\".");
}

TEST_F(OptionConflictsTest, TheOptionThatWasChosenLastIsKept) {
  job.set("Duplex", "DuplexTumble");
  job.set("MediaType", "Transparency");
  const auto keepingMedia = conflicts.proposal("MediaType");
  ASSERT_TRUE(keepingMedia);
  EXPECT_EQ(keepingMedia->sentence, "Change to \"Two-Sided: Off\".");
  const auto keepingDuplex = conflicts.proposal("Duplex");
  ASSERT_TRUE(keepingDuplex);
  EXPECT_EQ(keepingDuplex->sentence, "Change to \"Kind of Paper: Plain Paper\".");
}

TEST_F(OptionConflictsTest, AcceptingTheProposalResolvesTheConflict) {
  job.set("Duplex", "DuplexTumble");
  job.set("MediaType", "Transparency");
  ASSERT_TRUE(conflicts.take(*conflicts.proposal("MediaType")));
  EXPECT_THAT(conflicts.find(), IsEmpty());
  EXPECT_EQ(job.get("Duplex"), nullptr) << "the default";
  EXPECT_STREQ(job.get("MediaType"), "Transparency");
}

TEST_F(OptionConflictsTest, ThePpdsResolverIsUsed) {
  job.set("Stapler", "True");
  job.set("Fold", "Z");
  job.set("InputSlot", "Tray2");
  const auto proposal = conflicts.proposal("InputSlot");
  ASSERT_TRUE(proposal);
  EXPECT_EQ(proposal->sentence, "Change to \"Fold: Do not fold\".");
}

TEST_F(OptionConflictsTest, ALockedOptionIsNotChanged) {
  job.set("Duplex", "DuplexTumble", true);
  job.set("MediaType", "Transparency");
  EXPECT_FALSE(conflicts.proposal("MediaType"));
  EXPECT_TRUE(conflicts.proposal("Duplex"));
}

TEST_F(OptionConflictsTest, AProposalThatCannotBeAppliedCompletelyChangesNothing) {
  job.set("Fold", "Z", true);
  const ConflictProposal proposal{
      {{"Stapler", "Staple", "True", "Yes"}, {"Fold", "Fold", "None", "Do not fold"}}, ""};
  EXPECT_FALSE(conflicts.take(proposal));
  EXPECT_EQ(job.get("Stapler"), nullptr);
  EXPECT_STREQ(ppdFindMarkedChoice(printer.ppd(), "Stapler")->choice, "False");
}

TEST(OptionConflicts, AConstraintIsReadLikeCupsDoes) {
  auto printer = optionsPrinter(R"ppd(*PPD-Adobe: "4.3"
*cupsUIConstraints Three: "*Fold Z and *Stapler True (and)*Tray Two"
*OpenUI *Fold/Fold: PickOne
*DefaultFold: Z
*Fold Z/Z: ""
*CloseUI: *Fold
*OpenUI *Stapler/Staple: Boolean
*DefaultStapler: True
*Stapler True/Yes: ""
*CloseUI: *Stapler
*OpenUI *Tray/Tray: PickOne
*DefaultTray: One
*Tray One/One: ""
*Tray Two/Two: ""
*CloseUI: *Tray
)ppd");
  PrintSettingsStore job;
  OptionConflicts conflicts(printer, job);
  EXPECT_THAT(conflicts.find(), IsEmpty());
  EXPECT_EQ(ppdConflicts(printer.ppd()), 0);
  job.set("Tray", "Two");
  ASSERT_THAT(conflicts.find(), SizeIs(1));
  EXPECT_THAT(conflicts.find()[0].sides, SizeIs(3));
  EXPECT_NE(ppdConflicts(printer.ppd()), 0);
}

TEST(OptionConflicts, SentencesAreWellFormedUtf8) {
  auto printer = optionsPrinter(R"ppd(*PPD-Adobe: "4.3"
*LanguageEncoding: UTF-8
*UIConstraints: *Fold Z *Stapler True
*OpenUI *Fold/Fold)ppd"
                                "\xFF"
                                R"ppd(: PickOne
*DefaultFold: Z
*Fold Z/Z)ppd"
                                "\xC2\x9B"
                                R"ppd(: ""
*CloseUI: *Fold
*OpenUI *Stapler/Staple: Boolean
*DefaultStapler: True
*Stapler True/Yes: ""
*Stapler False/No: ""
*CloseUI: *Stapler
)ppd");
  PrintSettingsStore job;
  const auto found = OptionConflicts(printer, job).find();
  ASSERT_THAT(found, SizeIs(1));
  EXPECT_EQ(found[0].sentence,
            "The printer cannot combine \"Fold\uFFFD: Z\\x9b\" and \"Staple: Yes\".");
}

} // namespace
