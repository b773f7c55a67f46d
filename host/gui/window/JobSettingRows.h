/// The pane "More": settings of the job that CUPS acts on for every printer.
#ifndef IMAGEPOSITION_GUI_WINDOW_JOBSETTINGROWS_H
#define IMAGEPOSITION_GUI_WINDOW_JOBSETTINGROWS_H

#import "DialogServices.h"
#include "JobSettings.hpp"
#import "OptionsView.h"

#include <string>

namespace imageposition {

/// The settings of the session's job; valid until it takes another printer.
JobSettings jobSettingsOf(PrintSession &session);

} // namespace imageposition

/// Carries out what the user does in the pane.
@interface JobSettingRows : NSObject <OptionsViewOwner> {
  id<DialogServices> dialog; ///< Not owned.
  std::string *toEnter;      ///< The setting that the user is about to enter a value for; owned.
}

- (id)initWithDialog:(id<DialogServices>)theDialog;
/// Asks for the value that the user has chosen to enter, if any: once the pop-up's menu has closed
/// and a window can be shown over `parent`.
- (void)askForChosenValueOver:(NSWindow *)parent;

@end

#endif
