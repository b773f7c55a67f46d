/// The documents of the job.
#ifndef IMAGEPOSITION_GUI_WINDOW_DOCUMENTROW_H
#define IMAGEPOSITION_GUI_WINDOW_DOCUMENTROW_H

#import "DialogLayout.h"
#import "DialogServices.h"

#include <string>
#include <vector>

namespace imageposition {
class RunLoopWake;
}

/// Names the documents, tells the pages and the paper of a single one, and lets the user choose
/// another.
@interface DocumentRow : NSObject {
  id<DialogServices> dialog; ///< Not owned.
  NSTextField *label;        ///< Owned; so below.
  NSButton *openButton;
  NSButton *listButton; ///< Hidden unless there are several documents.
  NSButton *pressed;    ///< Not owned; null if `showQuestion` has nothing to do.
}

/// Signals `wake`, which is borrowed, when `refresh` is due because a document has been examined.
- (id)initWithDialog:(id<DialogServices>)theDialog wake:(const imageposition::RunLoopWake &)wake;
- (imageposition::DialogRow)row;
/// Adapts to the label's width, to the job, and to what is known of the document.
- (void)refresh;
/// The number of pages of the job's only document; 0 while it is not known.
- (int)pages;
/// Whether its pages have one size. NO while that is not known.
- (BOOL)hasPagesOfOneSize;
/// Whether the examination is over, if there is one.
- (BOOL)isExamined;
/// Whether the first page of the job's only document is wider than high. NO while that is not
/// known.
- (BOOL)isLandscape;
/// Examines the document again if its file has changed since; a message says if it is gone.
- (void)lookAtFile;
/// Opens the window of the button that was pressed, if any: in an event, where a window can be
/// shown.
- (void)showQuestion;
/// Prints these files, at least one, in place of the job's documents. A message says why one of
/// them cannot be printed; nothing has changed then.
- (void)take:(const std::vector<std::string> &)paths;

@end

#endif
