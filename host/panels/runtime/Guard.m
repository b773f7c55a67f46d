#import "Guard.h"

NSString *IPWhatIsRaisedBy(void (*body)(void *context), void *context) {
  @try {
    body(context);
  } @catch (NSException *exception) {
    return [NSString stringWithFormat:@"%@: %@", [exception name], [exception reason]];
  } @catch (id object) {
    return [object description] != nil ? [object description] : @"an object without description";
  }
  return nil;
}
