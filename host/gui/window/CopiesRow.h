/// How many copies are printed, and whether they are collated.
#ifndef IMAGEPOSITION_GUI_WINDOW_COPIESROW_H
#define IMAGEPOSITION_GUI_WINDOW_COPIESROW_H

#import "DialogLayout.h"
#import "DialogServices.h"
#import "ErrorLabel.h"

@interface CopiesRow : NSObject {
  id<DialogServices> dialog; ///< Not owned.
  NSTextField *field;        ///< Owned; so below.
  NSStepper *stepper;
  NSButton *collate;
  ErrorLabel *error;
}

- (id)initWithDialog:(id<DialogServices>)theDialog;
- (std::vector<imageposition::DialogRow>)rows;
/// Shows what the job's settings say.
- (void)refresh;
/// Takes the number of copies into the job's settings. NO, with a message and the focus there, when
/// it is not understood.
- (BOOL)takeEntry;

@end

#endif
