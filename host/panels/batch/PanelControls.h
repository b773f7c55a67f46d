/// Uses the controls of panels as a user does, but by name.
#ifndef IMAGEPOSITION_PANELS_BATCH_PANELCONTROLS_H
#define IMAGEPOSITION_PANELS_BATCH_PANELCONTROLS_H

#import <AppKit/AppKit.h>

#include <optional>
#include <string>
#include <vector>

namespace imageposition {

/// The controls of a panel's view.
///
/// Values are typed into the entry field, character by character, then Return. So the panel's
/// filters, ranges, rules and disabled controls apply, and the job gets what the same keys in the
/// window would give it; writing to the job's settings directly would bypass all of them.
///
/// The dialog knows a panel's controls only as views. It names them after the outlets that refer to
/// them in the object that receives their actions.
class PanelControls {
public:
  /// The view must be in a window, shown or not.
  explicit PanelControls(NSView *view);

  struct Field {
    NSTextField *field; ///< The panel's.
    std::string name;
  };

  /// The editable entry fields in the order of the view's subviews. A field without an outlet has
  /// an empty name.
  const std::vector<Field> &fields() const noexcept { return fields_; }
  /// The field of that name, or else all whose names begin with it.
  std::vector<Field> fieldsNamed(const std::string &name) const;

  /// The checkboxes.
  const std::vector<NSButton *> &switches() const noexcept { return switches_; }

  /// Replaces the content, and returns what the field shows afterwards. None if the field is
  /// disabled.
  static std::optional<std::string> type(const Field &field, const std::string &text);
  /// Clicks the button unless it is in that state already. False if it would have to, but the
  /// button is disabled.
  static bool flip(NSButton *button, bool on);

private:
  void collect(NSView *view);

  std::vector<Field> fields_;
  std::vector<NSButton *> switches_;
};

} // namespace imageposition

#endif
