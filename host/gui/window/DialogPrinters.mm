#import "DialogController.h"
#import "DialogState.h"
#include "ExitCode.hpp"
#import "Labels.h"
#import "TextBridge.h"
#include "WindowTexts.hpp"

#include <algorithm>

using namespace imageposition;

namespace {

constexpr NSTimeInterval kTick = 0.1;
constexpr int kTicksBetweenQuestions = 50;

std::string titleOf(const Destination &destination) {
  const std::string name = destination.fullName();
  return destination.description.empty() || destination.description == name
             ? name
             : destination.description + " (" + name + ")";
}

} // namespace

@interface DialogController (PrintersInside)
- (void)tick:(NSTimer *)timer;
- (void)sayState;
- (void)lookAfterSending;
@end

@implementation DialogController (Printers)

/// Modal panels and open menus have run loop modes of their own.
- (void)startAskingForPrinters {
  state->destinations.refresh();
  state->timer = [NSTimer timerWithTimeInterval:kTick
                                         target:self
                                       selector:@selector(tick:)
                                       userInfo:nil
                                        repeats:YES];
  for (NSString *mode : {NSDefaultRunLoopMode, NSModalPanelRunLoopMode, NSEventTrackingRunLoopMode})
    [[NSRunLoop currentRunLoop] addTimer:state->timer forMode:mode];
}

- (void)stopAskingForPrinters {
  [state->timer invalidate];
  state->timer = nil;
}

- (void)tick:(NSTimer *)timer {
  (void)timer;
  [self lookAfterSending];
  if (state->destinations.takeAnswer())
    [self listPrinters];
  if (++state->ticks % kTicksBetweenQuestions == 0)
    state->destinations.refresh();
}

- (void)listPrinters {
  state->printers.clear();
  std::vector<std::string> titles;
  for (const Destination &destination : state->destinations.list().destinations) {
    if (!destination.instance.empty() && destination.fullName() != session->job().queue())
      continue; // presets have a pop-up of their own
    state->printers.push_back(destination.fullName());
    titles.push_back(titleOf(destination));
  }
  const auto current =
      std::find(state->printers.begin(), state->printers.end(), session->job().queue());
  if (!session->job().queue().empty() && current == state->printers.end()) {
    state->printers.push_back(session->job().queue());
    titles.push_back(session->job().queue());
  }
  titles.push_back(messages::kSaveAsTicket);
  [views.printers removeAllItems];
  for (const std::string &title : titles)
    [[views.printers menu] addItemWithTitle:toString(title) action:nullptr keyEquivalent:@""];
  const auto chosen =
      std::find(state->printers.begin(), state->printers.end(), session->job().queue());
  // The ticket's item is the one after the printers.
  const auto item = session->job().isSubmitted() ? chosen : state->printers.end();
  [views.printers selectItemAtIndex:item - state->printers.begin()];
  [self sayState];
}

- (void)sayState {
  const DestinationList &list = state->destinations.list();
  const Destination *const destination = list.find(session->job().queue());
  std::string text;
  if (!session->job().isSubmitted())
    text = session->job().printer().name();
  else if (destination != nullptr)
    text = messages::printerState(destination->stateText, destination->location);
  else
    text = list.reason.empty() ? messages::kStateUnknown : list.reason;
  showCut(views.printerState, text, NSWidth([views.printerState frame]));
}

- (void)printerChosen:(id)sender {
  [self takeFocus:sender];
  const auto chosen = static_cast<std::size_t>([views.printers indexOfSelectedItem]);
  if (chosen >= state->printers.size()) {
    session->job().setSubmitted(false);
    [self listPrinters];
    return;
  }
  const std::string queue = state->printers[chosen];
  if (queue != session->job().queue() && [self savePanels]) {
    try {
      shownPanel = nullptr;
      session->chooseQueue(queue);
      [self say:""];
    } catch (const Failure &failure) {
      [self say:failure.what()];
    }
    state->preset.clear();
    [self listPanes];
    [self listPresets];
    [self refresh];
    [self showChosenPane];
  }
  session->job().setSubmitted(queue == session->job().queue());
  [self listPrinters];
}

@end
