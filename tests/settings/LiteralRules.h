/// A second, slow and literal reading of rule tables, against which the settings are compared: it
/// walks the raw dictionaries with the platform's own operations and keeps nothing.
#ifndef IMAGEPOSITION_TESTS_SETTINGS_LITERALRULES_H
#define IMAGEPOSITION_TESTS_SETTINGS_LITERALRULES_H

#import <Foundation/Foundation.h>

#include <cups/ppd.h>

#include <cstdint>
#include <string>
#include <vector>

namespace imageposition::test {

/// What a literal walk makes of one setting.
struct LiteralSetting {
  explicit LiteralSetting(NSString *settingName) : name(settingName) {}

  void set(std::int32_t number, std::vector<std::string> &calls);
  void setAvailable(bool available, std::vector<std::string> &calls);

  NSString *name; ///< Borrowed.
  std::int32_t value = 3;
  std::int32_t min = -20;
  std::int32_t max = 20;
  std::int32_t standard = 3;
};

/// The four settings of a panel, each related to all four.
class LiteralRules {
public:
  /// Both are borrowed.
  LiteralRules(NSDictionary *rules, ppd_file_t *ppd);

  /// Applies the rules of one of the settings.
  void apply(std::size_t index);

  std::vector<LiteralSetting> models;
  /// What reached the entry fields, as a `RecordingItem` of the setting's name writes it.
  std::vector<std::string> calls;

private:
  void act(LiteralSetting &own, NSString *pattern, NSString *actionValue);
  bool holds(id rule) const;

  NSDictionary *rules_;
  ppd_file_t *ppd_;
};

/// As integers are read everywhere, from ASCII.
std::int32_t literalInteger(NSString *text);

} // namespace imageposition::test

#endif
