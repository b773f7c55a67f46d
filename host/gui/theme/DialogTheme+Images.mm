#import "DialogTheme.h"
#import "Theme.h"

using namespace imageposition;

@interface DialogTheme (Images)
- (void)drawMenuTick:(NSCustomImageRep *)image;
- (void)drawMenuDash:(NSCustomImageRep *)image;
@end

@implementation DialogTheme (Images)

- (void)drawMenuTick:(NSCustomImageRep *)image {
  const NSSize size = [image size];
  drawTick(NSMakeRect(0, 0, size.width, size.height), false, toColor(palette.text));
}

- (void)drawMenuDash:(NSCustomImageRep *)image {
  const NSSize size = [image size];
  [toColor(palette.text) set];
  NSRectFill(NSMakeRect(1, size.height / 2 - 1, size.width - 2, 2));
}

@end

namespace imageposition {

namespace {

void nameImage(NSString *name, NSSize size, SEL drawing = nullptr) {
  NSImage *const image = [[NSImage alloc] initWithSize:size];
  if (drawing != nullptr) {
    NSCustomImageRep *const drawn =
        [[NSCustomImageRep alloc] initWithDrawSelector:drawing delegate:[DialogTheme current]];
    [drawn setSize:size];
    [image addRepresentation:drawn];
    [drawn release];
  }
  (void)[image setName:name];
  [image release]; // AppKit retains a named image
}

} // namespace

void replacePlatformImages() {
  // The cells' replaced drawing recognizes these by their names.
  for (NSString *const name : {@"GSSwitch", @"GSSwitchSelected"})
    nameImage(name, NSMakeSize(15, 15));
  for (NSString *const name : {@"GSRadio", @"GSRadioSelected"})
    nameImage(name, NSMakeSize(16, 16));
  nameImage(@"common_Nibble", NSMakeSize(11, 8));
  nameImage(@"common_3DArrowDown", NSMakeSize(7, 7));
  // The theme's scrollers have neither arrows nor dimples.
  for (NSString *const name :
       {@"common_ArrowUp", @"common_ArrowUpH", @"common_ArrowDown", @"common_ArrowDownH",
        @"common_ArrowLeft", @"common_ArrowLeftH", @"common_ArrowRight", @"common_ArrowRightH"})
    nameImage(name, NSMakeSize(9, 9));
  for (NSString *const name : {@"common_Dimple", @"common_DimpleHoriz"})
    nameImage(name, NSMakeSize(6, 6));
  // In the colours of this theme, for panels whose pop-up buttons open GNUstep's menus.
  nameImage(@"GSMenuSelected", NSMakeSize(9, 9), @selector(drawMenuTick:));
  nameImage(@"GSMenuMixed", NSMakeSize(9, 9), @selector(drawMenuDash:));
}

} // namespace imageposition
