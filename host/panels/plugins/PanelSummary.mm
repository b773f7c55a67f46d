#import "PanelSummary.h"

#import "Checkbox.h"
#include "PluginTexts.hpp"
#include "SharedKeys.h"
#import "TextBridge.h"

#include <algorithm>
#include <functional>

namespace imageposition {

namespace {

NSString *const kDisplayOrder = @IPA_SUMMARY_ORDER;

struct Controls {
  std::vector<std::string> checkboxes; // titles
  std::vector<bool> fields;            // whether each is enabled
};

void collect(NSView *view, Controls &controls) {
  if ([view isKindOfClass:[NSTextField class]] && [(NSTextField *)view isEditable])
    controls.fields.push_back([(NSTextField *)view isEnabled]);
  else if ([view isKindOfClass:[NSButton class]] && ![view isKindOfClass:[NSPopUpButton class]] &&
           isCheckbox([(NSButton *)view cell]))
    controls.checkboxes.push_back(toText([(NSButton *)view title]));
  NSArray *const subviews = [view subviews];
  for (NSUInteger i = 0; i < [subviews count]; i++)
    collect([subviews objectAtIndex:i], controls);
}

void appendLine(NSDictionary *info, NSString *title, std::vector<SummaryLine> &lines) {
  id const value = [info objectForKey:title];
  if (value != nil)
    lines.push_back({toText(title), toText([value description])});
}

std::vector<SummaryLine> linesOf(id info) {
  std::vector<SummaryLine> lines;
  if (![info isKindOfClass:[NSDictionary class]])
    return lines;
  NSMutableDictionary *const rest = [NSMutableDictionary dictionaryWithDictionary:info];
  id const order = [rest objectForKey:kDisplayOrder];
  NSArray *const titles = [order isKindOfClass:[NSArray class]] ? order : [NSArray array];
  [rest removeObjectForKey:kDisplayOrder];
  for (NSUInteger i = 0; i < [titles count]; i++) {
    id const title = [titles objectAtIndex:i];
    if (![title isKindOfClass:[NSString class]])
      continue;
    appendLine(rest, title, lines);
    [rest removeObjectForKey:title];
  }
  NSArray *const others = [[rest allKeys] sortedArrayUsingSelector:@selector(compare:)];
  for (NSUInteger i = 0; i < [others count]; i++)
    appendLine(rest, [others objectAtIndex:i], lines);
  return lines;
}

} // namespace

std::vector<SummaryLine> readSummary(id info, NSView *view) {
  Controls controls;
  collect(view, controls);
  const auto isCheckbox = [&](const SummaryLine &line) {
    return std::find(controls.checkboxes.begin(), controls.checkboxes.end(), line.title) !=
           controls.checkboxes.end();
  };
  const std::vector<SummaryLine> all = linesOf(info);
  const auto values = std::count_if(all.begin(), all.end(), std::not_fn(isCheckbox));
  const bool areFields = static_cast<std::size_t>(values) == controls.fields.size();
  std::vector<SummaryLine> lines;
  std::size_t field = 0;
  for (const SummaryLine &line : all) {
    if (!isCheckbox(line)) {
      if (!areFields || controls.fields[field++])
        lines.push_back(line);
    } else if (!line.value.empty() && line.value != "0") // GNUstep has "" for one that is off
      lines.push_back({line.title, line.value == "1" ? messages::kOn.str() : line.value});
  }
  return lines;
}

} // namespace imageposition
