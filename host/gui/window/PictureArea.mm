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
  [button setFrameOrigin:NSMakePoint(kInset, 0)];
  [enlarge setFrameOrigin:NSMakePoint(size.width - kInset - NSWidth([enlarge frame]), 0)];
  const bool hasButtons = ![button isHidden] || ![enlarge isHidden];
  CGFloat below = hasButtons ? kButtonHeight + kGap : 0;
  [note setHidden:[button isHidden] || text->empty()];
  showCut(note, *text, std::max<CGFloat>(size.width - 2 * kInset, 0));
  [note setFrameOrigin:NSMakePoint(kInset, below)];
  below += [note isHidden] ? 0 : NSHeight([note frame]) + kGap;
  [sheets setFrameOrigin:NSMakePoint(kInset, below)];
  [sheets setFrameSize:NSMakeSize(std::max<CGFloat>(size.width - 2 * kInset, 0), kButtonHeight)];
  below += [sheets isHidden] ? 0 : kButtonHeight + kGap;
  [picture setFrameOrigin:NSMakePoint(0, below)];
  [picture setFrameSize:NSMakeSize(size.width, std::max<CGFloat>(size.height - below, 0))];
  [self setNeedsDisplay:YES];
}

@end
