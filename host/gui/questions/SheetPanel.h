/// Shows a sheet of the document in the size of the window.
#ifndef IMAGEPOSITION_GUI_QUESTIONS_SHEETPANEL_H
#define IMAGEPOSITION_GUI_QUESTIONS_SHEETPANEL_H

#import <AppKit/AppKit.h>

#include "PreviewGeometry.hpp"
#include "PreviewLayout.hpp"
#include "SheetImages.hpp"

namespace imageposition {

/// Both must outlive the panel. Main thread.
class SheetPanel {
public:
  SheetPanel(SheetImages &images, const Preview &preview);
  SheetPanel(const SheetPanel &) = delete;
  SheetPanel &operator=(const SheetPanel &) = delete;

  /// Waits until the user closes it. Leaves the sheet to which the user has turned.
  void show(NSWindow *parent, PreviewLayout::Place place);
  /// Call when the images have changed, also while the panel is shown.
  void refresh();

private:
  SheetImages &images_;
  const Preview &preview_;
  id controller_ = nil; // while it is shown
};

} // namespace imageposition

#endif
