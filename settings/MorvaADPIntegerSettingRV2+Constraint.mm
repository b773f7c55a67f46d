#import "settings/MorvaADPIntegerSettingRV2.h"

#import "platform/TextBridge.h"
#import "settings/MorvaADPIntegerSettingRV2+Private.h"

#include <objc/runtime.h>

using imageposition::Action;
using imageposition::Condition;
using imageposition::ConditionSource;
using imageposition::ConstraintRule;
using imageposition::ConstraintRules;
using imageposition::ConstraintTable;
using imageposition::IntegerSettingParts;
using imageposition::KnownSetting;
using imageposition::SettingRules;
using imageposition::toOptionalText;
using imageposition::toString;

namespace {

/// The printer, and the related settings asked through their operations.
class AskedSettings : public ConditionSource {
public:
  AskedSettings(ppd_file_t *ppd, NSArray *settings) : ppd_(ppd), settings_(settings) {}

  const char *attributeValue(const std::string &keyword) override {
    const ppd_attr_t *attribute = ppdFindAttr(ppd_, keyword.c_str(), nullptr);
    return attribute == nullptr ? nullptr : attribute->value;
  }

  std::size_t settingCount() override { return [settings_ count]; }

  bool isSettingNamed(std::size_t index, const std::string &name) override {
    return toOptionalText([[settings_ objectAtIndex:index] getSettingName]) == name;
  }

  std::optional<std::int32_t> settingValue(std::size_t) override { return std::nullopt; }

  std::optional<std::string> settingText(std::size_t index) override {
    return toOptionalText([[settings_ objectAtIndex:index] getValueString]);
  }

private:
  ppd_file_t *ppd_;
  NSArray *settings_;
};

/// The same for settings that override nothing: their fields are their answers.
class KnownSettings : public AskedSettings {
public:
  KnownSettings(ppd_file_t *ppd, const std::vector<KnownSetting> &known)
      : AskedSettings(ppd, nil), known_(known) {}

  std::size_t settingCount() override { return known_.size(); }

  bool isSettingNamed(std::size_t index, const std::string &name) override {
    return *known_[index].name == name;
  }

  std::optional<std::int32_t> settingValue(std::size_t index) override {
    return *known_[index].value;
  }

private:
  const std::vector<KnownSetting> &known_;
};

/// While one stands, what is known about the related settings is kept from rule to rule.
class Walk {
public:
  explicit Walk(SettingRules &rules) : rules_(rules), wasWalking_(rules.walking) {
    rules_.walking = true;
    rules_.knownIsCurrent = false;
  }
  ~Walk() { rules_.walking = wasWalking_; }
  Walk(const Walk &) = delete;
  Walk &operator=(const Walk &) = delete;

private:
  SettingRules &rules_;
  bool wasWalking_;
};

/// Around an action that reaches the view items: they may change which settings are related, and
/// ask for conditions of their own.
class Interruption {
public:
  explicit Interruption(SettingRules &rules) : rules_(rules), wasWalking_(rules.walking) {
    rules_.walking = false;
  }
  ~Interruption() {
    rules_.walking = wasWalking_;
    rules_.knownIsCurrent = false;
  }
  Interruption(const Interruption &) = delete;
  Interruption &operator=(const Interruption &) = delete;

private:
  SettingRules &rules_;
  bool wasWalking_;
};

// What a subclass overrides has to be asked every time.
bool isPlain(id setting) { return object_getClass(setting) == [MorvaADPIntegerSettingRV2 class]; }

} // namespace

@implementation MorvaADPIntegerSettingRV2 (Constraint)

- (void)applyUIConstraint:(PMPrintSettings)printSettings {
  (void)printSettings;
  const auto name = toOptionalText([self getSettingName]);
  if (!name)
    return;
  SettingRules &own = static_cast<IntegerSettingParts *>(Parts)->rules;
  const std::shared_ptr<const ConstraintRules> rules = own.rules;
  const Walk walk(own);
  for (const ConstraintTable::Position position : rules->table().rulesActingOn(*name)) {
    if (![self checkUIConstraintCondition:rules->dictionary(position)])
      continue;
    const Action &action = rules->table()[position].action;
    switch (action.kind) {
    case Action::Kind::Nothing:
      break;
    case Action::Kind::SetValue: {
      const Interruption interruption(own);
      [self setStringValue:toString(action.text)];
      break;
    }
    case Action::Kind::SetAvailable: {
      const Interruption interruption(own);
      [self setViewState:action.available];
      break;
    }
    case Action::Kind::SetRange:
      // The value is clamped, and the label renewed, when the setting is next checked or shown.
      Min = action.range.min;
      Max = action.range.max;
      break;
    case Action::Kind::SetDefault:
      [self setDefault:action.number];
      break;
    }
  }
}

- (BOOL)checkUIConstraintCondition:(NSDictionary *)rule {
  SettingRules &own = static_cast<IntegerSettingParts *>(Parts)->rules;
  if (!own.walking || !own.knownIsCurrent) {
    own.known.clear();
    own.allAreKnown = isPlain(self);
    for (NSUInteger index = 0; own.allAreKnown && index < [RelatedSettings count]; ++index) {
      MorvaADPIntegerSettingRV2 *setting = [RelatedSettings objectAtIndex:index];
      own.allAreKnown = isPlain(setting);
      if (own.allAreKnown)
        own.known.push_back(
            {&static_cast<IntegerSettingParts *>(setting->Parts)->rules.name, &setting->Value});
    }
    own.knownIsCurrent = true;
  }
  AskedSettings asked(PPD, RelatedSettings);
  KnownSettings known(PPD, own.known);
  ConditionSource &source = own.allAreKnown ? static_cast<ConditionSource &>(known) : asked;
  if (const ConstraintRule *typed = imageposition::typedRule(rule))
    return typed->condition.holds(source);
  return Condition::fromTexts(imageposition::ruleTexts(rule)).holds(source);
}

@end
