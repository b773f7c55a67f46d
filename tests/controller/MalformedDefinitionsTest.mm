// Property lists that are well-formed but wrong: none of them may crash the print dialog.
#import "ControllerFixture.h"

using namespace imageposition::test;
using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

namespace {

class MalformedDefinitions : public ControllerFixture {
protected:
  /// A controller whose first setting has this value under the key, or no such entry for null.
  MorvaADPSettingsCollectorRV2 *makeWith(const char *key, id object) {
    NSMutableDictionary *record = definition("FrontLRM");
    if (object == nil)
      [record removeObjectForKey:nsString(key)];
    else
      [record setObject:object forKey:nsString(key)];
    NSMutableDictionary *all = fourDefinitions();
    [all setObject:record forKey:@"0"];
    writeBundle(all);
    return make();
  }

  static NSArray *list() { return [NSArray arrayWithObject:@"-5:5"]; }
  static NSNumber *number() { return [NSNumber numberWithInt:7]; }
};

TEST_F(MalformedDefinitions, ARangeWithoutColonIsLoggedAndNoControllerIsBuilt) {
  EXPECT_EQ(makeWith("Range", @"20"), nil);
  EXPECT_THAT(log->lines(), ElementsAre(AllOf(HasSubstr("FrontLRM"), HasSubstr("Range"))));
}

TEST_F(MalformedDefinitions, AnEmptyRangeCountsAsOneWithoutColon) {
  EXPECT_EQ(makeWith("Range", @""), nil);
  EXPECT_EQ(log->lines().size(), 1U);
}

TEST_F(MalformedDefinitions, AWordingOfFewerThanThreePartsIsLoggedAndNoControllerIsBuilt) {
  for (NSString *wording : {@"", @"{min}", @"{min}:{max}"}) {
    log->clear();
    EXPECT_EQ(makeWith("RangeLabelWording", wording), nil);
    EXPECT_THAT(log->lines(),
                ElementsAre(AllOf(HasSubstr("FrontLRM"), HasSubstr("RangeLabelWording"))));
  }
}

TEST_F(MalformedDefinitions, AMissingWordingIsLoggedAndNoControllerIsBuilt) {
  EXPECT_EQ(makeWith("RangeLabelWording", nil), nil);
  EXPECT_THAT(log->lines(),
              ElementsAre(AllOf(HasSubstr("FrontLRM"), HasSubstr("RangeLabelWording"))));
}

TEST_F(MalformedDefinitions, AWordingThatIsNotAStringCountsAsMissing) {
  EXPECT_EQ(makeWith("RangeLabelWording", list()), nil);
  EXPECT_EQ(makeWith("RangeLabelWording", number()), nil);
}

TEST_F(MalformedDefinitions, AMissingRangeAllowsZeroOnly) {
  ASSERT_NE(makeWith("Range", nil), nil);
  EXPECT_EQ(field<int32_t>(setting("FrontLRM"), "Max"), 0);
  EXPECT_EQ(field<int32_t>(setting("FrontLRM"), "Min"), 0);
}

TEST_F(MalformedDefinitions, ARangeThatIsNotAStringCountsAsMissing) {
  for (id object : {static_cast<id>(list()), static_cast<id>(number())}) {
    ASSERT_NE(makeWith("Range", object), nil);
    EXPECT_EQ(field<int32_t>(setting("FrontLRM"), "Max"), 0);
  }
}

TEST_F(MalformedDefinitions, ExtraPartsAreIgnored) {
  ASSERT_NE(makeWith("Range", @"-5:6:7"), nil);
  EXPECT_EQ(field<int32_t>(setting("FrontLRM"), "Min"), -5);
  EXPECT_EQ(field<int32_t>(setting("FrontLRM"), "Max"), 6);
  ASSERT_NE(makeWith("RangeLabelWording", @"a:b:c:d"), nil);
  EXPECT_EQ(cxxString(field<id>(setting("FrontLRM"), "ValueRangeLabelLocalizeKey")), "c");
}

TEST_F(MalformedDefinitions, ADefaultMayBeANumber) {
  ASSERT_NE(makeWith("DefaultValue", number()), nil);
  EXPECT_EQ(value("FrontLRM"), 7);
}

TEST_F(MalformedDefinitions, ADefaultThatIsNeitherStringNorNumberCountsAsMissing) {
  ASSERT_NE(makeWith("DefaultValue", list()), nil);
  EXPECT_EQ(value("FrontLRM"), 0);
  ASSERT_NE(makeWith("DefaultValue", nil), nil);
  EXPECT_EQ(value("FrontLRM"), 0);
}

TEST_F(MalformedDefinitions, ANameThatIsNotAStringIsIgnored) {
  ASSERT_NE(makeWith("SettingName", number()), nil);
  EXPECT_EQ(setting("FrontLRM"), nil);
  ASSERT_NE(makeWith("SettingName", list()), nil);
  EXPECT_EQ(setting("FrontLRM"), nil);
}

TEST_F(MalformedDefinitions, ARecordThatIsNotADictionaryIsIgnored) {
  for (id object : {static_cast<id>(@"FrontLRM"), static_cast<id>(number()),
                    static_cast<id>([NSArray arrayWithObject:definition("FrontLRM")]),
                    static_cast<id>([NSData data])}) {
    NSMutableDictionary *all = fourDefinitions();
    [all setObject:object forKey:@"0"];
    writeBundle(all);
    ASSERT_NE(make(), nil);
    EXPECT_EQ(setting("FrontLRM"), nil);
    EXPECT_NE(setting("FrontTBM"), nil);
    [controller prepareForShow];
    [controller getSummaryInfo];
  }
}

TEST_F(MalformedDefinitions, ATicketKeyThatIsNotAStringCountsAsMissing) {
  for (id object : {static_cast<id>(list()), static_cast<id>(number()), static_cast<id>(nil)}) {
    ASSERT_NE(makeWith("TicketKey", object), nil);
    settings->forgetCalls();
    [controller prepareForShow];
    [controller saveTicket];
    EXPECT_EQ(value("FrontLRM"), 0);
    EXPECT_EQ(value("BackTBM"), 0);
    EXPECT_EQ(settings->text("BackTBMTicket"), "0");
  }
}

TEST_F(MalformedDefinitions, ASummaryNameThatIsNotAStringCountsAsMissing) {
  for (id object : {static_cast<id>(list()), static_cast<id>(number()), static_cast<id>(nil)}) {
    ASSERT_NE(makeWith("SummaryInfoName", object), nil);
    EXPECT_EQ([setting("FrontLRM") getSummaryInfoName], nil);
    NSDictionary *summary = [controller getSummaryInfo];
    ASSERT_NE(summary, nil);
    EXPECT_EQ([summary count], 6U);
  }
}

TEST_F(MalformedDefinitions, RulesOfWrongTypesAreSkipped) {
  NSMutableDictionary *table =
      rules({{"", "PPD", "AdjustDuplexPositionSupport", "true", "FrontLRM", "Value", "5"},
             {"FrontTBM", "Setting", "Value", "0", "BackLRM", "Value", "6"}});
  [table setObject:@"a string" forKey:@"2"];
  [table setObject:number() forKey:@"3"];
  [table setObject:list() forKey:@"4"];
  NSMutableDictionary *odd = [NSMutableDictionary dictionary];
  for (const char *key : {"ConditionObj", "ConditionType", "ConditionPattern", "ConditionValue",
                          "ActionObj", "ActionPattern", "ActionValue"})
    [odd setObject:list() forKey:nsString(key)];
  [table setObject:odd forKey:@"5"];
  NSMutableDictionary *numbers = [NSMutableDictionary dictionaryWithDictionary:odd];
  [numbers setObject:@"BackTBM" forKey:@"ActionObj"];
  [numbers setObject:@"Setting" forKey:@"ConditionType"];
  [numbers setObject:@"Range" forKey:@"ConditionPattern"];
  [numbers setObject:number() forKey:@"ConditionValue"];
  [numbers setObject:@"Value" forKey:@"ActionPattern"];
  [numbers setObject:number() forKey:@"ActionValue"];
  [table setObject:numbers forKey:@"6"];
  writeBundle(fourDefinitions(), table);
  ASSERT_NE(make(), nil);
  [controller CBSCInitializeView];
  [controller prepareForShow];
  [controller notifyUI];
  EXPECT_EQ(value("BackLRM"), 6) << "the valid rule among them is applied";
  EXPECT_EQ(value("BackTBM"), 0);
}

TEST_F(MalformedDefinitions, NoErrorIsLoggedForValidDefinitions) {
  writeBundle();
  ASSERT_NE(make(), nil);
  EXPECT_THAT(logWithoutTraces(), IsEmpty());
}

} // namespace
