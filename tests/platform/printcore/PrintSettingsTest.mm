#import "PrintCore.h"

#import "TextBridge.h"

#include <gtest/gtest.h>

#include <memory>

namespace {

using imageposition::PrintSettingsHandle;
using imageposition::PrintSettingsStore;
using imageposition::toString;
using imageposition::toText;

CFStringRef cf(NSString *string) { return (CFStringRef)string; }

class PrintSettings : public testing::Test {
protected:
  OSStatus set(NSString *key, id value, bool locked = false) {
    return PMPrintSettingsSetValue(handle.get(), cf(key), (CFTypeRef)value, locked);
  }

  /// The stored value, or "(status)" if reading failed.
  std::string get(NSString *key) {
    CFTypeRef value = nullptr;
    const OSStatus status = PMPrintSettingsGetValue(handle.get(), cf(key), &value);
    return status == 0 ? toText((NSString *)value) : "(failed)";
  }

  PrintSettingsStore store;
  PrintSettingsHandle handle{store};
};

TEST_F(PrintSettings, AWrittenStringIsReadBack) {
  EXPECT_EQ(set(@"LeftRightMargin", @"-3"), 0);
  EXPECT_EQ(get(@"LeftRightMargin"), "-3");
  EXPECT_STREQ(store.get("LeftRightMargin"), "-3");
}

TEST_F(PrintSettings, AMissingKeyFailsAndLeavesTheOutputUnchanged) {
  int marker = 0;
  CFTypeRef value = &marker;
  EXPECT_NE(PMPrintSettingsGetValue(handle.get(), cf(@"Missing"), &value), 0);
  EXPECT_EQ(value, &marker);
}

TEST_F(PrintSettings, EachNullArgumentFails) {
  CFTypeRef value = nullptr;
  set(@"Key", @"1");
  EXPECT_NE(PMPrintSettingsGetValue(nullptr, cf(@"Key"), &value), 0);
  EXPECT_NE(PMPrintSettingsGetValue(handle.get(), nullptr, &value), 0);
  EXPECT_NE(PMPrintSettingsGetValue(handle.get(), cf(@"Key"), nullptr), 0);
  EXPECT_NE(PMPrintSettingsSetValue(nullptr, cf(@"Key"), (CFTypeRef) @"2", false), 0);
  EXPECT_NE(PMPrintSettingsSetValue(handle.get(), nullptr, (CFTypeRef) @"2", false), 0);
  EXPECT_NE(PMPrintSettingsSetValue(handle.get(), cf(@"Key"), nullptr, false), 0);
  EXPECT_EQ(get(@"Key"), "1");
}

TEST_F(PrintSettings, AWriteToALockedEntryFailsAndChangesNothing) {
  EXPECT_EQ(set(@"Duplex", @"None", true), 0);
  EXPECT_NE(set(@"Duplex", @"DuplexTumble"), 0);
  EXPECT_EQ(get(@"Duplex"), "None");
}

TEST_F(PrintSettings, ANumberIsStoredAsAString) {
  EXPECT_EQ(set(@"A", [NSNumber numberWithInt:-42]), 0);
  EXPECT_EQ(get(@"A"), "-42");
  EXPECT_EQ(set(@"B", [NSNumber numberWithUnsignedInt:4000000000U]), 0);
  EXPECT_EQ(get(@"B"), "4000000000");
}

TEST_F(PrintSettings, OtherObjectsAreRejected) {
  set(@"Key", @"1");
  EXPECT_NE(set(@"Key", [NSArray array]), 0);
  EXPECT_NE(set(@"Key", [NSDictionary dictionary]), 0);
  EXPECT_NE(set(@"Key", [NSNull null]), 0);
  EXPECT_NE(set(@"Key", [NSData data]), 0);
  EXPECT_EQ(get(@"Key"), "1");
}

TEST_F(PrintSettings, UnusableKeysAndValuesAreRejected) {
  const unichar withNul[] = {'a', 0, 'b'};
  NSString *const nul = [NSString stringWithCharacters:withNul length:3];
  EXPECT_NE(set(@"", @"1"), 0);
  EXPECT_NE(set(@"a=b", @"1"), 0);
  EXPECT_NE(set(nul, @"1"), 0);
  EXPECT_NE(set(@"Key", nul), 0);
  EXPECT_NE(set(@"Key", [@"" stringByPaddingToLength:100000 withString:@"v" startingAtIndex:0]), 0);
  EXPECT_EQ(store.optionCount(), 0);
}

TEST_F(PrintSettings, AReadValueStaysValidAcrossPoolsWhileItsEntryIsUnchanged) {
  set(@"Key", @"-3");
  CFTypeRef value = nullptr;
  NSAutoreleasePool *const pool = [[NSAutoreleasePool alloc] init];
  ASSERT_EQ(PMPrintSettingsGetValue(handle.get(), cf(@"Key"), &value), 0);
  set(@"Other", @"1");
  [pool drain];
  EXPECT_EQ(toText((NSString *)value), "-3");
}

TEST_F(PrintSettings, AnUnchangedEntryIsReadAsTheSameObject) {
  set(@"Key", @"-3");
  CFTypeRef first = nullptr, second = nullptr;
  PMPrintSettingsGetValue(handle.get(), cf(@"Key"), &first);
  set(@"key", @"-3");
  PMPrintSettingsGetValue(handle.get(), cf(@"KEY"), &second);
  EXPECT_EQ(first, second);
}

TEST_F(PrintSettings, AValueThatWasReadOutlivesAChangeUntilThePoolIsDrained) {
  set(@"Key", @"before, and too long for a tagged pointer");
  CFTypeRef before = nullptr;
  PMPrintSettingsGetValue(handle.get(), cf(@"Key"), &before);
  set(@"Key", @"after");
  EXPECT_EQ(get(@"Key"), "after");
  EXPECT_EQ(toText((NSString *)before), "before, and too long for a tagged pointer");
}

TEST_F(PrintSettings, AChangeThroughTheStoreIsVisible) {
  set(@"Key", @"1");
  EXPECT_EQ(get(@"Key"), "1");
  store.set("Key", "2");
  EXPECT_EQ(get(@"Key"), "2");
  store.remove("Key");
  EXPECT_EQ(get(@"Key"), "(failed)");
}

TEST_F(PrintSettings, StringsInAnyScriptAreReadBackUnchanged) {
  NSString *const text = toString("\xE5\xB7\xA6 \xF0\x9F\x96\xA8 \xC3\xA4");
  EXPECT_EQ(set(@"Key", text), 0);
  EXPECT_EQ(get(@"Key"), toText(text));
}

TEST(PrintSettingsHandle, ReleasesTheValuesThatWereReadWhenDestroyed) {
  PrintSettingsStore store;
  store.set("Key", "a value, too long for a tagged pointer");
  NSAutoreleasePool *pool = [[NSAutoreleasePool alloc] init];
  auto handle = std::make_unique<PrintSettingsHandle>(store);
  CFTypeRef value = nullptr;
  ASSERT_EQ(PMPrintSettingsGetValue(handle->get(), cf(@"Key"), &value), 0);
  id const kept = [(id)value retain];
  handle.reset();
  [pool drain];
  EXPECT_EQ([kept retainCount], 1U);
  [kept release];
}

} // namespace
