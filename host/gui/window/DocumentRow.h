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
/// Prints these files, at least one, in place of the job's documents. A message says why one of
/// them cannot be printed; nothing has changed then.
- (void)take:(const std::vector<std::string> &)paths;

@end

#endif
