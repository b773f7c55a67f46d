#import "ValuePanel.h"

#import "Labels.h"
#import "ListPopUp.h"
#include "Mnemonic.hpp"
#import "MnemonicControls.h"
#import "ModalPanel.h"
#include "Phrases.hpp"
#include "PrinterTexts.hpp"
#include "QuestionTexts.hpp"
#import "TextBridge.h"
#include "ValueCheck.hpp"

#include <algorithm>
#include <cmath>

using namespace imageposition;

namespace {

constexpr CGFloat kGap = 8;
constexpr CGFloat kFieldWidth = 130;
constexpr CGFloat kTextWidth = 200;
constexpr CGFloat kSmallestWidth = 380;
constexpr CGFloat kUnitWidth = 150;
constexpr LengthUnit kUnits[] = {LengthUnit::Millimetre, LengthUnit::Inch, LengthUnit::Point};

struct Row {
  const CustomParameter *parameter;
  NSTextField *title;
  NSTextField *field;
  NSTextField *range;
  bool isTouched; // typed into; what is still missing elsewhere is not a mistake yet
};

} // namespace

/// The fields of the panel and what is made of them.
@interface ValueForm : NSObject {
@public
  const CustomOption *option; // borrowed
  LengthUnit unit;
  std::vector<Row> *rows; // the views are the panel's
  NSPopUpButton *units;   // null without a length
  NSTextField *problem;
}
- (id)initWithOption:(const CustomOption &)theOption unit:(LengthUnit)theUnit;
- (void)fill:(const std::string &)current;
- (std::string)value;
/// False when an entry is wrong, which it shows, with the focus there.
- (bool)check;
- (void)unitChosen:(id)sender;
@end

@implementation ValueForm

- (id)initWithOption:(const CustomOption &)theOption unit:(LengthUnit)theUnit {
  if ((self = [super init]) == nil)
    return nil;
  option = &theOption;
  unit = theUnit;
  rows = new std::vector<Row>;
  return self;
}

- (void)dealloc {
  delete rows;
  [super dealloc];
}

- (void)fill:(const std::string &)current {
  const auto entries = readCustomValue(*option, current);
  for (std::size_t i = 0; i < rows->size(); i++) {
    const Row &row = (*rows)[i];
    const std::string entry = entries ? (*entries)[i] : "";
    const bool isLength = row.parameter->kind == CustomParameter::Kind::Length;
    const auto length = isLength ? readLength(entry) : std::nullopt;
    std::string text = entry.empty() ? initialEntry(*row.parameter, unit) : entry;
    if (length)
      text = plainNumber(convert(*length, unit).number, decimalsOf(unit));
    [row.field setStringValue:toString(row.parameter->isText() ? text : numberInWords(text))];
    [row.range setStringValue:toString(rangeText(*row.parameter, unit))];
  }
}

- (CheckedEntry)checked:(const Row &)row {
  return checkEntry(*row.parameter, toText([row.field stringValue]), unit);
}

- (std::string)value {
  CustomEntries entries;
  for (const Row &row : *rows)
    entries.push_back([self checked:row].entry);
  return writeCustomValue(*option, entries);
}

- (void)say:(const std::string &)text {
  [problem setStringValue:toString(text)];
}

- (bool)check {
  for (const Row &row : *rows) {
    const CheckedEntry entry = [self checked:row];
    if (entry.problem.empty())
      continue;
    [self say:entry.problem];
    [[row.field window] makeFirstResponder:row.field];
    return false;
  }
  return true;
}

/// Called at each key; asking the field itself for its string would end the editing. A mistake in
/// this field comes before one in another.
- (void)controlTextDidChange:(NSNotification *)notification {
  std::string here, elsewhere;
  for (Row &row : *rows) {
    const bool isHere = [notification object] == row.field;
    row.isTouched = row.isTouched || isHere;
    NSText *const editor = isHere ? [row.field currentEditor] : nil;
    NSString *const typed = editor != nil ? [editor string] : [row.field stringValue];
    std::string &said = isHere ? here : elsewhere;
    if (row.isTouched && said.empty())
      said = checkEntry(*row.parameter, toText(typed), unit).problem;
  }
  [self say:here.empty() ? elsewhere : here];
}

