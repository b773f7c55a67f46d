/// Uses the controls of panels as a person does, but by name.
#ifndef IMAGEPOSITION_HOST_PANELCONTROLS_H
#define IMAGEPOSITION_HOST_PANELCONTROLS_H

#import <AppKit/AppKit.h>

#include <optional>
#include <string>
#include <vector>

namespace imageposition {

/// The controls of a panel's view.
///
/// Values that are set without a window take the way of typed ones: into the entry field, key by
/// key, then Return. So the panel's filters, ranges, rules and switched-off controls have their
/// say, and the job gets what the same keys in the window would give it; writing to the job's
/// settings directly would go past all of them.
///
/// A panel's controls are known to the dialog as views only. Their names are those of the outlets
/// to which its interface file connects them, in the object that receives their actions.
class PanelControls {
public:
  /// The view must be in a window, shown or not.
  explicit PanelControls(NSView *view);

  struct Field {
    NSTextField *field; ///< The panel's.
    std::string name;
  };

  /// The editable entry fields in reading order; those without an outlet have no name.
  const std::vector<Field> &fields() const noexcept { return fields_; }
  /// Those of that name, or else those whose name begins so.
  std::vector<Field> fieldsNamed(const std::string &name) const;

  /// The checkboxes.
  const std::vector<NSButton *> &switches() const noexcept { return switches_; }

  /// Replaces the content; answers what the field shows afterwards. None when the field is switched
  /// off.
  static std::optional<std::string> type(const Field &field, const std::string &text);
  /// Clicks it unless it is so already. False when it would have to, and is switched off.
  static bool flip(NSButton *button, bool on);

private:
  void collect(NSView *view);

  std::vector<Field> fields_;
  std::vector<NSButton *> switches_;
};

} // namespace imageposition

#endif
