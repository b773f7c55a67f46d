/// The pane that lists what will be printed, and how.
#ifndef IMAGEPOSITION_GUI_WIDGETS_SUMMARYVIEW_H
#define IMAGEPOSITION_GUI_WIDGETS_SUMMARYVIEW_H

#import "KeyScrollView.h"

#include "Summary.hpp"

#include <vector>

/// Two columns under a heading for each section; scrolls when they do not fit.
@interface SummaryView : KeyScrollView

- (void)showSections:(const std::vector<imageposition::SummarySection> &)sections;

@end

#endif
