#import "MorvaADPButtonRV2.h"

#import "ClassTable.h"

#include <gtest/gtest.h>

/// Records the effect of `changeState:`. The root class does not even declare `isa`, so it comes
/// first here.
@interface ButtonTestReceiver : MorvaADPButtonRV2 {
@public
  Class isa;
  int calls;
  BOOL enabled;
}
- (void)setEnabled:(BOOL)flag;
@end

@implementation ButtonTestReceiver
- (void)setEnabled:(BOOL)flag {
  ++calls;
  enabled = flag;
}
@end

namespace {

using imageposition::test::fieldsOf;
using imageposition::test::operationsOf;

TEST(Button, IsARootClass) {
  EXPECT_EQ(class_getSuperclass(objc_getClass("MorvaADPButtonRV2")), Nil);
}

TEST(Button, HasOneMethodAndNothingElse) {
  Class button = objc_getClass("MorvaADPButtonRV2");
  EXPECT_EQ(operationsOf(button), std::set<std::string>{"changeState:"});
  // On this runtime a root class itself also responds to its instance methods.
  for (const std::string &name : operationsOf(object_getClass(reinterpret_cast<id>(button)))) {
    EXPECT_EQ(name, "changeState:");
  }
}

TEST(Button, HasNoProtocols) {
  unsigned count = 1;
  free(class_copyProtocolList(objc_getClass("MorvaADPButtonRV2"), &count));
  EXPECT_EQ(count, 0U);
}

TEST(Button, HasNoInstanceVariablesExceptIsa) {
  Class button = objc_getClass("MorvaADPButtonRV2");
  for (const std::string &field : fieldsOf(button)) {
    EXPECT_EQ(field.rfind("isa ", 0), 0U) << field;
  }
}

class ButtonChangeState : public testing::TestWithParam<std::pair<const char *, bool>> {};

TEST_P(ButtonChangeState, SetsTheReceiversEnabledFlagToTheBooleanValue) {
  ButtonTestReceiver *receiver = static_cast<ButtonTestReceiver *>(
      class_createInstance(objc_getClass("ButtonTestReceiver"), 0));
  receiver->enabled = !GetParam().second;
  [receiver changeState:[NSString stringWithUTF8String:GetParam().first]];
  EXPECT_EQ(receiver->calls, 1);
  EXPECT_EQ(receiver->enabled != NO, GetParam().second);
  object_dispose(receiver);
}

INSTANTIATE_TEST_SUITE_P(Strings, ButtonChangeState,
                         testing::Values(std::pair<const char *, bool>{"1", true},
                                         std::pair<const char *, bool>{"YES", true},
                                         std::pair<const char *, bool>{"0", false},
                                         std::pair<const char *, bool>{"NO", false}));

TEST(Button, TakesBoxedNumbers) {
  NSAutoreleasePool *pool = [[NSAutoreleasePool alloc] init];
  ButtonTestReceiver *receiver = static_cast<ButtonTestReceiver *>(
      class_createInstance(objc_getClass("ButtonTestReceiver"), 0));
  [receiver changeState:[NSNumber numberWithBool:YES]];
  EXPECT_TRUE(receiver->enabled);
  [receiver changeState:[NSNumber numberWithBool:NO]];
  EXPECT_FALSE(receiver->enabled);
  [receiver changeState:[NSNumber numberWithInt:256]];
  EXPECT_TRUE(receiver->enabled);
  EXPECT_EQ(receiver->calls, 3);
  object_dispose(receiver);
  [pool release];
}

} // namespace
