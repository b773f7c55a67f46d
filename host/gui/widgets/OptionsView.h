/// The pane of the options that have no place elsewhere in the dialog.
#ifndef IMAGEPOSITION_HOST_OPTIONSVIEW_H
#define IMAGEPOSITION_HOST_OPTIONSVIEW_H

#import "KeyScrollView.h"

#include "PrinterOptions.hpp"

#include <string>
#include <vector>

@protocol OptionsViewOwner <NSObject>
/// A person chose. `sender` is the pop-up.
- (void)option:(const std::string &)keyword
     wasChosen:(const std::string &)choice
            by:(NSView *)sender;
/// The item of the pop-up that leads to entering a value.
- (void)option:(const std::string &)keyword wantsValueBy:(NSView *)sender;
/// A check box of an option that takes several choices.
- (void)option:(const std::string &)keyword
        choice:(const std::string &)choice
     wasTicked:(bool)on
            by:(NSView *)sender;
@end

namespace imageposition {
struct OptionsViewRow;
}

/// A heading for each group, and a pop-up for each option, or a check box for each choice of one
/// that takes several; it scrolls when they do not fit, and follows the focus.
@interface OptionsView : KeyScrollView {
  id<OptionsViewOwner> owner; ///< Not owned.
  std::vector<imageposition::OptionsViewRow> *rows;
  std::string *shape; ///< Of the groups shown: all options and check boxes.
}

- (id)initWithFrame:(NSRect)frame owner:(id<OptionsViewOwner>)theOwner;
/// Keeps the controls where they are for the options that are shown already. Of more than some
/// hundreds the first are shown, and how many are left out.
- (void)showGroups:(std::vector<imageposition::OptionGroup>)groups;

@end

#endif
