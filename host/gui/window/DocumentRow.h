/// The documents of the job.
#ifndef IMAGEPOSITION_GUI_WINDOW_DOCUMENTROW_H
#define IMAGEPOSITION_GUI_WINDOW_DOCUMENTROW_H

#import "DialogLayout.h"
#import "DialogServices.h"

#include <string>
#include <vector>

/// Names the documents, and lets the user choose another.
@interface DocumentRow : NSObject {
  id<DialogServices> dialog; ///< Not owned.
  NSTextField *label;        ///< Owned; so below.
  NSButton *openButton;
  BOOL isAskedFor; ///< The button was pressed.
}

- (id)initWithDialog:(id<DialogServices>)theDialog;
- (imageposition::DialogRow)row;
/// Adapts to the label's width and to the job.
- (void)refresh;
/// Asks for a document if the button was pressed: in an event, where a window can be shown.
- (void)askForDocument;
/// Prints these documents, at least one, in place of the job's. Paths of files.
- (void)take:(const std::vector<std::string> &)paths;

@end

#endif
