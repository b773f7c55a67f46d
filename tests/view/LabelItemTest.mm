#import "ItemFixture.h"

#import "MorvaADPLabelItemRV2.h"

namespace {

using imageposition::test::ItemFixture;
using imageposition::test::isLightGray;

class LabelItem : public ItemFixture {
protected:
  void SetUp() override {
    ItemFixture::SetUp();
    label = [[[MorvaADPLabelItemRV2 alloc] initWithFrame:NSMakeRect(0, 0, 100, 20)] autorelease];
  }
  MorvaADPLabelItemRV2 *label = nil;
};

TEST_F(LabelItem, MadeAvailableIsEnabledAndKeepsItsColour) {
  [label setEnabled:NO];
  [label setTextColor:[NSColor redColor]];
  [label setViewAvailable:YES];
  EXPECT_TRUE([label isEnabled]);
  EXPECT_TRUE([[label textColor] isEqual:[NSColor redColor]]);
  EXPECT_EQ(field<BOOL>(label, "ViewState"), YES);
}

TEST_F(LabelItem, MadeUnavailableIsDisabledAndLightGray) {
  [label setViewAvailable:NO];
  EXPECT_FALSE([label isEnabled]);
  EXPECT_TRUE(isLightGray([label textColor]));
  EXPECT_EQ(field<BOOL>(label, "ViewState"), NO);
}

TEST_F(LabelItem, MadeUnavailableThenAvailableIsEnabledButStillLightGray) {
  [label setViewAvailable:NO];
  [label setViewAvailable:YES];
  EXPECT_TRUE([label isEnabled]);
  EXPECT_TRUE(isLightGray([label textColor]));
  EXPECT_EQ(field<BOOL>(label, "ViewState"), YES);
}

TEST_F(LabelItem, RecordsTheLastFlag) {
  EXPECT_EQ(field<BOOL>(label, "ViewState"), NO);
  [label setViewAvailable:YES];
  [label setViewAvailable:NO];
  EXPECT_EQ(field<BOOL>(label, "ViewState"), NO);
}

TEST_F(LabelItem, ShowsTheLocalizedStringOfAKey) {
  FixtureStrings *strings = [FixtureStrings stringsReturning:@"Links-rechts"];
  [label applyLocalizableStrings:@"LRM" BundleInfo:(NSBundle *)strings];
  EXPECT_EQ(text([label stringValue]), "Links-rechts");
  EXPECT_EQ(text([strings lastLookup]), "LRM|(null)|(null)");
}

TEST_F(LabelItem, ShowsTheKeyWhenTheLookupReturnsNull) {
  [label applyLocalizableStrings:@"LRM"
                      BundleInfo:(NSBundle *)[FixtureStrings stringsReturning:nil]];
  EXPECT_EQ(text([label stringValue]), "LRM");
}

TEST_F(LabelItem, ShowsAKeyThatTheBundleLacks) {
  [label applyLocalizableStrings:@"NoSuchKey" BundleInfo:[NSBundle mainBundle]];
  EXPECT_EQ(text([label stringValue]), "NoSuchKey");
}

TEST_F(LabelItem, ShowsTheKeyWithoutABundle) {
  [label applyLocalizableStrings:@"LRM" BundleInfo:nil];
  EXPECT_EQ(text([label stringValue]), "LRM");
}

TEST_F(LabelItem, ShowsARangeStringUnchanged) {
  [label setRangeStrings:@" -20 to 20: MAX %d "];
  EXPECT_EQ(text([label stringValue]), " -20 to 20: MAX %d ");
}

TEST_F(LabelItem, LocalizingDoesNotEnableOrDisable) {
  [label setViewAvailable:NO];
  [label applyLocalizableStrings:@"LRM" BundleInfo:[NSBundle mainBundle]];
  EXPECT_FALSE([label isEnabled]);
  EXPECT_TRUE(isLightGray([label textColor]));
}

} // namespace
