#import "TurnedSheets.h"

@implementation SheetTurner

- (void)turnTo:(int)sheet {
  sheets->images.turnTo(sheet);
}

@end
