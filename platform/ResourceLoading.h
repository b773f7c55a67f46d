/// Safe loaders of resources: Foundation and AppKit raise on some malformed files, which counts as
/// a failure here.
#ifndef IMAGEPOSITION_PLATFORM_RESOURCELOADING_H
#define IMAGEPOSITION_PLATFORM_RESOURCELOADING_H

#import <AppKit/AppKit.h>

namespace imageposition {

/// The property list at that path if it is a dictionary; null otherwise, and for a null path.
/// Autoreleased.
NSDictionary *dictionaryAtPath(NSString *path);

/// Loads the interface file from the bundle of the owner's class and connects it to the owner.
/// Returns false if it is missing or malformed; some outlets may be connected even then.
/// The caller releases the file's top-level objects.
bool loadInterfaceFile(NSString *name, id owner);

/// Removes `target`, which is about to be deallocated, as the target of all controls in the view.
void disconnectActions(NSView *view, id target);

} // namespace imageposition

#endif
