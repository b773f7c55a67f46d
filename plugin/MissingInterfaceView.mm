#import "plugin/MissingInterfaceView.h"

#import "settings/Keys.h"
#import "view/LocalizedText.h"

namespace imageposition {

NSView *missingInterfaceView(NSBundle *bundle) {
  NSTextField *text = [[[NSTextField alloc] initWithFrame:NSMakeRect(0, 0, 400, 100)] autorelease];
  [text setStringValue:localizedText(bundle, kTextInterfaceFileMissing)];
  [text setEditable:NO];
  [text setBordered:NO];
  [text setBezeled:NO];
  [text setDrawsBackground:NO];
  [[text cell] setWraps:YES];
  return text;
}

} // namespace imageposition
