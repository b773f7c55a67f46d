#import "PagesRow.h"

#include "DocumentTexts.hpp"
#include "ExitCode.hpp"
#include "JobTexts.hpp"
#include "PageRanges.hpp"
#import "TextBridge.h"
#include "WindowTexts.hpp"

using namespace imageposition;

namespace {

enum PagesItem { kAllItem, kOddItem, kEvenItem, kRangeItem };

constexpr CGFloat kPagesWidth = 130;

} // namespace

@interface PagesRow ()
- (void)pagesChosen:(id)sender;
- (void)rangesChanged:(id)sender;
- (void)check:(const std::optional<imageposition::PageRanges> &)chosen;
- (BOOL)store;
@end

@implementation PagesRow

- (id)initWithDialog:(id<DialogServices>)theDialog {
  if ((self = [super init]) == nil)
    return nil;
  dialog = theDialog;
  pages = [makePopUp(self, @selector(pagesChosen:)) retain];
  [pages setFrameSize:NSMakeSize(kPagesWidth, kRowHeight)];
  for (const Text &title :
       {messages::kAllPages, messages::kOddPages, messages::kEvenPages, messages::kPageRange})
    addItem(pages, title);
  ranges =
      [makeField(kPopUpWidth - kPagesWidth - kControlGap, self, @selector(rangesChanged:)) retain];
  return self;
}

- (void)dealloc {
  [pages setTarget:nil];
  [ranges setTarget:nil];
  [ranges setDelegate:nil];
  [pages release];
  [ranges release];
  [super dealloc];
}

- (DialogRow)row {
  return {messages::kPagesRow, {{pages}, {ranges}}};
}

- (void)refresh {
  const PageChoice choice = readPageChoice([dialog session].job().settings());
  const PagesItem item = choice.set == PageSet::Odd    ? kOddItem
                         : choice.set == PageSet::Even ? kEvenItem
                         : choice.ranges               ? kRangeItem
                                                       : kAllItem;
  [pages selectItemAtIndex:item];
  [ranges setStringValue:toString(choice.ranges ? choice.ranges->text() : "")];
  [ranges setEnabled:item != kAllItem];
}

- (BOOL)takeEntry {
  if ([self store])
    return YES;
  [[ranges window] makeFirstResponder:ranges];
  return NO;
}

/// Mentions pages that the document lacks. Throws a `Failure` if nothing would be printed.
- (void)check:(const std::optional<PageRanges> &)chosen {
  const int count = [dialog documentPages];
  const bool isBeyond = chosen && count > 0 && chosen->namesPagesBeyond(count);
  if (isBeyond && !chosen->hasPagesUpTo(count))
    throw Failure(ExitCode::Usage, messages::documentHasPages(count));
  if (isBeyond)
    [dialog show:messages::documentHasPages(count)];
}

/// Odd and even pages are those of the ranges, or without ranges of the whole document. NO, with a
/// message, when the ranges are not understood.
- (BOOL)store {
  const NSInteger item = [pages indexOfSelectedItem];
  PageChoice choice;
  choice.set = item == kOddItem ? PageSet::Odd : item == kEvenItem ? PageSet::Even : PageSet::All;
  const std::string typed = toText([ranges stringValue]);
  try {
    if (item == kRangeItem || (item != kAllItem && !typed.empty()))
      choice.ranges = PageRanges::parse(typed);
    [self check:choice.ranges];
  } catch (const Failure &failure) {
    [dialog say:failure.what()];
    return NO;
  }
  storePageChoice(choice, [dialog session].job().settings());
  return YES;
}

- (void)controlTextDidEndEditing:(NSNotification *)notification {
  [self rangesChanged:[notification object]];
}

- (void)pagesChosen:(id)sender {
  [(KeyWindow *)[sender window] focus:pages];
  const NSInteger item = [pages indexOfSelectedItem];
  if (item == kAllItem)
    [ranges setStringValue:@""];
  [ranges setEnabled:item != kAllItem];
  if (item == kRangeItem) {
    [pages synchronizeTitleAndSelectedItem]; // AppKit does it only while the focus stays
    [[ranges window] makeFirstResponder:ranges];
    return;
  }
  [self rangesChanged:sender];
}

- (void)rangesChanged:(id)sender {
  (void)sender;
  [ranges setNeedsDisplay:YES]; // without the focus
  if ([pages indexOfSelectedItem] != kRangeItem || [[ranges stringValue] length] != 0)
    [self store];
}

@end
