// The controller as the runtime describes it.
#import "ClassTable.h"
#import "ControllerFixture.h"

using namespace imageposition::test;

namespace {

TEST(ControllerInterface, DerivesFromNSObject) {
  EXPECT_EQ([MorvaADPSettingsCollectorRV2 superclass], [NSObject class]);
}

// Fields that only the code knows may follow.
TEST(ControllerInterface, HasItsFieldsInOrder) {
  Lines fields = fieldsOf([MorvaADPSettingsCollectorRV2 class]);
  ASSERT_GE(fields.size(), 29U);
  fields.resize(29);
  EXPECT_EQ(fields, (Lines{"PDECallback @",
                           "FrontLRMText @",
                           "FrontTBMText @",
                           "BackLRMText @",
                           "BackTBMText @",
                           "FrontLRMStepper @",
                           "FrontTBMStepper @",
                           "BackLRMStepper @",
                           "BackTBMStepper @",
                           "FrontLRMLabel @",
                           "FrontLRMRangeLabel @",
                           "FrontTBMLabel @",
                           "FrontTBMRangeLabel @",
                           "BackLRMLabel @",
                           "BackLRMRangeLabel @",
                           "BackTBMLabel @",
                           "BackTBMRangeLabel @",
                           "FrontLRMSettings @",
                           "FrontTBMSettings @",
                           "BackLRMSettings @",
                           "BackTBMSettings @",
                           "ImagePositionPrintView @",
                           "chkEnableImagePositionAdjust @",
                           "btnRestore2Defalut @",
                           "SettingsList @",
                           "ConstraintInfoDictionary @",
                           "SettingInfoDictionary @",
                           "Bundle @",
                           "ppd ^"}));
}

TEST(ControllerInterface, ImplementsItsMethodsItself) {
  const auto operations = operationsOf([MorvaADPSettingsCollectorRV2 class]);
  for (const char *name : {"initWithCallback:Bundle:",
                           "dealloc",
                           "UIItemActionListener:",
                           "prepareView",
                           "prepareForShow",
                           "notifyUI",
                           "checkSettingsValue",
                           "getSummaryInfo",
                           "getEnableImgPstAdjTicket:",
                           "getTicket",
                           "setEnableImgPstAdjTicket:",
                           "saveTicket",
                           "CBSCInitializeView",
                           "checkImagePositionAdjustValid",
                           "clickRestore2Default:",
                           "grayUI",
                           "setFrontName",
                           "setFrontTBMState:",
                           "setFrontLRMState:",
                           "setBackLRMState:",
                           "setBackTBMState:",
                           "clickEnableImgPositionAdjust:",
                           "restoreDefaults",
                           "clickbtnReasto2Default:"})
    EXPECT_EQ(operations.count(name), 1U) << name;
}

TEST(ControllerInterface, BooleansAreOneByte) {
  for (SEL operation :
       { @selector(getTicket), @selector(saveTicket), @selector(checkImagePositionAdjustValid) }) {
    NSMethodSignature *signature =
        [MorvaADPSettingsCollectorRV2 instanceMethodSignatureForSelector:operation];
    EXPECT_EQ([signature methodReturnLength], 1U) << sel_getName(operation);
  }
}

TEST(ControllerInterface, PublishesTheKeysOfTheSettingRegistry) {
  EXPECT_EQ(cxxString(CBSCKeyInstancePointer), "InstancePointer");
  EXPECT_EQ(cxxString(CBSCKeySettingName), "SettingName");
}

} // namespace
