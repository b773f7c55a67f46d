/// The panes: the panels of plug-ins, the printer's options, more settings, and the summary.
#ifndef IMAGEPOSITION_GUI_WINDOW_PANES_H
#define IMAGEPOSITION_GUI_WINDOW_PANES_H

#import "DialogLayout.h"
#import "DialogServices.h"
#import "OptionsView.h"
#import "PaneArea.h"
#import "SummaryView.h"

#include <string>
#include <vector>

namespace imageposition {

/// The size of the largest panel, or of the other panes if there is none.
NSSize largestPane(PanelSession &session);

} // namespace imageposition

/// Drives the panels, too: has them save and restore, and leaves out those that fail, with a
/// message.
@interface Panes : NSObject {
  id<DialogServices> dialog; ///< Not owned; so are the next two.
  id<OptionsViewOwner> optionsOwner;
  id<OptionsViewOwner> moreOwner;
  ListPopUp *popUp; ///< Owned; so below.
  PaneArea *area;
  OptionsView *options; ///< Null before it is first shown; so are the next two.
  OptionsView *more;
  SummaryView *summary;
  NSView *after;                                     ///< The window's.
  std::vector<imageposition::PanelDriver *> *listed; ///< The session's, in the order of the pop-up.
  imageposition::PanelDriver *shown; ///< The session's; null while another pane is shown.
  BOOL isRefusalShown;               ///< Whether the message is about what `shown` did not save.
}

/// The owners carry out what the user does in the panes of printer options and of more settings.
- (id)initWithDialog:(id<DialogServices>)theDialog
        optionsOwner:(id<OptionsViewOwner>)theOwner
           moreOwner:(id<OptionsViewOwner>)theMoreOwner;
- (imageposition::DialogRow)row;
- (PaneArea *)area;
/// Called after the size of the area has changed.
- (void)areaResized;
/// Tab leads from the pane's last control to `view`.
- (void)linkBefore:(NSView *)view;
/// The first control of the pane; null where it has none.
- (NSView *)firstControl;

/// Lists the session's panels and the dialog's own panes, and chooses the first.
- (void)list;
/// Shows the chosen pane with what the job's settings say; lists the panes anew if a panel has
/// gone.
- (void)refresh;
/// Called after CUPS has listed its printers again, with their cover pages.
- (void)printersListed;

/// Has every panel save. NO when one failed.
- (BOOL)save;
/// The same, and NO also when one did not save.
- (BOOL)saveAll;
/// Asks every panel whether it allows the job, and has it save. When one does not save, the user
/// decides whether to print anyway.
- (BOOL)allowPrinting;
/// Has the shown panel save after an act of the user on one of its views, so that the picture shows
/// what it does. What is being typed is left alone.
- (void)userActedOn:(NSView *)view;
/// Whether the view is the shown panel's.
- (BOOL)isPanels:(NSView *)view;
/// Has the shown panel take a number while it is typed, so that the picture shows what it does. The
/// field keeps what is typed if `isKept`, and otherwise shows what the panel made of it.
- (void)takeNumber:(NSTextField *)field keepingIt:(BOOL)isKept;
/// Leaves out the shown panel if the view, whose code raised `what`, is the panel's. NO if not.
- (BOOL)leaveOutPanelOf:(NSView *)view because:(const std::string &)what;

@end

#endif
