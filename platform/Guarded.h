/// Platform loaders that raise on malformed files, made safe: a raise counts as a failure to load.
#ifndef IMAGEPOSITION_PLATFORM_GUARDED_H
#define IMAGEPOSITION_PLATFORM_GUARDED_H

#import <Foundation/Foundation.h>

namespace imageposition {

/// The property list at that path when it is a dictionary, otherwise null (for a null path too).
/// Not owned by the caller.
NSDictionary *dictionaryAtPath(NSString *path);

/// Loads the interface file from the bundle of the owner's class and connects it to the owner.
/// False when it is missing or malformed, and then some outlets may be connected all the same.
bool loadInterfaceFile(NSString *name, id owner);

} // namespace imageposition

#endif
