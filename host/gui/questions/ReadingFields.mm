#import "ReadingFields.h"

#import "ErrorLabel.h"
#import "KeyWindow.h"
#import "Labels.h"
#include "Phrases.hpp"
#include "QuestionTexts.hpp"
#import "TextBridge.h"

#include <algorithm>
#include <cmath>
#include <string>
#include <utility>

using namespace imageposition;
using Place = ReadingForm::Place;

namespace {

constexpr CGFloat kFieldWidth = 54;
constexpr CGFloat kStepperGap = 2;
constexpr NSSize kStepper = {19, 27};
constexpr CGFloat kColumnGap = 14;
constexpr CGFloat kRowHeight = 32;
constexpr CGFloat kCreaseGap = 6; // above the row of the creases

/// The heading of a column of a sheet or of the creases.
std::string columnName(bool isCrease, std::size_t column) {
  if (!isCrease)
    return vernierName(static_cast<VernierIndex>(column));
  return column == 0 ? "\xe2\x86\x92" : "\xe2\x86\x93";
}

void moveTo(NSView *view, CGFloat left, CGFloat middle) {
  [view setFrameOrigin:NSMakePoint(std::round(left),
                                   std::round(middle - NSHeight([view frame]) / 2))];
}

} // namespace

/// Says when it gets the focus.
@interface ReadingField : NSTextField {
@public
  ReadingFields *owner; ///< Not owned; may be null.
  std::size_t row;
  std::size_t column;
}
- (Place)place;
@end

namespace {

struct FieldRow {
  NSTextField *title;                  // the view owns all of these
  std::vector<NSTextField *> headings; // empty if they are those of the row above
  std::vector<ReadingField *> fields;
  std::vector<NSStepper *> steppers;
};

} // namespace

struct imageposition::ReadingFieldsState {
  ReadingFieldsState(ReadingForm &theForm, const std::function<void()> &theChanged)
      : form(theForm), changed(&theChanged) {}

  ReadingForm &form;
  const std::function<void()> *changed;
  std::vector<FieldRow> rows;
  std::vector<std::string> titles;
  ErrorLabel *error = nil; // the view owns it
  std::size_t errorRow = 0;
  Place current;
};

@interface ReadingFields ()
- (void)addRow:(std::size_t)row;
- (void)layOut;
- (void)show:(const std::string &)text below:(std::size_t)row;
- (std::string)mistakeInRow:(std::size_t)row;
- (void)focused:(Place)place;
- (void)stepped:(id)sender;
- (ReadingField *)fieldAt:(Place)place;
@end

@implementation ReadingField

- (Place)place {
  return {row, column};
}

- (BOOL)becomeFirstResponder {
  const BOOL isTaken = [super becomeFirstResponder];
  [owner focused:[self place]];
  return isTaken;
}

@end

@implementation ReadingFields

- (id)initWithForm:(ReadingForm &)form changed:(const std::function<void()> &)changed {
  if ((self = [super initWithFrame:NSZeroRect]) == nil)
    return nil;
  state = new ReadingFieldsState(form, changed);
  for (std::size_t row = 0; row < form.rows(); row++)
    [self addRow:row];
  state->error = [[[ErrorLabel alloc] initWithFrame:NSZeroRect] autorelease];
  [self addSubview:state->error];
  [self layOut];
  [self reload];
  return self;
}

- (void)dealloc {
  [self detach];
  delete state;
  [super dealloc];
}

- (BOOL)isFlipped {
  return YES;
}

- (void)detach {
  for (const FieldRow &row : state->rows)
    for (std::size_t column = 0; column < row.fields.size(); column++) {
      row.fields[column]->owner = nil;
      [row.fields[column] setDelegate:nil];
      [row.steppers[column] setTarget:nil];
    }
}

- (void)addRow:(std::size_t)row {
  const bool isCrease = row == state->form.creaseRow();
  state->titles.push_back(isCrease ? messages::kCreaseRow.str()
                                   : messages::sheetRow(static_cast<int>(row) + 1));
  FieldRow views{makeLabel(messages::asLabel(state->titles.back())), {}, {}, {}};
  [self addSubview:views.title];
  for (std::size_t column = 0; column < state->form.columns(row); column++) {
    if (row == 0 || isCrease) {
      views.headings.push_back(makeLabel(columnName(isCrease, column)));
      [self addSubview:views.headings.back()];
    }
    ReadingField *const field = [[[ReadingField alloc] initWithFrame:NSZeroRect] autorelease];
    [field setFrameSize:NSMakeSize(kFieldWidth, [[field cell] cellSize].height)];
    [field setDelegate:(id)self];
    [field setAlignment:NSRightTextAlignment];
    field->owner = self;
    field->row = row;
    field->column = column;
    NSStepper *const stepper = [[[NSStepper alloc]
        initWithFrame:NSMakeRect(0, 0, kStepper.width, kStepper.height)] autorelease];
    [stepper setMinValue:static_cast<double>(-kLargestReading.count)];
    [stepper setMaxValue:static_cast<double>(kLargestReading.count)];
    [stepper setValueWraps:NO];
    [stepper setTarget:self];
    [stepper setAction:@selector(stepped:)];
    [self addSubview:field];
    [self addSubview:stepper];
    views.fields.push_back(field);
    views.steppers.push_back(stepper);
  }
  state->rows.push_back(std::move(views));
}

