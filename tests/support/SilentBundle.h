/// In place of a bundle: has no texts, not even their keys.
#ifndef IMAGEPOSITION_TESTS_SUPPORT_SILENTBUNDLE_H
#define IMAGEPOSITION_TESTS_SUPPORT_SILENTBUNDLE_H

#import <Foundation/Foundation.h>

@interface SilentBundle : NSObject
- (NSString *)localizedStringForKey:(NSString *)key value:(NSString *)value table:(NSString *)table;
@end

#endif
