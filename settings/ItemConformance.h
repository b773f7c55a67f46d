/// Which protocols view items conform to.
#ifndef IMAGEPOSITION_SETTINGS_ITEMCONFORMANCE_H
#define IMAGEPOSITION_SETTINGS_ITEMCONFORMANCE_H

#import <Foundation/Foundation.h>

namespace imageposition {

/// Returns what `[item conformsToProtocol:protocol]` returns, but caches the result per class. One
/// user action makes some eighty of these calls and takes half as long again without the cache.
/// Nothing else depends on it: `conformsToProtocol:` can replace it everywhere. Main thread only.
bool conforms(id item, Protocol *protocol);

} // namespace imageposition

#endif
