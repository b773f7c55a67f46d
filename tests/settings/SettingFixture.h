/// The fixture for tests of settings: a bundle, a PPD, print settings, items and one journal.
#ifndef IMAGEPOSITION_TESTS_SETTINGS_SETTINGFIXTURE_H
#define IMAGEPOSITION_TESTS_SETTINGS_SETTINGFIXTURE_H

#import "Fields.h"
#import "LogCapture.h"
#import "MorvaADPIntegerSettingRV2.h"
#import "RecordingItems.h"
#import "TestBundle.h"
#import "TestPrintSettings.h"
#import "Text.h"

#include "TestPpd.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <initializer_list>
#include <map>
#include <string>
#include <vector>

namespace imageposition::test {

using Texts = std::map<std::string, std::string>;
using Lines = std::vector<std::string>;

/// A dictionary of strings.
NSDictionary *dictionary(const Texts &texts);
/// A rule table: the rules under "0", "1", and so on.
NSDictionary *ruleTable(const std::vector<Texts> &rules);
NSArray *array(std::initializer_list<id> elements);

/// The definition record of a usable setting, with the given changes.
Texts record(const Texts &changes = {});

class SettingTest : public testing::Test {
protected:
  SettingTest() { store.recordInto(&journal); }

  /// An autoreleased setting.
  MorvaADPIntegerSettingRV2 *make(const Texts &definition = record(),
                                  const std::vector<Texts> &rules = {});
  MorvaADPIntegerSettingRV2 *make(Class type, NSDictionary *definition, NSDictionary *rules);
  /// Binds the setting to the items, with itself as the only related setting.
  void bind(MorvaADPSettingRV2 *setting, std::initializer_list<id> items);
  /// Relates the settings to each other, as the panel does, without items.
  void relate(std::initializer_list<MorvaADPSettingRV2 *> settings);

  RecordingItem *item(const char *name, unsigned capabilities, NSInteger tag = -1);

  static int32_t value(MorvaADPIntegerSettingRV2 *setting) {
    return field<int32_t>(setting, "Value");
  }

  Journal journal;
  TestBundle resources;
  TestPpd printer;
  TestPrintSettings store;
};

} // namespace imageposition::test

#endif
