#import "PanelComparison.h"

#import "Fields.h"
#import "Text.h"

namespace imageposition::test {
namespace {

/// Keeps the first difference.
class Difference {
public:
  void expect(const std::string &what, const std::string &is, const std::string &expected) {
    if (text_.empty() && is != expected)
      text_ = what + " is \"" + is + "\" instead of \"" + expected + "\"";
  }
  void expect(const std::string &what, long is, long expected) {
    expect(what, std::to_string(is), std::to_string(expected));
  }
  const std::string &text() const { return text_; }

private:
  std::string text_;
};

void compareValues(id setting, const PanelModel::Offset &offset, Difference &difference) {
  const std::string &name = offset.name;
  difference.expect(name + "'s value", field<std::int32_t>(setting, "Value"), offset.value);
  difference.expect(name + "'s minimum", field<std::int32_t>(setting, "Min"), offset.min);
  difference.expect(name + "'s maximum", field<std::int32_t>(setting, "Max"), offset.max);
  difference.expect(name + "'s default", field<std::int32_t>(setting, "Default"),
                    offset.defaultValue);
  difference.expect(name + "'s text", cxxString([setting getValueString]),
                    std::to_string(offset.value));
}

bool isGray(NSTextField *field) { return [[field textColor] isEqual:[NSColor lightGrayColor]]; }

void compareColours(const OffsetControls &controls, const PanelModel::Offset &offset,
                    Difference &difference) {
  NSColor *colour = offset.enabled ? [NSColor blackColor] : [NSColor lightGrayColor];
  for (NSTextField *label : {controls.label, controls.rangeLabel})
    difference.expect(offset.name + "'s label in its colour",
                      [[label textColor] isEqual:colour] != NO, 1);
}

void compareControls(const OffsetControls &controls, const PanelModel::Offset &offset,
                     Difference &difference) {
  const std::string &name = offset.name;
  difference.expect(name + "'s field", cxxString([controls.text stringValue]), offset.shown);
  difference.expect(name + "'s stepper", [controls.stepper intValue], offset.steps);
  for (NSControl *control :
       {static_cast<NSControl *>(controls.text), static_cast<NSControl *>(controls.stepper),
        static_cast<NSControl *>(controls.label), static_cast<NSControl *>(controls.rangeLabel)})
    difference.expect(name + "'s control enabled", [control isEnabled] != NO, offset.enabled);
  difference.expect(name + "'s field gray", isGray(controls.text), offset.fieldIsGray);
  difference.expect(name + "'s label", cxxString([controls.label stringValue]), offset.nameText);
  difference.expect(name + "'s range label", cxxString([controls.rangeLabel stringValue]),
                    offset.rangeText);
}

} // namespace

PanelParts::PanelParts(MorvaADPPdePanelRV2 *panel)
    : controller_(field<id>(panel, "SettingItems")) {}

id PanelParts::setting(const std::string &name) const {
  return field<id>(controller_, (name + "Settings").c_str());
}

OffsetControls PanelParts::controls(const std::string &name) const {
  const auto control = [&](const char *suffix) {
    return field<id>(controller_, (name + suffix).c_str());
  };
  return {control("Text"), control("Stepper"), control("Label"), control("RangeLabel")};
}

NSButton *PanelParts::check() const {
  return field<id>(controller_, "chkEnableImagePositionAdjust");
}

NSButton *PanelParts::button() const { return field<id>(controller_, "btnRestore2Defalut"); }

void takeControls(const PanelParts &parts, PanelModel &model) {
  for (PanelModel::Offset &offset : model.offsets) {
    const OffsetControls controls = parts.controls(offset.name);
    offset.shown = cxxString([controls.text stringValue]);
    offset.steps = [controls.stepper intValue];
    offset.enabled = [controls.text isEnabled] != NO;
    offset.fieldIsGray = isGray(controls.text);
    offset.nameText = cxxString([controls.label stringValue]);
    offset.rangeText = cxxString([controls.rangeLabel stringValue]);
  }
  model.checked = [parts.check() state] != 0;
  model.checkEnabled = [parts.check() isEnabled] != NO;
  model.buttonEnabled = [parts.button() isEnabled] != NO;
  model.checkTitle = cxxString([parts.check() title]);
  model.buttonTitle = cxxString([parts.button() title]);
}

std::string compare(const PanelParts &parts, const PanelModel &model) {
  Difference difference;
  for (const PanelModel::Offset &offset : model.offsets) {
    compareValues(parts.setting(offset.name), offset, difference);
    if (model.hasView)
      compareControls(parts.controls(offset.name), offset, difference);
    if (model.isColoured)
      compareColours(parts.controls(offset.name), offset, difference);
  }
  if (!model.hasView) {
    difference.expect("a checkbox without a view", parts.check() != nil, 0);
    return difference.text();
  }
  difference.expect("the checkbox", [parts.check() state] != 0, model.checked);
  difference.expect("the checkbox enabled", [parts.check() isEnabled] != NO, model.checkEnabled);
  difference.expect("the button enabled", [parts.button() isEnabled] != NO, model.buttonEnabled);
  difference.expect("the checkbox's title", cxxString([parts.check() title]), model.checkTitle);
  difference.expect("the button's title", cxxString([parts.button() title]), model.buttonTitle);
  return difference.text();
}

std::string compare(const TestPrintSettings &settings, const PanelModel &model) {
  Difference difference;
  difference.expect("the number of stored settings", static_cast<long>(settings.size()),
                    static_cast<long>(model.store.size()));
  for (const auto &[key, value] : model.store)
    difference.expect("the stored " + key, settings.text(key).value_or(""), value.text);
  return difference.text();
}

std::string compare(NSDictionary *summary, const PanelModel::Summary &expected) {
  Difference difference;
  difference.expect("a summary there", summary != nil, 1);
  if (expected.order.empty()) {
    difference.expect("the number of entries", static_cast<long>([summary count]), 0);
    return difference.text();
  }
  difference.expect("the number of entries", static_cast<long>([summary count]),
                    static_cast<long>(expected.values.size()) + 1);
  for (const auto &[title, value] : expected.values)
    difference.expect("the summary's " + title, cxxString([summary objectForKey:nsString(title)]),
                      value);
  NSMutableArray *order = [NSMutableArray array];
  for (const std::string &title : expected.order)
    [order addObject:nsString(title)];
  difference.expect("the summary's order",
                    cxxString([summary objectForKey:@"Summary Display Order"]), cxxString(order));
  return difference.text();
}

} // namespace imageposition::test