/// Keeps the lengths and converts their numbers.
- (void)unitChosen:(id)sender {
  (void)sender;
  [[units window] makeFirstResponder:units]; // a click leaves it in the field
  const LengthUnit wanted = kUnits[std::max<NSInteger>([units indexOfSelectedItem], 0)];
  for (const Row &row : *rows) {
    if (row.parameter->kind != CustomParameter::Kind::Length)
      continue;
    if (const auto length = readLength(toText([row.field stringValue]), unit))
      [row.field setStringValue:toString(numberInWords(plainNumber(convert(*length, wanted).number,
                                                                   decimalsOf(wanted))))];
    [row.range setStringValue:toString(rangeText(*row.parameter, wanted))];
  }
  unit = wanted;
  [self say:""];
}

@end

namespace imageposition {

namespace {

std::string unitName(LengthUnit unit) {
  switch (unit) {
  case LengthUnit::Millimetre:
    return messages::kMillimetres;
  case LengthUnit::Inch:
    return messages::kInches;
  case LengthUnit::Point:
    break;
  }
  return messages::kPoints;
}

NSTextField *makeField(const CustomParameter &parameter, id delegate) {
  Class kind = [NSTextField class];
  if (parameter.isHidden())
    kind = [NSSecureTextField class];
  NSTextField *const field = [[[kind alloc] initWithFrame:NSZeroRect] autorelease];
  [field setDelegate:delegate];
  [field setFrameSize:NSMakeSize(parameter.isText() ? kTextWidth : kFieldWidth,
                                 [[field cell] cellSize].height)];
  return field;
}

/// As wide as the range is in any unit.
NSTextField *makeRange(const CustomParameter &parameter) {
  CGFloat width = 0;
  NSTextField *label = nil;
  for (const LengthUnit unit : kUnits) {
    label = makeLabel(rangeText(parameter, unit));
    width = std::max(width, NSWidth([label frame]));
  }
  [label setFrameSize:NSMakeSize(width, NSHeight([label frame]))];
  return label;
}

NSPopUpButton *makeUnits(ValueForm *form) {
  ListPopUp *const popUp =
      [[[ListPopUp alloc] initWithFrame:NSMakeRect(0, 0, kUnitWidth, kButtonHeight)
                              pullsDown:NO] autorelease];
  for (const LengthUnit unit : kUnits)
    [[popUp menu] addItemWithTitle:toString(unitName(unit)) action:nullptr keyEquivalent:@""];
  [popUp selectItemAtIndex:std::find(std::begin(kUnits), std::end(kUnits), form->unit) -
                           std::begin(kUnits)];
  [popUp setTarget:form];
  [popUp setAction:@selector(unitChosen:)];
  return popUp;
}

/// Room for whatever can be said about the fields.
NSTextField *makeProblem(const CustomOption &option, CGFloat width) {
  NSTextField *const label = makeParagraph("", width);
  CGFloat height = 0;
  const auto makeRoom = [&](const std::string &text) {
    height = std::max(height, paragraphHeight(toString(text), [label font], width));
  };
  for (const CustomParameter &parameter : option.parameters) {
    const std::string &name = parameter.text;
    const std::string range = rangeText(parameter, LengthUnit::Point);
    if (parameter.isText()) {
      makeRoom(messages::entryLengthInBytes(name, "100", range));
      makeRoom(messages::entryHasBrackets(name));
      makeRoom(messages::entryUnusable(name));
    } else {
      makeRoom(messages::entryNotWhole(name, range));
      makeRoom(messages::entryOutOfRange(name, range));
    }
  }
  [label setFrameSize:NSMakeSize(width, height)];
  return label;
}

/// The unit of what is entered already.
LengthUnit unitOf(const CustomOption &option, const std::string &value, LengthUnit otherwise) {
  const auto entries = readCustomValue(option, value);
  for (std::size_t i = 0; entries && i < entries->size(); i++)
    if (option.parameters[i].kind == CustomParameter::Kind::Length)
      if (const auto length = readLength((*entries)[i]))
        return length->unit;
  return otherwise;
}

/// Puts the form's views together and where they belong.
class Layout {
public:
  explicit Layout(ValueForm *form) : form_(form) {
    used_ = option().hasLength() ? readMnemonic(messages::kUnitRow).key : "";
    for (const CustomParameter &parameter : option().parameters) {
      titles_.push_back(messages::asLabel(withKey(parameter.text, used_)));
      form->rows->push_back({&parameter, makeTitle(titles_.back()), makeField(parameter, form),
                             makeRange(parameter), false});
    }
    if (option().hasLength()) {
      form->units = makeUnits(form);
      unitTitle_ = makeTitle(messages::kUnitRow);
    }
    measure();
    form->problem = makeProblem(option(), width_ - 2 * kPanelMargin);
  }

