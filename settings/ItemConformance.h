/// What view items conform to.
#ifndef IMAGEPOSITION_SETTINGS_ITEMCONFORMANCE_H
#define IMAGEPOSITION_SETTINGS_ITEMCONFORMANCE_H

#import <Foundation/Foundation.h>

namespace imageposition {

/// Returns what the item's own `conformsToProtocol:` does, and can be replaced by it everywhere: it
/// only remembers the answers of classes. One action of the user asks some eighty times, which
/// without it takes half as long again. Main thread only.
bool conforms(id item, Protocol *protocol);

} // namespace imageposition

#endif
