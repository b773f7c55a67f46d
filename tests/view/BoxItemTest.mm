#import "ItemFixture.h"

#import "MorvaADPBoxItemRV2.h"

namespace {

using imageposition::test::ItemFixture;

class BoxItem : public ItemFixture {
protected:
  void SetUp() override {
    ItemFixture::SetUp();
    box = [[[MorvaADPBoxItemRV2 alloc] initWithFrame:NSMakeRect(0, 0, 100, 50)] autorelease];
  }
  MorvaADPBoxItemRV2 *box = nil;
};

TEST_F(BoxItem, MadeAvailableIsHidden) {
  [box setViewAvailable:YES];
  EXPECT_TRUE([box isHidden]);
  EXPECT_EQ(field<BOOL>(box, "ViewState"), YES);
}

TEST_F(BoxItem, MadeUnavailableIsShown) {
  [box setHidden:YES];
  [box setViewAvailable:YES];
  [box setViewAvailable:NO];
  EXPECT_FALSE([box isHidden]);
  EXPECT_EQ(field<BOOL>(box, "ViewState"), NO);
}

TEST_F(BoxItem, ShowsTheLocalizedStringAsItsTitle) {
  FixtureStrings *strings = [FixtureStrings stringsReturning:@"Vorderseite"];
  [box applyLocalizableStrings:@"Front" BundleInfo:(NSBundle *)strings];
  EXPECT_EQ(text([box title]), "Vorderseite");
  EXPECT_EQ(text([strings lastLookup]), "Front|(null)|(null)");
}

TEST_F(BoxItem, ShowsTheKeyWhenTheLookupReturnsNull) {
  [box applyLocalizableStrings:@"Front"
                    BundleInfo:(NSBundle *)[FixtureStrings stringsReturning:nil]];
  EXPECT_EQ(text([box title]), "Front");
}

TEST_F(BoxItem, ShowsAKeyThatTheBundleLacks) {
  [box applyLocalizableStrings:@"NoSuchKey" BundleInfo:[NSBundle mainBundle]];
  EXPECT_EQ(text([box title]), "NoSuchKey");
}

} // namespace
