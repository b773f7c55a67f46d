#import "PrinterPanel.h"

#include "BackgroundCall.hpp"
#import "Labels.h"
#import "ListPopUp.h"
#import "MnemonicControls.h"
#import "ModalPanel.h"
#include "QuestionTexts.hpp"
#import "RunLoopWake.h"
#import "TextBridge.h"

#include <algorithm>
#include <atomic>
#include <chrono>
#include <cmath>
#include <memory>
#include <system_error>
#include <thread>
#include <vector>

namespace imageposition {

namespace {

constexpr CGFloat kWidth = 480;
constexpr CGFloat kGap = 12;

/// Without instances, which are the presets of a printer.
std::vector<const Destination *> queuesOf(const DestinationList &printers) {
  std::vector<const Destination *> queues;
  for (const Destination &destination : printers.destinations)
    if (destination.instance.empty())
      queues.push_back(&destination);
  return queues;
}

/// Returns once CUPS has a printer, or nobody waits any more.
bool awaitPrinter(const std::atomic<bool> &isOver) {
  constexpr std::chrono::seconds kTimeout{3};
  constexpr std::chrono::milliseconds kShort{100};
  constexpr int kBetweenQueries = 20; // times `kShort`
  for (int i = 1; !isOver; i++) {
    std::this_thread::sleep_for(kShort);
    if (i % kBetweenQueries == 0 && !readDestinations(kTimeout).destinations.empty())
      return true;
  }
  return false;
}

/// Ends when the user answers, or by itself when there is a printer.
bool tryAgain(NSTextField *text) {
  ModalPanel panel(messages::kNoPrinterWindow, kWidth, NSHeight([text frame]), messages::kTryAgain,
                   messages::kCancel);
  [text setFrameOrigin:NSMakePoint(kPanelMargin, panel.bottom())];
  panel.add(text);
  NSWindow *const window = panel.window();
  const RunLoopWake wake([=] {
    [NSApp stopModalWithCode:NSOKButton];
    wakeModalLoop(window);
  });
  const auto isOver = std::make_shared<std::atomic<bool>>(false);
  std::optional<BackgroundCall<bool>> watch;
  try {
    watch.emplace([=] { return awaitPrinter(*isOver); }, std::chrono::hours(24), wake.signal());
  } catch (const std::system_error &) { // no thread is left
  }
  const bool isConfirmed = panel.run(nil, {});
  *isOver = true;
  return isConfirmed;
}

/// Puts the label to the left of the pop-up, which takes the rest of the width.
void addRow(ModalPanel &panel, NSTextField *label, NSPopUpButton *popUp) {
  const CGFloat height = NSHeight([popUp frame]);
  const NSSize size = [label frame].size;
  const CGFloat left = kPanelMargin + size.width + kGap;
  [popUp setFrame:NSMakeRect(left, panel.bottom(), kWidth - kPanelMargin - left, height)];
  [label setFrameOrigin:NSMakePoint(kPanelMargin,
                                    panel.bottom() + std::floor((height - size.height) / 2))];
  panel.add(label);
  panel.add(popUp);
}

/// The printer that failed, or else the default, or else any.
std::vector<const Destination *>::const_iterator
firstChoice(const std::vector<const Destination *> &queues, const std::string &queue) {
  const auto failed = std::find_if(queues.begin(), queues.end(), [&](const Destination *candidate) {
    return candidate->name == queue;
  });
  if (failed != queues.end())
    return failed;
  const auto usual = std::find_if(queues.begin(), queues.end(), [](const Destination *candidate) {
    return candidate->isDefault;
  });
  return usual != queues.end() ? usual : queues.begin();
}

std::optional<std::string> choose(NSTextField *text, const std::vector<const Destination *> &queues,
                                  const std::string &queue) {
  const auto first = firstChoice(queues, queue);
  ListPopUp *const popUp = [[[ListPopUp alloc] initWithFrame:NSMakeRect(0, 0, kWidth, kButtonHeight)
                                                   pullsDown:NO] autorelease];
  for (const Destination *destination : queues) // also two with the same title
    [[popUp menu] addItemWithTitle:toString(destination->title()) action:nullptr keyEquivalent:@""];
  [popUp selectItemAtIndex:first - queues.begin()];
  const CGFloat rowHeight = NSHeight([popUp frame]);
  ModalPanel panel(messages::kNoPrinterWindow, kWidth, NSHeight([text frame]) + kGap + rowHeight,
                   messages::kContinue, messages::kCancel);
  addRow(panel, makeTitle(messages::kPrinterChoiceRow), popUp);
  [text setFrameOrigin:NSMakePoint(kPanelMargin, panel.bottom() + rowHeight + kGap)];
  panel.add(text);
  [panel.window() reach:popUp by:messages::kPrinterChoiceRow];
  if (!panel.run(nil, {popUp}))
    return std::nullopt;
  return queues.at(static_cast<std::size_t>([popUp indexOfSelectedItem]))->name;
}

} // namespace

std::optional<std::string> askForPrinter(const std::string &problem,
                                         const DestinationList &printers,
                                         const std::string &queue) {
  const auto queues = queuesOf(printers);
  NSTextField *const text = makeParagraph(problem, kWidth - 2 * kPanelMargin);
  if (!queues.empty())
    return choose(text, queues, queue);
  return tryAgain(text) ? std::optional(queue) : std::nullopt;
}

} // namespace imageposition
