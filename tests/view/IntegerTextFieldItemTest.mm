#import "ItemFixture.h"

#import "MorvaADPIntegerTextFieldItemRV2.h"

#include <cstdint>
#include <limits>

/// Records every string that the field receives through `setString:`.
@interface RecordingEntryField : MorvaADPIntegerTextFieldItemRV2 {
  NSMutableArray *given;
}
- (NSArray *)given;
@end

@implementation RecordingEntryField
- (void)dealloc {
  [given release];
  [super dealloc];
}
- (void)setString:(NSString *)string {
  if (given == nil) {
    given = [[NSMutableArray alloc] init];
  }
  [given addObject:string];
  [super setString:string];
}
- (NSArray *)given {
  return given;
}
@end

/// A string of any UTF-16 units, lone surrogates included, which NSString's initializers refuse.
@interface UnitsString : NSString {
  unichar units[16];
  NSUInteger count;
}
+ (NSString *)stringWithUnits:(const std::u16string &)text;
@end

@implementation UnitsString
+ (NSString *)stringWithUnits:(const std::u16string &)text {
  UnitsString *string = [[[UnitsString alloc] init] autorelease];
  string->count = text.size();
  for (size_t i = 0; i < text.size(); ++i) {
    string->units[i] = text[i];
  }
  return string;
}
- (NSUInteger)length {
  return count;
}
- (unichar)characterAtIndex:(NSUInteger)index {
  return units[index];
}
- (id)copyWithZone:(NSZone *)zone {
  (void)zone;
  return [self retain];
}
@end

/// An entry field that contains such a string.
@interface UnitsEntryField : RecordingEntryField {
@public
  NSString *held;
}
@end

@implementation UnitsEntryField
- (NSString *)stringValue {
  return held != nil ? held : [super stringValue];
}
- (void)setString:(NSString *)string {
  held = nil;
  [super setString:string];
}
@end

namespace {

using imageposition::test::isLightGray;
using imageposition::test::ItemFixture;

class EntryField : public ItemFixture {
protected:
  void SetUp() override {
    ItemFixture::SetUp();
    entry = make([RecordingEntryField class]);
  }

  id make(Class type) {
    return [[(NSView *)[type alloc] initWithFrame:NSMakeRect(0, 0, 80, 22)] autorelease];
  }

  /// What the field shows after the text was changed to `typed`.
  std::string shownAfter(const std::string &typed) {
    [entry setStringValue:[NSString stringWithUTF8String:typed.c_str()]];
    [entry textDidChange:nil];
    return text([entry stringValue]);
  }

