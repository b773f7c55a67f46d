#import "BatchRun.h"

#include "Availability.hpp"
#include "BatchTexts.hpp"
#include "ExitCode.hpp"
#import "Guard.h"
#import "PanelControls.h"
#include "Phrases.hpp"
#include "PluginTexts.hpp"
#include "ValueCheck.hpp"

#include <ostream>

namespace imageposition {

namespace {

/// A window around a panel's view that is never ordered in.
class UnseenWindow {
public:
  explicit UnseenWindow(NSView *view)
      : window_([[NSWindow alloc] initWithContentRect:[view frame]
                                            styleMask:NSTitledWindowMask
                                              backing:NSBackingStoreBuffered
                                                defer:NO]) {
    [window_ setReleasedWhenClosed:NO];
    [[window_ contentView] addSubview:view];
  }
  ~UnseenWindow() { [window_ release]; }
  UnseenWindow(const UnseenWindow &) = delete;
  UnseenWindow &operator=(const UnseenWindow &) = delete;

private:
  NSWindow *window_;
};

/// A panel in its window.
struct UnseenPanel {
  explicit UnseenPanel(PanelDriver &driver)
      : panel(driver), window(driver.view()), controls(driver.view()) {}

  PanelDriver &panel;
  UnseenWindow window;
  PanelControls controls;
};

using UnseenPanels = std::vector<std::unique_ptr<UnseenPanel>>;

/// Runs `body`, which calls the panel's code, and turns what that raises into a failure of its
/// plug-in.
template <typename Body> void actingOn(const PanelDriver &panel, const char *act, Body &&body) {
  std::optional<Failure> failure;
  const auto raised = whatIsRaisedBy([&] {
    try {
      body();
    } catch (const Failure &thrown) {
      failure = thrown;
    }
  });
  if (failure)
    throw *failure;
  if (raised)
    throw Failure(ExitCode::Plugin, messages::pluginRaised(panel.pluginPath(), act, *raised));
}

void flipSwitch(const UnseenPanels &panels, ppd_file_t *ppd, bool on) {
  std::vector<const UnseenPanel *> owners;
  for (const auto &panel : panels)
    owners.insert(owners.end(), panel->controls.switches().size(), panel.get());
  if (owners.size() != 1)
    throw Failure(ExitCode::Value, messages::kNoSwitch);
  const UnseenPanel &owner = *owners.front();
  bool isFlipped = false;
  actingOn(owner.panel, "--back",
           [&] { isFlipped = PanelControls::flip(owner.controls.switches().front(), on); });
  if (!isFlipped)
    throw Failure(ExitCode::Value, messages::switchUnavailable(adviceText(availabilityOf(ppd))));
}

struct FoundField {
  const UnseenPanel *panel;
  PanelControls::Field field;
};

FoundField findField(const UnseenPanels &panels, const std::string &name) {
  std::vector<FoundField> found;
  std::vector<std::string> known, matches;
  for (const auto &panel : panels) {
    for (const auto &field : panel->controls.fields())
      if (!field.name.empty())
        known.push_back(field.name);
    for (const auto &field : panel->controls.fieldsNamed(name)) {
      found.push_back({panel.get(), field});
      matches.push_back(field.name);
    }
  }
  if (found.empty())
    throw Failure(ExitCode::Value, messages::noSuchField(name, known));
  if (found.size() > 1)
    throw Failure(ExitCode::Value, messages::ambiguousField(name, matches));
  return found.front();
}

/// What the field shows after `text` is typed into it; none if it is disabled.
std::optional<std::string> typeInto(const FoundField &found, const std::string &text) {
  std::optional<std::string> shown;
  actingOn(found.panel->panel, "--set", [&] { shown = PanelControls::type(found.field, text); });
  return shown;
}

/// Why a field that shows a number did not accept the entry; empty for any other field, and if the
/// number is in range. The dialog knows a field only as a view: typing numbers far out of range
/// shows the printer's range.
std::string numberProblem(const FoundField &found, const Entry &entry) {
  const auto low = readNumber(typeInto(found, "-99999").value_or(""));
  const auto high = readNumber(typeInto(found, "99999").value_or(""));
  if (!low || !high || *low == *high) // a locked setting always shows its own value
    return {};
  return wholeNumberProblem(entry.name, entry.text, *low, *high);
}

void typeEntry(const UnseenPanels &panels, ppd_file_t *ppd, const Entry &entry,
               std::ostream &notes) {
  const FoundField found = findField(panels, entry.name);
  const auto shown = typeInto(found, entry.text);
  if (!shown)
    throw Failure(ExitCode::Value,
                  messages::fieldUnavailable(found.field.name, adviceText(availabilityOf(ppd))));
  if (*shown == entry.text)
    return;
  const std::string problem = numberProblem(found, entry);
  if (!problem.empty())
    throw Failure(ExitCode::Value, problem);
  typeInto(found, entry.text);
  notes << messages::valueAdjusted(entry.name, entry.text, *shown) << '\n';
}

} // namespace

std::vector<SummarySection> runBatch(const PanelSession &session, ppd_file_t *ppd,
                                     const BatchRequest &request, std::ostream &notes) {
  UnseenPanels panels;
  for (const auto &panel : session.panels()) {
    if (!panel->hasView())
      throw Failure(ExitCode::Plugin, messages::panelWithoutView(panel->pluginPath()));
    panels.push_back(std::make_unique<UnseenPanel>(*panel));
  }
  for (const auto &panel : panels)
    panel->panel.willShow();
  if (request.back)
    flipSwitch(panels, ppd, *request.back);
  for (const Entry &entry : request.entries)
    typeEntry(panels, ppd, entry, notes);
  for (const auto &panel : panels)
    if (!panel->panel.mayPrint())
      throw Failure(ExitCode::Cancelled, messages::panelRefusedJob(panel->panel.name()));
  std::vector<SummarySection> summary;
  for (const auto &panel : panels) {
    if (const auto refusal = panel->panel.save())
      throw Failure(ExitCode::Plugin, *refusal);
    summary.push_back(panel->panel.summary());
  }
  return summary;
}

} // namespace imageposition
