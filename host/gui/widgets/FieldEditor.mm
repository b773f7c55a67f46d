#import "FieldEditor.h"

#include "NumberText.hpp"
#import "TextBridge.h"

#include <cstdlib>
#include <optional>
#include <vector>

using namespace imageposition;

struct imageposition::FieldEditorState {
  NSTextField *field = nil; // retained; null before its first edit
  bool isNumber = false;
  std::vector<std::string> earlier;   // contents to restore
  std::string shown;                  // the content after the last edit
  std::string kept;                   // the number, unless what is entered is one
  std::string typed;                  // what the field has changed; empty if it agrees
  std::optional<std::string> typedOn; // `typed` with what is being added to its end
  bool isTyping = false;              // the last edit was a key's
  bool isUndoing = false;
  bool isStepping = false;
  bool isBusy = false; // an edit is under way: the field may leave the editor and come back
};

namespace {

/// Sets a flag for as long as it lives.
class Flag {
public:
  explicit Flag(bool &flag) : flag_(flag), before_(flag) { flag_ = true; }
  ~Flag() { flag_ = before_; }
  Flag(const Flag &) = delete;
  Flag &operator=(const Flag &) = delete;

private:
  bool &flag_;
  const bool before_;
};

} // namespace

@interface FieldEditor ()
- (void)begin;
- (void)forget;
- (void)replaceWith:(const std::string &)text;
- (BOOL)step:(long)distance;
/// Whether the content is a whole number or the beginning of one.
- (BOOL)canBecomeNumber;
- (void)report:(NumberEdit::Kind)kind;
@end

@implementation FieldEditor

- (id)initForWindow:(NSWindow *)window {
  if ((self = [super initWithFrame:NSZeroRect]) == nil)
    return nil;
  owner = window;
  state = new FieldEditorState;
  [self setFieldEditor:YES];
  return self;
}

- (void)dealloc {
  [state->field release];
  delete state;
  state = nullptr;
  [super dealloc];
}

- (void)forget {
  [state->field release];
  *state = FieldEditorState();
}

/// Before the first edit of a field.
- (void)begin {
  id const field = [self delegate];
  if (field == state->field || ![field isKindOfClass:[NSTextField class]])
    return;
  [self forget];
  state->field = [field retain];
  id const delegate = [owner delegate];
  state->isNumber = isWholeNumber(toText([self string])) &&
                    [delegate respondsToSelector:@selector(takesNumbers:)] &&
                    [delegate takesNumbers:field];
  state->kept = toText([self string]);
}

- (void)finishEdits {
  const std::string content = toText([self string]);
  if (!state->isNumber || state->isBusy || [self delegate] != state->field || content.empty() ||
      isWholeNumber(content))
    return;
  const Flag busy(state->isBusy);
  [self setString:toString(state->kept)];
  [super didChangeText];
  state->typed = content;
}

- (void)endEdits {
  if (state->field == nil || state->isBusy)
    return;
  if (state->isNumber && !state->shown.empty()) {
    if (state->typed.empty())
      state->typed = state->shown;
    state->shown = toText([state->field stringValue]);
    [self report:NumberEdit::Kind::Ended];
  }
  [self forget];
}

- (void)report:(NumberEdit::Kind)kind {
  const NumberEdit edit{kind, state->typed, state->shown};
  [(id<NumberFieldOwner>)[owner delegate] number:state->field wasEdited:edit];
}

/// Pasting and dropping lead here.
- (BOOL)readSelectionFromPasteboard:(NSPasteboard *)pasteboard type:(NSString *)type {
  [self begin];
  if (!state->isNumber || ![type isEqualToString:NSStringPboardType])
    return [super readSelectionFromPasteboard:pasteboard type:type];
  NSString *const text = [pasteboard stringForType:type];
  if (text == nil)
    return NO;
  [self insertText:text];
  return YES;
}

/// Typing leads here.
- (void)insertText:(id)inserted {
  [self begin];
  if (state->isNumber && [inserted isKindOfClass:[NSString class]])
    inserted = toString(asciiNumber(toText(inserted)));
  [super insertText:inserted];
}

/// Called before every edit of the user. Keys in succession are one edit.
- (BOOL)shouldChangeTextInRange:(NSRange)range replacementString:(NSString *)string {
  [self begin];
  if (![super shouldChangeTextInRange:range replacementString:string])
    return NO;
  const std::string before = toText([self string]);
  const bool isAtEnd = range.length == 0 && range.location == [[self string] length];
  const bool isKey = [string length] == 1;
  const bool goesOn = isKey && isAtEnd && state->isTyping && before == state->shown;
  if (!goesOn && !state->isUndoing)
    state->earlier.push_back(before);
  state->isTyping = isKey;
  const bool isAdded = isAtEnd && !state->typed.empty() && before == state->shown;
  state->typedOn = isAdded ? std::optional(state->typed + toText(string)) : std::nullopt;
  return YES;
}

/// Called after every edit of the user. Tells the field, which may filter its content.
- (void)didChangeText {
  const Flag busy(state->isBusy);
  if (state->isNumber && ![self canBecomeNumber]) { // the field would make another number of it
    state->typed = state->shown = toText([self string]);
    [self report:NumberEdit::Kind::Typed];
    return;
  }
  state->typed = state->typedOn.value_or(toText([self string]));
  [super didChangeText];
  state->shown = toText([self string]);
  if (!state->isNumber)
    return;
  if (state->isStepping)
    state->typed = state->kept = state->shown;
  [self report:state->isStepping ? NumberEdit::Kind::Stepped : NumberEdit::Kind::Typed];
  state->shown = toText([self string]);
  const bool isSame = isWholeNumber(state->typed) && isSameNumber(state->typed, state->shown);
  if (isSame || state->isStepping || state->typed == state->shown)
    state->typed.clear();
}

- (BOOL)canBecomeNumber {
  const std::string content = toText([self string]);
  return content.empty() || content == "-" || content == "+" || isWholeNumber(content);
}

- (void)replaceWith:(const std::string &)text {
  [self selectAll:nil];
  if (text.empty())
    [self delete:nil];
  else
    [self insertText:toString(text)];
}

- (void)undoEdit:(id)sender {
  (void)sender;
  if ([self delegate] != state->field || state->earlier.empty())
    return;
  const std::string text = state->earlier.back();
  state->earlier.pop_back();
  const Flag undoing(state->isUndoing);
  [self replaceWith:text];
  state->isTyping = false;
}

/// Numbers that a field takes are far from the limits of a long.
- (BOOL)step:(long)distance {
  [self begin];
  const std::string number = toText([self string]);
  if (!state->isNumber || !isWholeNumber(number))
    return NO;
  const Flag stepping(state->isStepping);
  [self replaceWith:std::to_string(std::strtol(number.c_str(), nullptr, 10) + distance)];
  [self selectAll:nil];
  return YES;
}

// The field takes its text before the window moves the focus.
- (void)insertTab:(id)sender {
  [self finishEdits];
  [super insertTab:sender];
}

- (void)insertBacktab:(id)sender {
  [self finishEdits];
  [super insertBacktab:sender];
}

- (void)moveUp:(id)sender {
  if (![self step:1])
    [super moveUp:sender];
}

- (void)moveDown:(id)sender {
  if (![self step:-1])
    [super moveDown:sender];
}

@end
