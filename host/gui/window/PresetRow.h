/// The presets: choosing, saving, renaming and deleting them.
#ifndef IMAGEPOSITION_GUI_WINDOW_PRESETROW_H
#define IMAGEPOSITION_GUI_WINDOW_PRESETROW_H

#import "DialogLayout.h"
#import "DialogServices.h"

#include "Presets.hpp"

#include <string>
#include <vector>

namespace imageposition {
struct PresetRowState;
}

/// The pop-up lists: none; this printer's presets; those of other printers; save, rename, delete,
/// make the default.
@interface PresetRow : NSObject {
  id<DialogServices> dialog;            ///< Not owned.
  ListPopUp *popUp;                     ///< Owned.
  imageposition::PresetRowState *state; ///< Owned.
}

/// The preset with which the job begins is the chosen one.
- (id)initWithDialog:(id<DialogServices>)theDialog;
- (imageposition::DialogRow)row;
/// Lists the presets anew.
- (void)list;
/// The same for another printer.
- (void)printerChanged;

@end

#endif
