/// The pane that lists what will be printed how.
#ifndef IMAGEPOSITION_HOST_SUMMARYVIEW_H
#define IMAGEPOSITION_HOST_SUMMARYVIEW_H

#import "KeyScrollView.h"

#include "Summary.hpp"

#include <vector>

/// Two columns of text under a heading for each panel; it scrolls when they do not fit.
@interface SummaryView : KeyScrollView

- (void)showSections:(const std::vector<imageposition::SummarySection> &)sections;

@end

#endif
