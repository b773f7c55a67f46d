/// The platform's loaders of resources, which raise on some malformed files, made safe: a raise
/// counts as a failure to load.
#ifndef IMAGEPOSITION_PLATFORM_RESOURCELOADING_H
#define IMAGEPOSITION_PLATFORM_RESOURCELOADING_H

#import <AppKit/AppKit.h>

namespace imageposition {

/// The property list at that path when it is a dictionary, otherwise null (for a null path too).
/// Not owned by the caller.
NSDictionary *dictionaryAtPath(NSString *path);

/// Loads the interface file from the bundle of the owner's class and connects it to the owner.
/// False when it is missing or malformed, and then some outlets may be connected all the same.
/// The file's top-level objects are the caller's to release.
bool loadInterfaceFile(NSString *name, id owner);

/// Takes `target` away from the actions of all controls in the view, because it is about to go.
void disconnectActions(NSView *view, id target);

} // namespace imageposition

#endif