  CGFloat width() const { return width_; }
  CGFloat height() const {
    const std::size_t lines = form_->rows->size() + (unitTitle_ != nil ? 1 : 0);
    return static_cast<CGFloat>(lines) * line_ + kGap + NSHeight([form_->problem frame]);
  }

  /// In the order of Tab.
  std::vector<NSView *> place(ModalPanel &panel) {
    [form_->problem setFrameOrigin:NSMakePoint(kPanelMargin, panel.bottom())];
    panel.add(form_->problem);
    CGFloat bottom = panel.bottom() + height();
    std::vector<NSView *> order;
    for (std::size_t i = 0; i < form_->rows->size(); i++) {
      const Row &row = (*form_->rows)[i];
      placeLine(panel, {row.title, row.field, row.range}, bottom -= line_);
      [panel.window() reach:row.field by:titles_[i]];
      order.push_back(row.field);
    }
    if (unitTitle_ != nil) {
      placeLine(panel, {unitTitle_, form_->units}, bottom - line_);
      [panel.window() reach:form_->units by:messages::kUnitRow];
      order.push_back(form_->units);
    }
    return order;
  }

private:
  const CustomOption &option() const { return *form_->option; }

  void measure() {
    CGFloat field = 0, range = 0;
    line_ = kButtonHeight;
    column_ = unitTitle_ != nil ? NSWidth([unitTitle_ frame]) : 0;
    for (const Row &row : *form_->rows) {
      column_ = std::max(column_, NSWidth([row.title frame]));
      field = std::max(field, NSWidth([row.field frame]));
      range = std::max(range, NSWidth([row.range frame]));
      line_ = std::max(line_, NSHeight([row.field frame]));
    }
    line_ += kGap;
    if (unitTitle_ != nil)
      field = std::max(field, kUnitWidth);
    width_ = std::max(kSmallestWidth, column_ + field + range + 2 * kGap + 2 * kPanelMargin);
  }

  /// Title, control and what follows, on one middle line.
  void placeLine(ModalPanel &panel, const std::vector<NSView *> &views, CGFloat bottom) const {
    CGFloat left = kPanelMargin + column_ - NSWidth([views.front() frame]);
    for (NSView *view : views) {
      const NSSize size = [view frame].size;
      [view setFrameOrigin:NSMakePoint(left, std::floor(bottom + (line_ - size.height) / 2))];
      panel.add(view);
      left = NSMaxX([view frame]) + kGap;
    }
  }

  ValueForm *form_;
  std::vector<std::string> titles_; // with their keys
  std::string used_;
  NSTextField *unitTitle_ = nil;
  CGFloat column_ = 0, line_ = 0, width_ = 0;
};

} // namespace

std::optional<std::string> askForValue(NSWindow *parent, const std::string &title,
                                       const CustomOption &option, const std::string &current,
                                       LengthUnit unit) {
  ValueForm *const form =
      [[[ValueForm alloc] initWithOption:option unit:unitOf(option, current, unit)] autorelease];
  Layout layout(form);
  [form fill:current];
  ModalPanel panel(title, layout.width(), layout.height(), messages::kOk, messages::kCancel);
  const auto order = layout.place(panel);
  const bool isConfirmed = panel.run(parent, order, nil, [=] { return bool([form check]); });
  for (const Row &row : *form->rows)
    [row.field setDelegate:nil];
  return isConfirmed ? std::optional([form value]) : std::nullopt;
}

} // namespace imageposition
