#import "ItemFixture.h"

#import "MorvaADPStepperItemRV2.h"

#include <cstdint>

namespace {

using imageposition::test::clickInside;
using imageposition::test::ItemFixture;

class StepperItem : public ItemFixture {
protected:
  void SetUp() override {
    ItemFixture::SetUp();
    stepper =
        [[[MorvaADPStepperItemRV2 alloc] initWithFrame:NSMakeRect(10, 10, 16, 24)] autorelease];
    [stepper setMinValue:-1000];
    [stepper setMaxValue:1000];
    [stepper setIncrement:1];
    [stepper setValueWraps:NO];
    [[window contentView] addSubview:stepper];
  }

  void stepUp() { clickInside(stepper, NSMakePoint(18, 29)); }
  void stepDown() { clickInside(stepper, NSMakePoint(18, 15)); }

  MorvaADPStepperItemRV2 *stepper = nil;
};

TEST_F(StepperItem, CountsTwoUpClicksAndResetsTheCount) {
  stepUp();
  stepUp();
  EXPECT_EQ([stepper getSteps], 2);
  EXPECT_EQ([stepper intValue], 0);
  EXPECT_EQ([stepper getSteps], 0);
}

TEST_F(StepperItem, CountsUpClicksMinusDownClicks) {
  stepUp();
  stepDown();
  stepDown();
  stepDown();
  EXPECT_EQ([stepper getSteps], -2);
  EXPECT_EQ([stepper getSteps], 0);
}

TEST_F(StepperItem, CountsInItsIncrement) {
  [stepper setIncrement:5];
  stepUp();
  EXPECT_EQ([stepper getSteps], 5);
}

TEST_F(StepperItem, StartsAgainFromZeroAfterARead) {
  stepUp();
  [stepper getSteps];
  stepDown();
  EXPECT_EQ([stepper getSteps], -1);
}

TEST_F(StepperItem, MadeAvailableIsEnabled) {
  [stepper setEnabled:NO];
  [stepper setViewAvailable:YES];
  EXPECT_TRUE([stepper isEnabled]);
  EXPECT_EQ(field<BOOL>(stepper, "ViewState"), YES);
}

TEST_F(StepperItem, MadeUnavailableIsDisabledAndKeepsItsCount) {
  [stepper setViewAvailable:YES];
  stepUp();
  [stepper setViewAvailable:NO];
  EXPECT_FALSE([stepper isEnabled]);
  EXPECT_EQ(field<BOOL>(stepper, "ViewState"), NO);
  EXPECT_EQ([stepper getSteps], 1);
}

TEST_F(StepperItem, ADisabledStepperIgnoresClicks) {
  [stepper setViewAvailable:NO];
  stepUp();
  EXPECT_EQ([stepper getSteps], 0);
}

TEST_F(StepperItem, CatchEventCallChangesNothing) {
  stepUp();
  [stepper catchEventCall];
  EXPECT_EQ([stepper getSteps], 1);
}

} // namespace
