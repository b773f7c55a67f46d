/// The pane of the options that the dialog does not show elsewhere.
#ifndef IMAGEPOSITION_GUI_LISTS_OPTIONSVIEW_H
#define IMAGEPOSITION_GUI_LISTS_OPTIONSVIEW_H

#import "KeyScrollView.h"

#include "PrinterOptions.hpp"

#include <string>
#include <vector>

/// The user's actions on an option's control, which is `sender`.
@protocol OptionsViewOwner <NSObject>
/// The user chose an item of the pop-up.
- (void)option:(const std::string &)keyword
     wasChosen:(const std::string &)choice
            by:(NSView *)sender;
/// The user chose the item for entering a custom value.
- (void)option:(const std::string &)keyword wantsValueBy:(NSView *)sender;
/// The user ticked or cleared a checkbox of an option that accepts several choices.
- (void)option:(const std::string &)keyword
        choice:(const std::string &)choice
     wasTicked:(bool)on
            by:(NSView *)sender;
@end

namespace imageposition {
struct OptionsViewRow;
}

/// A heading for each group, and a pop-up for each option, or a checkbox for each choice of an
/// option that accepts several. Scrolls if they do not fit, and follows the focus.
@interface OptionsView : KeyScrollView {
  id<OptionsViewOwner> owner;                       ///< Not owned.
  std::vector<imageposition::OptionsViewRow> *rows; ///< Owned.
  std::string *shape; ///< The options and checkboxes shown, and the width; owned.
}

- (id)initWithFrame:(NSRect)frame owner:(id<OptionsViewOwner>)theOwner;
/// Reuses the controls if the same options are already shown. Shows the first 500 options and the
/// number of the others.
- (void)showGroups:(std::vector<imageposition::OptionGroup>)groups;

@end

#endif
