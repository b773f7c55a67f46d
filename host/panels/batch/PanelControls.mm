#import "PanelControls.h"

#import "Checkbox.h"
#import "TextBridge.h"

#include <cstdlib>
#include <objc/runtime.h>

namespace imageposition {

namespace {

bool holdsObject(Ivar variable) {
  const char *const type = ivar_getTypeEncoding(variable);
  return type != nullptr && *type == '@';
}

/// The name of the instance variable of `owner` that points to `object`; empty when there is none.
/// Compares the variables without dereferencing them: they may hold anything.
std::string outletOf(id owner, id object) {
  for (Class c = [owner class]; c != Nil; c = class_getSuperclass(c)) {
    unsigned int count = 0;
    Ivar *const variables = class_copyIvarList(c, &count);
    std::string name;
    for (unsigned int i = 0; i < count && name.empty(); i++)
      if (holdsObject(variables[i]) && object_getIvar(owner, variables[i]) == object)
        name = ivar_getName(variables[i]);
    std::free(variables);
    if (!name.empty())
      return name;
  }
  return {};
}

bool isSwitch(NSView *view) {
  return [view isKindOfClass:[NSButton class]] && ![view isKindOfClass:[NSPopUpButton class]] &&
         isCheckbox([(NSButton *)view cell]);
}

void replaceContent(NSText *editor, const std::string &text) {
  [editor selectAll:nil];
  if (text.empty())
    [editor delete:nil];
  NSString *const keys = toString(text);
  for (NSUInteger i = 0; i < [keys length]; i++)
    [editor insertText:[keys substringWithRange:NSMakeRange(i, 1)]];
}

} // namespace

PanelControls::PanelControls(NSView *view) { collect(view); }

void PanelControls::collect(NSView *view) {
  if ([view isKindOfClass:[NSTextField class]] && [(NSTextField *)view isEditable])
    fields_.push_back({(NSTextField *)view, outletOf([(NSTextField *)view target], view)});
  else if (isSwitch(view))
    switches_.push_back((NSButton *)view);
  NSArray *const subviews = [view subviews];
  for (NSUInteger i = 0; i < [subviews count]; i++)
    collect([subviews objectAtIndex:i]);
}

std::vector<PanelControls::Field> PanelControls::fieldsNamed(const std::string &name) const {
  std::vector<Field> beginningSo;
  for (const Field &field : fields_) {
    if (field.name == name)
      return {field};
    if (field.name.compare(0, name.size(), name) == 0)
      beginningSo.push_back(field);
  }
  return beginningSo;
}

std::optional<std::string> PanelControls::type(const Field &field, const std::string &text) {
  NSWindow *const window = [field.field window];
  // A cell takes the editor's text only once it knows its field. It learns that when it is drawn,
  // which never happens in a window that is not shown.
  [[field.field cell] setControlView:field.field];
  if (![field.field isEnabled] || ![window makeFirstResponder:field.field])
    return std::nullopt;
  NSText *const editor = [field.field currentEditor];
  if (editor == nil)
    return std::nullopt;
  replaceContent(editor, text);
  [editor doCommandBySelector:@selector(insertNewline:)];
  [window makeFirstResponder:nil];
  return toText([field.field stringValue]);
}

bool PanelControls::flip(NSButton *button, bool on) {
  if (([button state] != NSOffState) == on)
    return true;
  if (![button isEnabled])
    return false;
  [button performClick:nil];
  return true;
}

} // namespace imageposition