  RecordingEntryField *entry = nil;
};

TEST_F(EntryField, CreatedInCodeHasTheRangeZeroToZero) {
  MorvaADPIntegerTextFieldItemRV2 *made =
      [[[MorvaADPIntegerTextFieldItemRV2 alloc] init] autorelease];
  ASSERT_NE(made, nil);
  EXPECT_EQ(field<int32_t>(made, "Max"), 0);
  EXPECT_EQ(field<int32_t>(made, "Min"), 0);
}

TEST_F(EntryField, SecondInitResetsTheRange) {
  MorvaADPIntegerTextFieldItemRV2 *made = [MorvaADPIntegerTextFieldItemRV2 alloc];
  field<int32_t>(made, "Max") = 7;
  field<int32_t>(made, "Min") = -7;
  made = [[made init] autorelease];
  EXPECT_EQ(field<int32_t>(made, "Max"), 0);
  EXPECT_EQ(field<int32_t>(made, "Min"), 0);
}

TEST_F(EntryField, LoadedFromAnInterfaceFileHasTheRangeZeroToZero) {
  MorvaADPIntegerTextFieldItemRV2 *loaded = imageposition::test::entryFieldFromInterfaceFile();
  ASSERT_NE(loaded, nil);
  EXPECT_STREQ(object_getClassName(loaded), "MorvaADPIntegerTextFieldItemRV2");
  EXPECT_EQ(field<int32_t>(loaded, "Max"), 0);
  EXPECT_EQ(field<int32_t>(loaded, "Min"), 0);
  [loaded setStringValue:@"5"];
  [loaded textDidChange:nil];
  EXPECT_EQ(text([loaded stringValue]), "0");
}

TEST_F(EntryField, TakesTheMaximumFirst) {
  [entry setRange:10 Min:-20];
  EXPECT_EQ(field<int32_t>(entry, "Max"), 10);
  EXPECT_EQ(field<int32_t>(entry, "Min"), -20);
}

TEST_F(EntryField, StoresInvertedBoundsAsGiven) {
  [entry setRange:-5 Min:5];
  EXPECT_EQ(field<int32_t>(entry, "Max"), -5);
  EXPECT_EQ(field<int32_t>(entry, "Min"), 5);
}

TEST_F(EntryField, SettingTheRangeKeepsTheText) {
  [entry setStringValue:@"99"];
  [entry setRange:10 Min:-10];
  EXPECT_EQ(text([entry stringValue]), "99");
}

struct EditRow {
  int32_t min;
  int32_t max;
  const char *typed;
  const char *shown;
};

std::ostream &operator<<(std::ostream &out, const EditRow &row) {
  return out << '\'' << row.typed << "' in " << row.min << ".." << row.max;
}

class EntryFieldEdit : public EntryField, public testing::WithParamInterface<EditRow> {};

TEST_P(EntryFieldEdit, ShowsTheFilteredText) {
  [entry setRange:GetParam().max Min:GetParam().min];
  EXPECT_EQ(shownAfter(GetParam().typed), GetParam().shown);
}

INSTANTIATE_TEST_SUITE_P(MinusTenToTen, EntryFieldEdit,
                         testing::Values(EditRow{-10, 10, "12", "10"},
                                         EditRow{-10, 10, "-15", "-10"},
                                         EditRow{-10, 10, "-3", "-3"}, EditRow{-10, 10, "0x5", "5"},
                                         EditRow{-10, 10, "7-2", "7"}, EditRow{-10, 10, "-", "-"},
                                         EditRow{-10, 10, "-0", "-0"}, EditRow{-10, 10, "--4", "0"},
                                         EditRow{-10, 10, "abc", "0"}));

INSTANTIATE_TEST_SUITE_P(
    OtherEntries, EntryFieldEdit,
    testing::Values(EditRow{-10, 100, "1a2b3", "100"}, EditRow{-10, 10, "+5", "5"},
                    EditRow{-10, 10, "007", "7"}, EditRow{-10, 10, "5-", "5"},
                    EditRow{-10, 10, "-05", "-5"}, EditRow{-10, 10, "", "0"},
                    EditRow{-10, 10, "--", "0"}, EditRow{-10, 10, "-00", "0"},
                    EditRow{-10, 10, "-0-", "0"}, EditRow{-10, 10, "12-3", "10"},
                    EditRow{-100, 100, "12-3", "12"}, EditRow{-10, 10, "--5", "0"},
                    EditRow{-10, 10, " 4 ", "4"}, EditRow{-100, 100, "1.5", "15"},
                    EditRow{-100, 100, "1,5", "15"}, EditRow{-10, 10, "\n3\t", "3"}));

// Only ASCII digits and the ASCII minus count, whatever bytes other characters have in UTF-8.
INSTANTIATE_TEST_SUITE_P(
    OtherScripts, EntryFieldEdit,
    testing::Values(EditRow{-10, 10, "\xd9\xa3", "0"},         // Arabic-Indic three
                    EditRow{-10, 10, "\xef\xbc\x95", "0"},     // full-width five
                    EditRow{-10, 10, "\xe2\x88\x92\x34", "4"}, // minus sign U+2212, 4
                    EditRow{-10, 10, "\xe2\x80\x93\x34", "4"}, // en dash, 4
                    EditRow{-10, 10, "\xf0\x9f\x98\x80\x36", "6"},
                    EditRow{-10, 10, "\xf0\x9d\x9f\x97", "0"}, // mathematical nine
                    EditRow{-10, 10, "\xc3\xa9\x37", "7"}));

INSTANTIATE_TEST_SUITE_P(
    Numbers, EntryFieldEdit,
    testing::Values(EditRow{-10, 10, "99999999999", "10"}, EditRow{-10, 10, "-99999999999", "-10"},
                    EditRow{INT32_MIN, INT32_MAX, "99999999999", "2147483647"},
                    EditRow{INT32_MIN, INT32_MAX, "-99999999999", "-2147483648"},
                    EditRow{INT32_MIN, INT32_MAX, "2147483648", "2147483647"},
                    EditRow{INT32_MIN, INT32_MAX, "-2147483649", "-2147483648"},
                    EditRow{INT32_MIN, INT32_MAX, "99999999999999999999", "2147483647"},
                    EditRow{-10, 10, "3000000000", "10"}, EditRow{-10, 10, "4294967301", "10"}));

INSTANTIATE_TEST_SUITE_P(RangesWithoutZero, EntryFieldEdit,
                         testing::Values(EditRow{1, 10, "-", "1"}, EditRow{1, 10, "-0", "1"},
                                         EditRow{1, 10, "", "1"}, EditRow{-10, -1, "-", "-1"},
                                         EditRow{-10, -1, "-0", "-1"}, EditRow{-10, -1, "", "-1"},
                                         EditRow{1, 10, "-5", "1"}, EditRow{-10, -1, "5", "-1"}));

INSTANTIATE_TEST_SUITE_P(BeforeTheRangeIsKnown, EntryFieldEdit,
                         testing::Values(EditRow{0, 0, "5", "0"}, EditRow{0, 0, "-5", "0"},
                                         EditRow{0, 0, "", "0"}, EditRow{0, 0, "abc", "0"},
                                         EditRow{0, 0, "-", "-"}, EditRow{0, 0, "-0", "-0"}));

// The maximum is tested first.
INSTANTIATE_TEST_SUITE_P(InvertedRange, EntryFieldEdit,
                         testing::Values(EditRow{10, 5, "7", "5"}, EditRow{10, 5, "20", "5"},
                                         EditRow{10, 5, "3", "10"}, EditRow{10, 5, "5", "10"}));

TEST_F(EntryField, MinusZeroStaysUntilTheNextEditMakesItANumber) {
  [entry setRange:10 Min:-10];
  EXPECT_EQ(shownAfter("-0"), "-0");
  EXPECT_EQ(shownAfter("-05"), "-5");
}

TEST_F(EntryField, BeforeItsRangeIsSetOnlyTheBeginningOfANumberIsKept) {
  EXPECT_EQ(shownAfter("5"), "0");
  EXPECT_EQ(shownAfter("-"), "-");
  EXPECT_EQ(shownAfter("-0"), "-0");
}

TEST_F(EntryField, ShowsTheResultOfAnEditThroughSetStringOnce) {
  [entry setRange:10 Min:-10];
  shownAfter("12");
  ASSERT_EQ([[entry given] count], 1U);
  EXPECT_EQ(text([[entry given] objectAtIndex:0]), "10");
}

TEST_F(EntryField, SetsTheTextEvenIfItIsUnchanged) {
  [entry setRange:10 Min:-10];
  shownAfter("5");
  shownAfter("-");
  ASSERT_EQ([[entry given] count], 2U);
  EXPECT_EQ(text([[entry given] objectAtIndex:0]), "5");
  EXPECT_EQ(text([[entry given] objectAtIndex:1]), "-");
}

TEST_F(EntryField, PostsNoNotificationOfAnEdit) {
  FixtureListener *listener = [FixtureListener listenerFor:NSControlTextDidChangeNotification
                                                    object:entry];
  [entry setRange:10 Min:-10];
  shownAfter("5");
  EXPECT_EQ([listener count], 0);
  [[NSNotificationCenter defaultCenter] postNotificationName:NSControlTextDidChangeNotification
                                                      object:entry];
  EXPECT_EQ([listener count], 1) << "the listener receives such notifications";
}

struct UnitsRow {
  std::u16string units;
  const char *shown;
};

class EntryFieldUnits : public EntryField, public testing::WithParamInterface<UnitsRow> {};

TEST_P(EntryFieldUnits, DropsLoneSurrogates) {
  UnitsEntryField *broken = make([UnitsEntryField class]);
  [broken setRange:1000 Min:-1000];
  broken->held = [UnitsString stringWithUnits:GetParam().units];
  [broken textDidChange:nil];
  EXPECT_EQ(text([broken stringValue]), GetParam().shown);
}

INSTANTIATE_TEST_SUITE_P(LoneSurrogates, EntryFieldUnits,
                         testing::Values(UnitsRow{{u'-', 0xD83D, u'3'}, "-3"},
                                         UnitsRow{{0xDE00, u'4'}, "4"},
                                         UnitsRow{{u'1', u'2', 0xD83D}, "12"},
                                         UnitsRow{{0xD83D}, "0"},
                                         UnitsRow{{0xDE00, 0xD83D, u'-'}, "-"},
                                         UnitsRow{{u'5', 0xD83D, 0xDE00, u'6'}, "56"},
                                         UnitsRow{{0xD83D, 0xD830, 0xDC39}, "0"}));

TEST_F(EntryField, ReturnsItsTextUnchanged) {
  [entry setStringValue:@"0x5"];
  EXPECT_EQ(text([entry getString]), "0x5");
}

TEST_F(EntryField, ShowsAGivenTextUnfiltered) {
  [entry setRange:10 Min:-10];
  [entry setString:@"12 abc"];
  EXPECT_EQ(text([entry stringValue]), "12 abc");
}

struct NumberRow {
  const char *shown;
  int32_t number;
};

class EntryFieldNumber : public EntryField, public testing::WithParamInterface<NumberRow> {};

TEST_P(EntryFieldNumber, ReadsTheShownNumber) {
  [entry setStringValue:[NSString stringWithUTF8String:GetParam().shown]];
  EXPECT_EQ([entry getInt], GetParam().number) << GetParam().shown;
}

INSTANTIATE_TEST_SUITE_P(
    Numbers, EntryFieldNumber,
    testing::Values(NumberRow{"0", 0}, NumberRow{"-3", -3}, NumberRow{"", 0}, NumberRow{"-", 0},
                    NumberRow{"-0", 0}, NumberRow{"12abc", 12}, NumberRow{" 7", 7},
                    NumberRow{"+7", 7}, NumberRow{"--4", 0}, NumberRow{"2147483647", INT32_MAX},
                    NumberRow{"2147483648", INT32_MAX}, NumberRow{"3000000000", INT32_MAX},
                    NumberRow{"99999999999999999999", INT32_MAX},
                    NumberRow{"-2147483648", INT32_MIN}, NumberRow{"-2147483649", INT32_MIN},
                    NumberRow{"-3000000000", INT32_MIN},
                    NumberRow{"-99999999999999999999", INT32_MIN}));

TEST_F(EntryField, ThreeThousandMillionReadsAsTheLargestNumber) {
  [entry setStringValue:@"3000000000"];
  EXPECT_EQ([entry getInt], 2147483647);
}

TEST_F(EntryField, MadeAvailableIsEnabledAndKeepsItsColour) {
  [entry setEnabled:NO];
  [entry setTextColor:[NSColor redColor]];
  [entry setViewAvailable:YES];
  EXPECT_TRUE([entry isEnabled]);
  EXPECT_TRUE([[entry textColor] isEqual:[NSColor redColor]]);
  EXPECT_EQ(field<BOOL>(entry, "ViewState"), YES);
}

TEST_F(EntryField, MadeUnavailableIsDisabledAndLightGray) {
  [entry setViewAvailable:NO];
  EXPECT_FALSE([entry isEnabled]);
  EXPECT_TRUE(isLightGray([entry textColor]));
  EXPECT_EQ(field<BOOL>(entry, "ViewState"), NO);
}

TEST_F(EntryField, MadeUnavailableThenAvailableIsEnabledButStillLightGray) {
  [entry setViewAvailable:NO];
  [entry setViewAvailable:YES];
  EXPECT_TRUE([entry isEnabled]);
  EXPECT_TRUE(isLightGray([entry textColor]));
}

TEST_F(EntryField, CatchEventCallChangesNothing) {
  [entry setStringValue:@"0x5"];
  [entry catchEventCall];
  EXPECT_EQ(text([entry stringValue]), "0x5");
  EXPECT_EQ([[entry given] count], 0U);
}

} // namespace
