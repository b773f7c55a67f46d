#import "PictureArea.h"

#import "Labels.h"
#import "MnemonicControls.h"
#import "Theme.h"

#include <algorithm>
#include <cmath>

using namespace imageposition;

namespace {

constexpr CGFloat kGap = 8;
constexpr CGFloat kInset = 6; // of what the picture shows

} // namespace

@implementation PictureArea

+ (NSSize)preferredSize {
  const NSSize size = [PreviewView preferredSize];
  return NSMakeSize(size.width, size.height + 2 * (kGap + kButtonHeight));
}

- (id)initWithPicture:(PreviewView *)thePicture
               sheets:(SheetBar *)theSheets
              enlarge:(NSButton *)theEnlargeButton
               button:(NSButton *)theButton {
  if ((self = [super initWithFrame:NSZeroRect]) == nil)
    return nil;
  text = new std::string;
  picture = thePicture;
  sheets = theSheets;
  enlarge = theEnlargeButton;
  button = theButton;
  note = makeLabel("");
  [note setTextColor:secondaryTextColor()];
  for (NSView *view :
       {(NSView *)picture, (NSView *)sheets, (NSView *)enlarge, (NSView *)button, (NSView *)note})
    [self addSubview:view];
  return self;
}

- (void)dealloc {
  delete text;
  text = nullptr;
  [super dealloc];
}

- (void)setFrameSize:(NSSize)size {
  [super setFrameSize:size];
  if (text != nullptr) // not while the superclass initializes
    [self layOut];
}

- (void)showNote:(const std::string &)theText {
  *text = theText;
  [self layOut];
}

- (void)layOut {
  const NSSize size = [self bounds].size;
  const CGFloat line = kGap + kButtonHeight;
  CGFloat below = [button isHidden] ? 0 : line;
  [sheets setFrameOrigin:NSMakePoint(kInset, below)];
  [enlarge setFrameOrigin:NSMakePoint(size.width - kInset - NSWidth([enlarge frame]), below)];
  const CGFloat right = [enlarge isHidden] ? size.width : NSMinX([enlarge frame]) - kGap;
  [sheets setFrameSize:NSMakeSize(std::max<CGFloat>(right - kInset, 0), kButtonHeight)];
  below += [sheets isHidden] ? 0 : line;
  [picture setFrameOrigin:NSMakePoint(0, below)];
  [picture setFrameSize:NSMakeSize(size.width, std::max<CGFloat>(size.height - below, 0))];
  [button setFrameOrigin:NSMakePoint(kInset, 0)];
  const CGFloat left = NSMaxX([button frame]) + kGap;
  [note setHidden:[button isHidden]];
  showCut(note, *text, std::max<CGFloat>(size.width - left, 0));
  [note setFrameOrigin:NSMakePoint(left, std::round((kButtonHeight - NSHeight([note frame])) / 2))];
  [self setNeedsDisplay:YES];
}

@end
