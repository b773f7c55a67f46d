/// Which pages are printed.
#ifndef IMAGEPOSITION_GUI_WINDOW_PAGESROW_H
#define IMAGEPOSITION_GUI_WINDOW_PAGESROW_H

#import "DialogLayout.h"
#import "DialogServices.h"
#import "ErrorLabel.h"

@interface PagesRow : NSObject {
  id<DialogServices> dialog; ///< Not owned.
  ListPopUp *pages;          ///< Owned; so below.
  NSTextField *ranges;
  ErrorLabel *error;
}

- (id)initWithDialog:(id<DialogServices>)theDialog;
- (std::vector<imageposition::DialogRow>)rows;
/// Shows what the job's settings say.
- (void)refresh;
/// Says again what the chosen pages mean, after a change of other settings.
- (void)refreshNote;
/// Takes the pages into the job's settings. NO, with a message and the focus there, when the ranges
/// are not understood.
- (BOOL)takeEntry;

@end

#endif