/// The rows below an error make room for it.
- (void)layOut {
  CGFloat column = 0, top = 0, width = 0;
  for (const FieldRow &row : state->rows)
    column = std::max(column, NSWidth([row.title frame]));
  constexpr CGFloat kEntry = kFieldWidth + kStepperGap + kStepper.width;
  for (std::size_t i = 0; i < state->rows.size(); i++) {
    const FieldRow &row = state->rows[i];
    const auto left = [&](std::size_t index) {
      return column + 10 + static_cast<CGFloat>(index) * (kEntry + kColumnGap);
    };
    top += i > 0 && !row.headings.empty() ? kCreaseGap : 0;
    for (std::size_t j = 0; j < row.headings.size(); j++) {
      const CGFloat heading = NSWidth([row.headings[j] frame]);
      [row.headings[j] setFrameOrigin:NSMakePoint(left(j) + (kFieldWidth - heading) / 2, top)];
    }
    top += row.headings.empty() ? 0 : NSHeight([row.headings.front() frame]) + 2;
    const CGFloat middle = top + kRowHeight / 2;
    moveTo(row.title, column - NSWidth([row.title frame]), middle);
    for (std::size_t j = 0; j < row.fields.size(); j++) {
      moveTo(row.fields[j], left(j), middle);
      moveTo(row.steppers[j], left(j) + kFieldWidth + kStepperGap, middle);
      width = std::max(width, NSMaxX([row.steppers[j] frame]));
    }
    top += kRowHeight;
    if (![state->error isHidden] && i == state->errorRow) {
      [state->error setFrameOrigin:NSMakePoint(left(0), top)];
      top += NSHeight([state->error frame]);
    }
  }
  [self setFrameSize:NSMakeSize(std::ceil(width), std::ceil(top))];
  [[self superview] setNeedsDisplay:YES];
}

- (void)reload {
  for (const FieldRow &row : state->rows)
    for (ReadingField *field : row.fields)
      [field setStringValue:toString(state->form.text([field place]))];
  state->current = {};
  [self show:"" below:0];
}

- (Place)current {
  return state->current;
}

- (std::string)nameOfCurrent {
  const Place place = state->current;
  return messages::inOrder(state->titles[place.row],
                           columnName(place.row == state->form.creaseRow(), place.column));
}

- (std::vector<NSView *>)fields {
  std::vector<NSView *> fields;
  for (const FieldRow &row : state->rows)
    fields.insert(fields.end(), row.fields.begin(), row.fields.end());
  return fields;
}

- (ReadingField *)fieldAt:(Place)place {
  return state->rows[place.row].fields[place.column];
}

- (void)show:(const std::string &)text below:(std::size_t)row {
  const CGFloat width = NSMaxX([state->rows[0].steppers.back() frame]) -
                        NSMinX([state->rows[0].fields.front() frame]);
  const bool isMoved = row != std::exchange(state->errorRow, row);
  if ([state->error showError:text width:width] || isMoved)
    [self layOut];
}

/// The first; may be empty.
- (std::string)mistakeInRow:(std::size_t)row {
  std::string mistake;
  for (std::size_t column = 0; column < state->form.columns(row) && mistake.empty(); column++)
    mistake = state->form.mistake({row, column});
  return mistake;
}

- (void)showProblem:(const ReadingForm::Problem &)problem {
  [[self window] makeFirstResponder:[self fieldAt:problem.place]];
  [self show:problem.text below:problem.place.row];
}

- (void)focused:(Place)place {
  state->current = place;
  (*state->changed)();
}

/// Called at each key; asking the field itself for its string would end the editing.
- (void)controlTextDidChange:(NSNotification *)notification {
  ReadingField *const field = [notification object];
  state->form.enter([field place], toText([[field currentEditor] string]));
  if (field->row == state->errorRow && [self mistakeInRow:field->row].empty())
    [self show:"" below:state->errorRow];
  (*state->changed)();
}

- (void)controlTextDidEndEditing:(NSNotification *)notification {
  ReadingField *const field = [notification object];
  state->form.enter([field place], toText([field stringValue]));
  [field setStringValue:toString(state->form.text([field place]))];
  const std::string mistake = [self mistakeInRow:field->row];
  if (!mistake.empty() || field->row == state->errorRow)
    [self show:mistake below:field->row];
  (*state->changed)();
}

/// The arrow keys do what the stepper's arrows do.
- (BOOL)control:(NSControl *)control
               textView:(NSTextView *)editor
    doCommandBySelector:(SEL)command {
  const int step = sel_isEqual(command, @selector(moveUp:))     ? 1
                   : sel_isEqual(command, @selector(moveDown:)) ? -1
                                                                : 0;
  if (step == 0)
    return NO;
  const Place place = [(ReadingField *)control place];
  state->form.step(place, step);
  [editor setString:toString(state->form.text(place))];
  [editor selectAll:self];
  [self show:[self mistakeInRow:place.row] below:place.row];
  (*state->changed)();
  return YES;
}

/// A stepper has moved on from an old number.
- (void)stepped:(id)sender {
  for (const FieldRow &row : state->rows)
    for (std::size_t column = 0; column < row.steppers.size(); column++) {
      if (row.steppers[column] != sender)
        continue;
      ReadingField *const field = row.fields[column];
      const Place place = [field place];
      [(KeyWindow *)[self window] focus:field];
      state->form.step(place, [sender intValue] > 0 ? 1 : -1);
      [sender setIntValue:0];
      [field setStringValue:toString(state->form.text(place))];
      [self show:[self mistakeInRow:place.row] below:place.row];
      (*state->changed)();
    }
}

@end
