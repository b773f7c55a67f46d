#import "KeyLoop.h"

#import "KeyScrollView.h"

#include <algorithm>
#include <vector>

namespace imageposition {

namespace {

bool takesKeys(NSView *view) {
  if ([view isKindOfClass:[NSTextField class]])
    return [(NSTextField *)view isEditable];
  if ([view isKindOfClass:[KeyScrollView class]])
    return [view acceptsFirstResponder];
  return [view isKindOfClass:[NSControl class]] && ![view isKindOfClass:[NSScroller class]];
}

void collect(NSView *view, std::vector<NSView *> &controls) {
  if (takesKeys(view)) {
    controls.push_back(view);
    return;
  }
  NSArray *const subviews = [view subviews];
  for (NSUInteger i = 0; i < [subviews count]; i++)
    collect([subviews objectAtIndex:i], controls);
}

/// Orders by line from the top, then from the left. Controls on one line may differ slightly in
/// height.
void sortForReading(std::vector<NSView *> &controls) {
  const auto centre = [](NSView *view) {
    const NSRect frame = [view convertRect:[view bounds] toView:nil];
    return NSMakePoint(NSMinX(frame), NSMidY(frame));
  };
  std::sort(controls.begin(), controls.end(), [&](NSView *left, NSView *right) {
    const NSPoint a = centre(left), b = centre(right);
    const long lineA = std::lround(a.y / 12), lineB = std::lround(b.y / 12);
    return lineA != lineB ? lineA > lineB : a.x < b.x;
  });
}

/// The controls of the key view chain from `first` until it leaves the pane.
std::vector<NSView *> chainFrom(NSView *first, NSView *pane) {
  std::vector<NSView *> chain{first};
  for (NSView *next = [first nextKeyView]; next != nil && [next isDescendantOf:pane];
       next = [next nextKeyView]) {
    if (std::find(chain.begin(), chain.end(), next) != chain.end())
      break;
    chain.push_back(next);
  }
  return chain;
}

} // namespace

NSView *linkPane(NSView *pane, NSView *before, NSView *after) {
  std::vector<NSView *> controls;
  collect(pane, controls);
  if (controls.empty()) {
    [before setNextKeyView:after];
    return after;
  }
  sortForReading(controls);
  const auto given = chainFrom(controls.front(), pane);
  if (given.size() > 1)
    controls = given;
  else
    for (std::size_t i = 1; i < controls.size(); i++)
      [controls[i - 1] setNextKeyView:controls[i]];
  [before setNextKeyView:controls.front()];
  [controls.back() setNextKeyView:after];
  return controls.front();
}

} // namespace imageposition
