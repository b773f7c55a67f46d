#import "PreviewView.h"

#import "Click.h"
#import "KeyScrollView.h"
#include "Phrases.hpp"
#import "PreviewDrawing.h"
#import "SheetBar.h"
#import "TextBridge.h"

#include <optional>
#include <string>

using namespace imageposition;

struct imageposition::PreviewViewState {
  std::optional<Preview> preview;
  NSToolTipTag toolTip = 0;
  SheetPainter painter;
  std::string sheet; // in words; may be empty
  NSPoint pressed = {};
};

@interface PreviewView ()
- (PreviewLayout)layout;
@end

@implementation PreviewView

+ (NSSize)preferredSize {
  const PictureSize size = preferredPictureSize(previewLineHeight());
  return NSMakeSize(size.width, size.height);
}

- (id)initWithFrame:(NSRect)frame {
  if ((self = [super initWithFrame:frame]) != nil) {
    state = new PreviewViewState;
    state->toolTip = [self addToolTipRect:[self bounds] owner:self userData:nullptr];
  }
  return self;
}

- (void)dealloc {
  delete state;
  state = nullptr;
  [super dealloc];
}

- (BOOL)isFlipped {
  return YES;
}

- (void)setFrameSize:(NSSize)size {
  [super setFrameSize:size];
  if (state == nullptr) // while the superclass initializes
    return;
  [self removeToolTip:state->toolTip];
  state->toolTip = [self addToolTipRect:[self bounds] owner:self userData:nullptr];
}

- (void)showPreview:(const Preview &)preview {
  if (state->preview == preview)
    return;
  state->preview = preview;
  [self setNeedsDisplay:YES];
}

- (void)showSheet:(const std::optional<SheetSideImages> &)sides named:(const std::string &)sheet {
  state->sheet = sheet;
  if (state->painter.take(sides))
    [self setNeedsDisplay:YES];
}

- (PreviewLayout)layout {
  const NSSize size = [self bounds].size;
  return layOutPreview(*state->preview, {size.width, size.height, previewLineHeight()});
}

- (double)pixelsPerPoint {
  return state->preview ? [self layout].pixelsPerPoint : 0;
}

- (void)setTarget:(id<PreviewViewTarget>)theTarget {
  target = theTarget;
}

- (void)mouseDown:(NSEvent *)event {
  state->pressed = [self convertPoint:[event locationInWindow] fromView:nil];
}

- (void)mouseUp:(NSEvent *)event {
  const NSPoint at = [self convertPoint:[event locationInWindow] fromView:nil];
  if (!state->preview || !isClick(state->pressed, at))
    return;
  const PreviewLayout layout = [self layout];
  for (const auto place : {PreviewLayout::Front, PreviewLayout::Back, PreviewLayout::AgainstLight})
    if (layout.pages[place].page.contains({at.x, at.y}))
      [target pageClicked:place];
}

- (void)scrollWheel:(NSEvent *)event {
  const int sheets = sheetsOfWheel(event);
  if (sheets == 0 || isScrollable(self))
    [super scrollWheel:event];
  else
    [target turnBy:sheets];
}

- (void)drawRect:(NSRect)dirty {
  (void)dirty;
  if (!state->preview)
    return;
  const PreviewLayout layout = [self layout];
  drawPreviewPages(*state->preview, layout, state->painter.pages(*state->preview));
  drawPreviewMarks(*state->preview, layout);
}

- (NSString *)accessibilityLabel {
  std::string text = state->sheet;
  if (!state->preview)
    return toString(text);
  if (!text.empty())
    text += "\n";
  text += messages::sentences(describePreview(*state->preview));
  return toString(text);
}

- (NSString *)view:(NSView *)view
    stringForToolTip:(NSToolTipTag)tag
               point:(NSPoint)point
            userData:(void *)data {
  (void)view, (void)tag, (void)point, (void)data;
  return [self accessibilityLabel];
}

@end
