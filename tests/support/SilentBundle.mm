#import "SilentBundle.h"

@implementation SilentBundle

- (NSString *)localizedStringForKey:(NSString *)key
                              value:(NSString *)value
                              table:(NSString *)table {
  (void)key;
  (void)value;
  (void)table;
  return nil;
}

@end
