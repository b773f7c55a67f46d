// The entry field with AppKit's field editor, as while a user types.
#import "ItemFixture.h"

#import "MorvaADPIntegerTextFieldItemRV2.h"

namespace {

using imageposition::test::ItemFixture;

class EntryFieldTyping : public ItemFixture {
protected:
  void SetUp() override {
    ItemFixture::SetUp();
    entry = [[[MorvaADPIntegerTextFieldItemRV2 alloc] initWithFrame:NSMakeRect(10, 10, 80, 22)]
        autorelease];
    [entry setRange:100 Min:-100];
    [[window contentView] addSubview:entry];
    // A field can be edited only after it was drawn, so the window must be on the screen.
    [window makeKeyAndOrderFront:nil];
    if ([entry currentEditor] == nil) {
      ASSERT_TRUE([window makeFirstResponder:entry]);
    }
    ASSERT_NE([entry currentEditor], nil);
  }

  NSTextView *editor() { return (NSTextView *)[entry currentEditor]; }

  /// Fills the editor with `before|after`, where the bar is the insertion point.
  void put(const std::string &marked) {
    const size_t bar = marked.find('|');
    [editor()
        setString:[NSString stringWithUTF8String:(marked.substr(0, bar) + marked.substr(bar + 1))
                                                     .c_str()]];
    [editor() setSelectedRange:NSMakeRange(bar, 0)];
  }

  void type(const char *typed) {
    for (const char *c = typed; *c != '\0'; ++c) {
      [editor() insertText:[NSString stringWithFormat:@"%c", *c]];
    }
  }

  /// The editor's text, with the insertion point as a bar or the selection between two bars.
  std::string seen() {
    std::string shown = text([editor() string]);
    const NSRange selected = [editor() selectedRange];
    shown.insert(NSMaxRange(selected), "|");
    if (selected.length > 0) {
      shown.insert(selected.location, "|");
    }
    return shown;
  }

  MorvaADPIntegerTextFieldItemRV2 *entry = nil;
};

TEST_F(EntryFieldTyping, MinusThenThreeShowsMinusThree) {
  put("|");
  type("-3");
  EXPECT_EQ(seen(), "-3|");
  EXPECT_EQ([entry getInt], -3);
}

TEST_F(EntryFieldTyping, EachKeyFollowsTheOneBefore) {
  put("|");
  type("-");
  EXPECT_EQ(seen(), "-|");
  type("4");
  EXPECT_EQ(seen(), "-4|");
  type("2");
  EXPECT_EQ(seen(), "-42|");
}

TEST_F(EntryFieldTyping, ADroppedCharacterDoesNotMoveTheInsertionPoint) {
  put("1|2");
  type("x");
  EXPECT_EQ(seen(), "1|2");
}

TEST_F(EntryFieldTyping, ADigitInTheMiddleMovesTheInsertionPointBehindIt) {
  [entry setRange:1000 Min:-1000];
  put("1|2");
  type("3");
  EXPECT_EQ(seen(), "13|2");
}

TEST_F(EntryFieldTyping, AMinusAtTheFrontMovesTheInsertionPointBehindIt) {
  put("|42");
  type("-");
  EXPECT_EQ(seen(), "-|42");
}

TEST_F(EntryFieldTyping, ANumberBeyondTheRangeMovesTheInsertionPointToTheEnd) {
  put("10|");
  type("1");
  EXPECT_EQ(seen(), "100|");
}

TEST_F(EntryFieldTyping, StrayMinusAtTheEndIsDropped) {
  put("7|");
  type("-2");
  EXPECT_EQ(seen(), "72|");
}

TEST_F(EntryFieldTyping, ADigitReplacesALeadingZero) {
  put("0|");
  type("7");
  EXPECT_EQ(seen(), "7|");
}

TEST_F(EntryFieldTyping, MinusZeroIsKeptUntilADigitFollows) {
  put("|");
  type("-0");
  EXPECT_EQ(seen(), "-0|");
  type("5");
  EXPECT_EQ(seen(), "-5|");
}

TEST_F(EntryFieldTyping, PastedTextIsFilteredAsAWhole) {
  [entry setRange:100 Min:-10];
  put("|");
  [editor() insertText:@"1a2b3"];
  EXPECT_EQ(seen(), "100|");
}

TEST_F(EntryFieldTyping, AnEmptiedFieldShowsZero) {
  put("7|");
  [editor() deleteBackward:nil];
  EXPECT_EQ(text([editor() string]), "0");
  EXPECT_EQ([entry getInt], 0);
}

TEST_F(EntryFieldTyping, ReplacingASelectionKeepsTypingAfterIt) {
  put("42|");
  [editor() setSelectedRange:NSMakeRange(0, 2)];
  type("-17");
  EXPECT_EQ(seen(), "-17|");
}

TEST_F(EntryFieldTyping, FilteringDoesNotEndTheEditing) {
  put("|");
  type("x");
  EXPECT_EQ([window firstResponder], editor());
}

TEST_F(EntryFieldTyping, NothingIsSelectedAfterAKey) {
  put("1|");
  type("2");
  EXPECT_EQ([editor() selectedRange].length, 0U);
}

} // namespace
