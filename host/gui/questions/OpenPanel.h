/// Asks for a document.
#ifndef IMAGEPOSITION_GUI_QUESTIONS_OPENPANEL_H
#define IMAGEPOSITION_GUI_QUESTIONS_OPENPANEL_H

#import <AppKit/AppKit.h>

#include <optional>
#include <string>

namespace imageposition {

/// Waits for the user, over `parent`; returns the absolute path of a file that can be read, or none
/// when the user cancelled. Begins in the folder; in place of one that cannot be read, in the
/// nearest one above it. Main thread.
///
/// In place of NSOpenPanel, for the reasons in ModalPanel.h.
std::optional<std::string> askForDocument(NSWindow *parent, const std::string &folder);

/// A sentence that says why the file cannot be printed; empty if it can be.
std::string documentTrouble(const std::string &path);

} // namespace imageposition

#endif
