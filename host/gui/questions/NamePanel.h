/// Asks for a name.
#ifndef IMAGEPOSITION_GUI_QUESTIONS_NAMEPANEL_H
#define IMAGEPOSITION_GUI_QUESTIONS_NAMEPANEL_H

#import <AppKit/AppKit.h>

#include <functional>
#include <optional>
#include <string>

namespace imageposition {

struct NameQuestion {
  std::string title;      ///< Of the window.
  std::string text;       ///< Above the field.
  std::string suggestion; ///< In the field.
};

/// Whether the name can be taken. May show why not over `window`, which asks for the name.
using NameCheck = std::function<bool(NSWindow *window, const std::string &typed)>;

/// Waits for the user, over `parent`. None when the user cancelled or left the name empty. The
/// window stays while `mayTake` returns false. Main thread.
std::optional<std::string> askForName(NSWindow *parent, const NameQuestion &question,
                                      const NameCheck &mayTake = {});

/// Asks over `parent` before something with that name is replaced. Main thread.
bool mayReplace(NSWindow *parent, const std::string &name);

/// Asks for the file to write, and before an existing file is replaced. Returns its path. The
/// suggestion ends in `ending`, whose extension completes a name. Main thread.
std::optional<std::string> askForFile(NSWindow *parent, const NameQuestion &question,
                                      const std::string &ending);

} // namespace imageposition

#endif
