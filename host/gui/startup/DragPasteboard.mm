#import "DragPasteboard.h"

#include "DraggedFiles.hpp"

@interface DragPasteboard ()
- (NSArray *)files;
@end

@implementation DragPasteboard

- (void)dealloc {
  [files release];
  [super dealloc];
}

- (NSArray *)files {
  if (files != nil)
    return files;
  NSMutableArray *const found = [NSMutableArray array];
  for (const std::string &path : imageposition::draggedFiles())
    [found
        addObject:[[NSFileManager defaultManager] stringWithFileSystemRepresentation:path.data()
                                                                              length:path.size()]];
  files = [found copy];
  return files;
}

- (NSString *)name {
  return NSDragPboard;
}

- (NSArray *)types {
  return [[self files] count] > 0 ? [NSArray arrayWithObject:NSFilenamesPboardType]
                                  : [NSArray array];
}

- (NSString *)availableTypeFromArray:(NSArray *)wanted {
  return [wanted firstObjectCommonWithArray:[self types]];
}

- (id)propertyListForType:(NSString *)type {
  return [type isEqualToString:NSFilenamesPboardType] ? [self files] : nil;
}

@end
