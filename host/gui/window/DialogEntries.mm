#include "Collation.hpp"
#include "Copies.hpp"
#import "DialogController.h"
#import "DialogState.h"
#include "ExitCode.hpp"
#include "JobTexts.hpp"
#include "PageRanges.hpp"
#import "TextBridge.h"
#include "WindowTexts.hpp"

#include <algorithm>

using namespace imageposition;

namespace {

enum PagesItem { kAllItem, kOddItem, kEvenItem, kRangeItem };

} // namespace

@interface DialogController (EntriesInside)
- (void)takeRanges;
- (void)storeCopies:(int)copies;
@end

@implementation DialogController (Entries)

- (void)refreshCopies {
  const char *const copies = session->job().settings().get("copies");
  [views.copies setStringValue:toString(copies != nullptr ? copies : "1")];
  [views.copiesStepper setIntValue:copies != nullptr ? nearestCopies(copies) : 1];
  const bool collated = isCollated(session->job().printer(), session->job().settings());
  [views.collate setState:collated ? NSOnState : NSOffState];
}

- (void)refreshPages {
  if ([views.pages numberOfItems] == 0)
    for (const Text &title :
         {messages::kAllPages, messages::kOddPages, messages::kEvenPages, messages::kPageRange})
      [[views.pages menu] addItemWithTitle:toString(title) action:nullptr keyEquivalent:@""];
  const PageChoice choice = readPageChoice(session->job().settings());
  const PagesItem item = choice.set == PageSet::Odd    ? kOddItem
                         : choice.set == PageSet::Even ? kEvenItem
                         : choice.ranges               ? kRangeItem
                                                       : kAllItem;
  [views.pages selectItemAtIndex:item];
  [views.ranges setStringValue:toString(choice.ranges ? choice.ranges->text() : "")];
  [views.ranges setEnabled:item != kAllItem];
}

/// Odd and even pages are those of the ranges, or of the whole document without. Throws a `Failure`
/// when the text cannot be understood.
- (void)takeRanges {
  const NSInteger item = [views.pages indexOfSelectedItem];
  PageChoice choice;
  choice.set = item == kOddItem ? PageSet::Odd : item == kEvenItem ? PageSet::Even : PageSet::All;
  const std::string typed = toText([views.ranges stringValue]);
  if (item == kRangeItem || (item != kAllItem && !typed.empty()))
    choice.ranges = PageRanges::parse(typed);
  storePageChoice(choice, session->job().settings());
}

- (BOOL)takeEntries {
  const std::string typed = toText([views.copies stringValue]);
  const auto copies = readCopies(typed);
  if (!copies) {
    [self say:messages::copiesNotUnderstood(typed)];
    [views.window makeFirstResponder:views.copies];
    return NO;
  }
  try {
    [self takeRanges];
  } catch (const Failure &failure) {
    [self say:failure.what()];
    [views.window makeFirstResponder:views.ranges];
    return NO;
  }
  [self storeCopies:*copies];
  return YES;
}

/// One copy is what a job has anyhow.
- (void)storeCopies:(int)copies {
  if (copies != 1 || session->job().settings().get("copies") != nullptr)
    session->job().settings().set("copies", std::to_string(copies));
}

- (void)controlTextDidEndEditing:(NSNotification *)notification {
  if ([notification object] == views.copies)
    [self copiesChanged:views.copies];
  else if ([notification object] == views.ranges)
    [self rangesChanged:views.ranges];
}

/// The arrow keys do what the stepper's arrows do.
- (BOOL)control:(NSControl *)control
               textView:(NSTextView *)editor
    doCommandBySelector:(SEL)command {
  const int step = sel_isEqual(command, @selector(moveUp:))     ? 1
                   : sel_isEqual(command, @selector(moveDown:)) ? -1
                                                                : 0;
  const auto copies = readCopies(toText([editor string]));
  if (control != views.copies || step == 0 || !copies)
    return NO;
  const int stepped = std::clamp(*copies + step, 1, kMostCopies);
  [editor setString:[NSString stringWithFormat:@"%d", stepped]];
  [editor selectAll:self];
  [views.copiesStepper setIntValue:stepped];
  [self storeCopies:stepped];
  return YES;
}

- (void)copiesChanged:(id)sender {
  (void)sender;
  const std::string typed = toText([views.copies stringValue]);
  const auto copies = readCopies(typed);
  if (!copies) {
    [self say:messages::copiesNotUnderstood(typed)];
    return;
  }
  [views.copiesStepper setIntValue:*copies];
  [self storeCopies:*copies];
}

- (void)copiesStepped:(id)sender {
  (void)sender;
  [self takeFocus:views.copies];
  const int copies = [views.copiesStepper intValue];
  [views.copies setIntValue:copies];
  session->job().settings().set("copies", std::to_string(copies));
}

- (void)collateChanged:(id)sender {
  (void)sender;
  setCollated([views.collate state] == NSOnState, session->job().printer(),
              session->job().settings());
}

- (void)pagesChosen:(id)sender {
  [self takeFocus:sender];
  const NSInteger item = [views.pages indexOfSelectedItem];
  if (item == kAllItem)
    [views.ranges setStringValue:@""];
  [views.ranges setEnabled:item != kAllItem];
  if (item == kRangeItem) {
    [views.pages synchronizeTitleAndSelectedItem]; // left to itself only where the focus stays
    [views.window makeFirstResponder:views.ranges];
    return;
  }
  [self rangesChanged:sender];
}

- (void)rangesChanged:(id)sender {
  (void)sender;
  [views.ranges setNeedsDisplay:YES]; // without the focus
  if ([views.pages indexOfSelectedItem] == kRangeItem && [[views.ranges stringValue] length] == 0)
    return;
  try {
    [self takeRanges];
  } catch (const Failure &failure) {
    [self say:failure.what()];
  }
}

@end
