#import "PanelDriver.h"

#include "ExitCode.hpp"
#import "Guard.h"
#import "PanelSummary.h"
#include "PluginTexts.hpp"

namespace imageposition {

namespace {

const char *const kRequiredOperations[] = {"panelView",
                                           "panelName",
                                           "panelKind",
                                           "supportedPPDOptionKeys",
                                           "shouldPrint",
                                           "willShow",
                                           "restoreValuesAndReturnError:",
                                           "saveValuesAndReturnError:",
                                           "summaryInfo"};

void checkOperations(id panel, const std::string &pluginPath) {
  for (const char *operation : kRequiredOperations)
    if (![panel respondsToSelector:sel_registerName(operation)])
      throw Failure(ExitCode::Plugin, messages::panelWithoutOperation(pluginPath, operation));
}

/// None if the panel returned something other than an array.
std::vector<std::string> stringsIn(id array) {
  std::vector<std::string> texts;
  if (![array isKindOfClass:[NSArray class]])
    return texts;
  for (NSUInteger i = 0; i < [array count]; i++)
    if (const auto text = toOptionalText([array objectAtIndex:i]))
      texts.push_back(*text);
  return texts;
}

/// Ends editing in a field of the view without sending the field's action, which the field would
/// send when it loses the focus.
void abandonEditing(NSView *view) {
  id const focus = [[view window] firstResponder];
  if (![focus isKindOfClass:[NSText class]] || ![focus isDescendantOf:view])
    return;
  id const field = [focus delegate];
  if ([field respondsToSelector:@selector(abortEditing)])
    [field abortEditing];
}

/// A scroll view would keep a dangling pointer to its document view.
void takeOut(NSView *view) {
  NSScrollView *const scroll = [view enclosingScrollView];
  if (scroll != nil && [scroll documentView] == view)
    [scroll setDocumentView:nil];
  else
    [view removeFromSuperview];
}

} // namespace

PanelDriver::PanelDriver(id panel, std::string pluginPath)
    : panel_(nil), pluginPath_(std::move(pluginPath)) {
  checkOperations(panel, pluginPath_);
  panel_ = [panel retain];
  try {
    guarded("panelKind", [this] { kind_ = toOptionalText([panel_ panelKind]).value_or(""); });
    guarded("panelName", [this] { name_ = toOptionalText([panel_ panelName]).value_or(""); });
    guarded("supportedPPDOptionKeys",
            [this] { optionKeys_ = stringsIn([panel_ supportedPPDOptionKeys]); });
    guarded("panelView", [this] { view_ = [[panel_ panelView] retain]; });
  } catch (const Failure &) {
    [(id)panel_ release];
    throw;
  }
  hasView_ = [view_ isKindOfClass:[NSView class]];
  if (!hasView_)
    setPlaceholder(nil);
  if (name_.empty())
    name_ = kind_;
}

PanelDriver::~PanelDriver() {
  // The panel is being destroyed, so an exception changes nothing.
  whatIsRaisedBy([this] {
    abandonEditing(view_);
    takeOut(view_);
    [view_ release];
    [(id)panel_ release];
  });
}

void PanelDriver::setPlaceholder(NSView *view) {
  [view_ autorelease];
  view_ = [view retain];
}

void PanelDriver::guarded(const char *operation, const std::function<void()> &body) {
  if (!hasView_)
    return;
  if (const auto raised = whatIsRaisedBy(body))
    throw Failure(ExitCode::Plugin, messages::pluginRaised(pluginPath_, operation, *raised));
}

void PanelDriver::willShow() {
  guarded("willShow", [this] { [panel_ willShow]; });
}

std::optional<std::string> PanelDriver::refusalOf(
    const char *operation, const std::function<BOOL(NSError **)> &body,
    std::string (*sentence)(const std::string &panel, const std::string &reason)) {
  std::optional<std::string> refusal;
  guarded(operation, [&] {
    NSError *error = nil;
    if (body(&error))
      return;
    const bool hasReason = [error isKindOfClass:[NSError class]];
    refusal = sentence(name_, hasReason ? toText([error localizedDescription]) : "");
  });
  return refusal;
}

std::optional<std::string> PanelDriver::save() {
  return refusalOf(
      "saveValuesAndReturnError:",
      [this](NSError **error) { return [panel_ saveValuesAndReturnError:error]; },
      messages::panelNotSaved);
}

std::optional<std::string> PanelDriver::restore() {
  return refusalOf(
      "restoreValuesAndReturnError:",
      [this](NSError **error) { return [panel_ restoreValuesAndReturnError:error]; },
      messages::panelNotRestored);
}

bool PanelDriver::mayPrint() {
  bool allowed = true;
  guarded("shouldPrint", [&] { allowed = [panel_ shouldPrint]; });
  return allowed;
}

SummarySection PanelDriver::summary() {
  SummarySection section{name_, {}};
  guarded("summaryInfo", [&] { section.lines = readSummary([panel_ summaryInfo], view_); });
  return section;
}

} // namespace imageposition
