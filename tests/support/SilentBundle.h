/// Replaces a bundle; returns null for every localized string, not its key.
#ifndef IMAGEPOSITION_TESTS_SUPPORT_SILENTBUNDLE_H
#define IMAGEPOSITION_TESTS_SUPPORT_SILENTBUNDLE_H

#import <Foundation/Foundation.h>

@interface SilentBundle : NSObject
- (NSString *)localizedStringForKey:(NSString *)key value:(NSString *)value table:(NSString *)table;
@end

#endif
