/// The pane of the options that the dialog does not show elsewhere.
#ifndef IMAGEPOSITION_GUI_WIDGETS_OPTIONSVIEW_H
#define IMAGEPOSITION_GUI_WIDGETS_OPTIONSVIEW_H

#import "KeyScrollView.h"

#include "PrinterOptions.hpp"

#include <string>
#include <vector>

/// What the user does with an option's control, which is `sender`.
@protocol OptionsViewOwner <NSObject>
/// Chose an item of the pop-up.
- (void)option:(const std::string &)keyword
     wasChosen:(const std::string &)choice
            by:(NSView *)sender;
/// Chose the item that leads to entering a value.
- (void)option:(const std::string &)keyword wantsValueBy:(NSView *)sender;
/// Ticked a check box of an option that takes several choices, or took the tick away.
- (void)option:(const std::string &)keyword
        choice:(const std::string &)choice
     wasTicked:(bool)on
            by:(NSView *)sender;
@end

namespace imageposition {
struct OptionsViewRow;
}

/// A heading for each group, and a pop-up for each option, or a check box for each choice of an
/// option that takes several. Scrolls when they do not fit, and follows the focus.
@interface OptionsView : KeyScrollView {
  id<OptionsViewOwner> owner;                       ///< Not owned.
  std::vector<imageposition::OptionsViewRow> *rows; ///< Owned.
  std::string *shape; ///< The options and check boxes that are shown; owned.
}

- (id)initWithFrame:(NSRect)frame owner:(id<OptionsViewOwner>)theOwner;
/// Reuses the controls when the same options are shown already. Shows the first 500 options, and
/// how many it leaves out.
- (void)showGroups:(std::vector<imageposition::OptionGroup>)groups;

@end

#endif
