#import "PagesRow.h"

#include "DocumentTexts.hpp"
#include "ExitCode.hpp"
#import "JobSettingRows.h"
#include "JobTexts.hpp"
#include "PageRanges.hpp"
#include "Phrases.hpp"
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
- (std::string)noteOn:(const imageposition::PageChoice &)choice;
- (std::optional<imageposition::PageChoice>)checkedEntry;
- (BOOL)store;
- (BOOL)hasEntry;
- (void)showError:(const std::string &)text;
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
  error = [[ErrorLabel alloc] initWithFrame:NSZeroRect];
  ranges =
      [makeField(kPopUpWidth - kPagesWidth - kControlGap, self, @selector(rangesChanged:)) retain];
  return self;
}

- (void)dealloc {
  [pages setTarget:nil];
  [ranges setTarget:nil];
  [ranges setDelegate:nil];
  [error release];
  [pages release];
  [ranges release];
  [super dealloc];
}

- (std::vector<DialogRow>)rows {
  return {{messages::kPagesRow, {{pages}, {ranges}}}, {"", {{error, true}}}};
}

- (void)showError:(const std::string &)text {
  if ([error showError:text width:kPopUpWidth])
    [dialog layOut];
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
  [self refreshNote];
}

- (BOOL)takeEntry {
  if ([self store])
    return YES;
  [dialog write:toText([error stringValue])];
  [[ranges window] makeFirstResponder:ranges];
  return NO;
}

/// Mentions what the document lacks, and what is counted; may be empty. Throws a `Failure` if
/// nothing would be printed.
- (std::string)noteOn:(const PageChoice &)choice {
  if (!choice.ranges && choice.set == PageSet::All)
    return {};
  const int perSide = jobSettingsOf([dialog session]).pagesPerSide();
  const int pagesOfAll = [dialog documentPages];
  const std::string printed = choice.ranges && choice.set == PageSet::All && perSide > 1
                                  ? choice.ranges->pagesOnSides(perSide, pagesOfAll)
                                  : "";
  std::string counted = perSide <= 1      ? ""
                        : printed.empty() ? messages::sidesAreChosen(perSide)
                                          : messages::sidesAreChosen(perSide, printed);
  const int sides = perSide > 0 ? (pagesOfAll + perSide - 1) / perSide : 0;
  if (!choice.ranges || sides == 0 || !choice.ranges->namesPagesBeyond(sides))
    return counted;
  const std::string lacking =
      perSide > 1 ? messages::documentHasSides(sides) : messages::documentHasPages(sides);
  std::string note = messages::sentences({counted, lacking});
  if (!choice.ranges->hasPagesUpTo(sides))
    throw Failure(ExitCode::Usage, note);
  return note;
}

/// Odd and even pages are those of the ranges, or without ranges of the whole document. None, with
/// a message, when the ranges are not understood.
- (std::optional<PageChoice>)checkedEntry {
  const NSInteger item = [pages indexOfSelectedItem];
  PageChoice choice;
  choice.set = item == kOddItem ? PageSet::Odd : item == kEvenItem ? PageSet::Even : PageSet::All;
  const std::string typed = toText([ranges stringValue]);
  std::string note;
  try {
    if (item == kRangeItem || (item != kAllItem && !typed.empty()))
      choice.ranges = PageRanges::parse(typed);
    note = [self noteOn:choice];
  } catch (const Failure &failure) {
    [self showError:failure.what()];
    return std::nullopt;
  }
  [self showError:note];
  return choice;
}

- (BOOL)store {
  const auto choice = [self checkedEntry];
  if (choice)
    storePageChoice(*choice, [dialog session].job().settings());
  return choice.has_value();
}

/// NO while a range is about to be typed.
- (BOOL)hasEntry {
  return [pages indexOfSelectedItem] != kRangeItem || [[ranges stringValue] length] != 0;
}

- (void)refreshNote {
  if ([self hasEntry])
    [self checkedEntry];
  else
    [self showError:""];
}

- (void)controlTextDidChange:(NSNotification *)notification {
  (void)notification;
  try {
    PageChoice choice;
    choice.ranges = PageRanges::parse(toText([[ranges currentEditor] string]));
    [self showError:[self noteOn:choice]];
  } catch (const Failure &) { // it is not complete yet
  }
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
  if ([self hasEntry])
    [self store];
}

@end
