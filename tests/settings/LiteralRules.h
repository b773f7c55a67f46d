/// A second, literal implementation of rule tables, with which the settings are compared: it walks
/// the raw dictionaries with Foundation's methods and caches nothing.
#ifndef IMAGEPOSITION_TESTS_SETTINGS_LITERALRULES_H
#define IMAGEPOSITION_TESTS_SETTINGS_LITERALRULES_H

#import <Foundation/Foundation.h>

#include <cups/ppd.h>

#include <cstdint>
#include <string>
#include <vector>

namespace imageposition::test {

/// The state of one setting in a literal walk.
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
  /// The calls to the entry fields, as a `RecordingItem` with the setting's name records them.
  std::vector<std::string> calls;

private:
  void act(LiteralSetting &own, NSString *pattern, NSString *actionValue);
  bool holds(id rule) const;

  NSDictionary *rules_;
  ppd_file_t *ppd_;
};

/// Reads an integer from ASCII, by the same rules as the plug-in.
std::int32_t literalInteger(NSString *text);

} // namespace imageposition::test

#endif
