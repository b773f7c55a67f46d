// One user action, with rule tables of several sizes.
#import "BenchHost.h"

#import "MorvaADPSettingsCollectorRV2.h"
#import "TestBundle.h"
#import "TestPool.h"

#include <benchmark/benchmark.h>

#include <algorithm>

namespace {

using imageposition::bench::BenchHost;
using imageposition::bench::builtBundle;
using imageposition::test::Pool;
using imageposition::test::TestBundle;

NSControl *controlWithAction(NSView *view, SEL action) {
  if ([view isKindOfClass:[NSControl class]] && [static_cast<NSControl *>(view) action] == action)
    return static_cast<NSControl *>(view);
  for (NSUInteger index = 0; index < [[view subviews] count]; ++index) {
    if (NSControl *control = controlWithAction([[view subviews] objectAtIndex:index], action))
      return control;
  }
  return nil;
}

NSControl *actingControl(NSView *view) {
  return controlWithAction(view, @selector(UIItemActionListener:));
}

void act(NSControl *control) { [[control target] UIItemActionListener:control]; }

enum class Keyboard { Elsewhere, InTheField };

/// The panel in a window on the screen, as a user sees it.
class ShownPanel {
public:
  explicit ShownPanel(BenchHost &host, Keyboard keyboard = Keyboard::Elsewhere)
      : panel_(host.makePanel()) {
    NSView *view = [panel_ panelView];
    window_ = [[NSWindow alloc] initWithContentRect:[view frame]
                                          styleMask:NSTitledWindowMask
                                            backing:NSBackingStoreBuffered
                                              defer:NO];
    [window_ setReleasedWhenClosed:NO];
    [window_ setContentView:view];
    [panel_ willShow];
    control_ = actingControl(view);
    [window_ makeKeyAndOrderFront:nil];
    [window_ makeFirstResponder:keyboard == Keyboard::InTheField ? control_ : nil];
    [window_ display];
  }
  ~ShownPanel() {
    [window_ setContentView:nil];
    [window_ close];
    [window_ release];
    [panel_ release];
  }
  ShownPanel(const ShownPanel &) = delete;
  ShownPanel &operator=(const ShownPanel &) = delete;

  void act() { ::act(control_); }

private:
  id panel_;
  NSWindow *window_;
  NSControl *control_;
};

void actWithShippedRules(benchmark::State &state, Keyboard keyboard) {
  const Pool pool;
  BenchHost host;
  ShownPanel panel(host, keyboard);
  for (auto _ : state) {
    const Pool inner;
    panel.act();
  }
}

void ActionWithShippedRules(benchmark::State &state) {
  actWithShippedRules(state, Keyboard::Elsewhere);
}
BENCHMARK(ActionWithShippedRules)->Unit(benchmark::kMicrosecond);

// Without redrawing: the time of the panel alone.
void ActionWithShippedRulesInNoWindow(benchmark::State &state) {
  const Pool pool;
  BenchHost host;
  const id panel = host.makePanel();
  NSView *const view = [panel panelView];
  [panel willShow];
  NSControl *const control = actingControl(view);
  for (auto _ : state) {
    const Pool inner;
    act(control);
  }
  [panel release];
}
BENCHMARK(ActionWithShippedRulesInNoWindow)->Unit(benchmark::kMicrosecond);

// Setting the field's text selects it, and a selection is announced to other programs.
void ActionWithShippedRulesWhileTyping(benchmark::State &state) {
  actWithShippedRules(state, Keyboard::InTheField);
}
BENCHMARK(ActionWithShippedRulesWhileTyping)->Unit(benchmark::kMicrosecond);

using Rule = std::vector<std::pair<const char *, std::string>>;

const char *const kSettings[] = {"FrontLRM", "FrontTBM", "BackLRM", "BackTBM"};

// A condition on another setting that does not hold: the cost of checking it.
Rule ruleOnASetting(int index) {
  return {{"ConditionType", "Setting"},
          {"ConditionObj", kSettings[(index + 1) % 4]},
          {"ConditionPattern", "Range"},
          {"ConditionValue", "150:200"},
          {"ActionObj", kSettings[index % 4]},
          {"ActionPattern", "Default"},
          {"ActionValue", "5"}};
}

// The same, but the condition holds and the rule acts.
Rule ruleThatFires(int index) {
  Rule rule = ruleOnASetting(index);
  rule[3].second = "-200:200";
  return rule;
}

// A condition on a PPD attribute, which has another value.
Rule ruleOnAnAttribute(int index) {
  return {{"ConditionType", "PPD"},
          {"ConditionPattern", "MVDuplexShiftRange"},
          {"ConditionValue", "Value" + std::to_string(index)},
          {"ActionObj", kSettings[index % 4]},
          {"ActionPattern", "Default"},
          {"ActionValue", "5"}};
}

NSDictionary *tableOf(int count, Rule (*ruleAt)(int)) {
  NSMutableDictionary *table = [NSMutableDictionary dictionary];
  for (int index = 0; index < count; ++index) {
    NSMutableDictionary *rule = [NSMutableDictionary dictionary];
    for (const auto &[key, value] : ruleAt(index))
      [rule setObject:[NSString stringWithUTF8String:value.c_str()]
               forKey:[NSString stringWithUTF8String:key]];
    [table setObject:rule forKey:[NSString stringWithFormat:@"%d", index]];
  }
  return table;
}

void act(benchmark::State &state, Rule (*ruleAt)(int)) {
  const Pool pool;
  TestBundle resources;
  resources.copy([[builtBundle() pathForResource:@"SettingInfo" ofType:@"plist"] UTF8String]);
  const int count = static_cast<int>(state.range(0));
  resources.writePropertyList("ConstraintInfo", tableOf(count, ruleAt));
  {
    BenchHost host(resources.bundle(), {"*MVDuplexShiftRange: \"Narrow\""});
    ShownPanel panel(host);
    for (auto _ : state) {
      const Pool inner;
      panel.act();
    }
  }
  state.counters["rules"] = count;
}

void ActionWithRulesOnASetting(benchmark::State &state) { act(state, ruleOnASetting); }
void ActionWithRulesThatFire(benchmark::State &state) { act(state, ruleThatFires); }
void ActionWithRulesOnAnAttribute(benchmark::State &state) { act(state, ruleOnAnAttribute); }

void sizes(benchmark::internal::Benchmark *benchmark) {
  benchmark->Unit(benchmark::kMicrosecond);
  for (const int count : {0, 8, 100, 1000, 10000})
    benchmark->Arg(count);
}
BENCHMARK(ActionWithRulesOnASetting)->Apply(sizes);
BENCHMARK(ActionWithRulesThatFire)->Apply(sizes);
BENCHMARK(ActionWithRulesOnAnAttribute)->Apply(sizes);

} // namespace
