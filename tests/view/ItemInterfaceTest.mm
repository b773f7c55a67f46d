// Each view item as the Objective-C runtime describes it: its superclass, protocols, fields and
// methods.
#import "MorvaADPBoxItemRV2.h"
#import "MorvaADPButtonRV2.h"
#import "MorvaADPIntegerTextFieldItemRV2.h"
#import "MorvaADPLabelItemRV2.h"
#import "MorvaADPStepperItemRV2.h"

#import "ClassTable.h"

#include <gtest/gtest.h>

using imageposition::test::fieldsOf;
using imageposition::test::operationsOf;

namespace {

struct ItemRow {
  const char *name;
  const char *base;
  std::vector<const char *> protocols;
  std::vector<std::string> fields;
  std::vector<const char *> operations;
};

std::ostream &operator<<(std::ostream &out, const ItemRow &row) { return out << row.name; }

const std::vector<const char *> kAllProtocols = {"ViewAvailableInterface", "LocalizableInterface",
                                                 "ActionInterface",        "TextFieldInterface",
                                                 "IntegerInterface",       "StepperInterface"};

class ViewItemClass : public testing::TestWithParam<ItemRow> {
protected:
  Class itemClass() { return objc_getClass(GetParam().name); }
};

TEST_P(ViewItemClass, DerivesFromTheAppKitControl) {
  EXPECT_STREQ(class_getName(class_getSuperclass(itemClass())), GetParam().base);
}

TEST_P(ViewItemClass, ConformsToExactlyItsProtocols) {
  for (const char *name : kAllProtocols) {
    bool expected = false;
    for (const char *own : GetParam().protocols) {
      expected = expected || std::string(own) == name;
    }
    Protocol *protocol = NSProtocolFromString([NSString stringWithUTF8String:name]);
    ASSERT_NE(protocol, nullptr) << name;
    EXPECT_EQ([itemClass() conformsToProtocol:protocol] != NO, expected) << name;
  }
}

TEST_P(ViewItemClass, HasItsFieldsInOrder) { EXPECT_EQ(fieldsOf(itemClass()), GetParam().fields); }

TEST_P(ViewItemClass, ImplementsItsMethodsItself) {
  const auto operations = operationsOf(itemClass());
  for (const char *name : GetParam().operations) {
    EXPECT_EQ(operations.count(name), 1U) << name;
  }
}

INSTANTIATE_TEST_SUITE_P(
    Items, ViewItemClass,
    testing::Values(ItemRow{"MorvaADPLabelItemRV2",
                            "NSTextField",
                            {"ViewAvailableInterface", "LocalizableInterface"},
                            {"ViewState C"},
                            {"setViewAvailable:", "applyLocalizableStrings:BundleInfo:",
                             "setRangeStrings:"}},
                    ItemRow{"MorvaADPIntegerTextFieldItemRV2",
                            "NSTextField",
                            {"ActionInterface", "ViewAvailableInterface", "TextFieldInterface",
                             "IntegerInterface"},
                            {"ViewState C", "Max i", "Min i"},
                            {"setRange:Min:", "init", "setViewAvailable:", "catchEventCall",
                             "textDidChange:", "getString", "getInt", "setString:"}},
                    ItemRow{"MorvaADPStepperItemRV2",
                            "NSStepper",
                            {"ActionInterface", "ViewAvailableInterface", "StepperInterface"},
                            {"ViewState C"},
                            {"setViewAvailable:", "catchEventCall", "getSteps"}},
                    ItemRow{"MorvaADPBoxItemRV2",
                            "NSBox",
                            {"ViewAvailableInterface", "LocalizableInterface"},
                            {"ViewState C"},
                            {"setViewAvailable:", "applyLocalizableStrings:BundleInfo:"}}),
    [](const auto &row) { return std::string(row.param.name); });

TEST(ItemProtocols, FlagsAreOneByte) {
  struct objc_method_description description = protocol_getMethodDescription(
      @protocol(ViewAvailableInterface), @selector(setViewAvailable:), YES, YES);
  NSMethodSignature *signature = [NSMethodSignature signatureWithObjCTypes:description.types];
  NSUInteger size = 0;
  NSGetSizeAndAlignment([signature getArgumentTypeAtIndex:2], &size, nullptr);
  EXPECT_EQ(size, 1U);
}

TEST(ItemProtocols, RangesAndStepsAre32Bit) {
  NSMethodSignature *range =
      [MorvaADPIntegerTextFieldItemRV2 instanceMethodSignatureForSelector:@selector(setRange:Min:)];
  EXPECT_STREQ([range getArgumentTypeAtIndex:2], @encode(int32_t));
  EXPECT_STREQ([range getArgumentTypeAtIndex:3], @encode(int32_t));
  NSMethodSignature *number =
      [MorvaADPIntegerTextFieldItemRV2 instanceMethodSignatureForSelector:@selector(getInt)];
  EXPECT_STREQ([number methodReturnType], @encode(int32_t));
  NSMethodSignature *steps =
      [MorvaADPStepperItemRV2 instanceMethodSignatureForSelector:@selector(getSteps)];
  EXPECT_STREQ([steps methodReturnType], @encode(int32_t));
}

TEST(ItemProtocols, OnlyLabelsTakeRangeStrings) {
  EXPECT_TRUE([MorvaADPLabelItemRV2 instancesRespondToSelector:@selector(setRangeStrings:)]);
  EXPECT_FALSE(
      [MorvaADPIntegerTextFieldItemRV2 instancesRespondToSelector:@selector(setRangeStrings:)]);
  EXPECT_FALSE([MorvaADPBoxItemRV2 instancesRespondToSelector:@selector(setRangeStrings:)]);
}

} // namespace
