#import "DropView.h"

@interface DropView ()
- (id<FileReceiver>)receiver;
@end

@implementation DropView

- (id)initWithFrame:(NSRect)frame {
  if ((self = [super initWithFrame:frame]) != nil)
    [self registerForDraggedTypes:[NSArray arrayWithObject:NSFilenamesPboardType]];
  return self;
}

- (id<FileReceiver>)receiver {
  return (id<FileReceiver>)[[self window] delegate];
}

- (NSView *)hitTest:(NSPoint)place {
  NSView *const hit = [super hitTest:place];
  const bool isDrag = [[NSApp currentEvent] type] == NSAppKitDefined; // not a mouse event
  return hit != nil && isDrag ? self : hit;
}

- (NSDragOperation)draggingEntered:(id<NSDraggingInfo>)info {
  if (![[self receiver] takesFiles])
    return NSDragOperationNone;
  return [info draggingSourceOperationMask] & NSDragOperationCopy;
}

- (NSDragOperation)draggingUpdated:(id<NSDraggingInfo>)info {
  return [self draggingEntered:info];
}

- (BOOL)prepareForDragOperation:(id<NSDraggingInfo>)info {
  return [self draggingEntered:info] != NSDragOperationNone;
}

- (BOOL)performDragOperation:(id<NSDraggingInfo>)info {
  NSArray *const names = [[info draggingPasteboard] propertyListForType:NSFilenamesPboardType];
  std::vector<std::string> paths;
  for (NSUInteger i = 0; i < [names count]; i++)
    paths.push_back([[names objectAtIndex:i] fileSystemRepresentation]);
  if (!paths.empty())
    [[self receiver] takeFiles:paths];
  return !paths.empty();
}

@end
