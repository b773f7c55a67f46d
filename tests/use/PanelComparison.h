/// Compares the visible state of a panel with the model.
#ifndef IMAGEPOSITION_TESTS_USE_PANELCOMPARISON_H
#define IMAGEPOSITION_TESTS_USE_PANELCOMPARISON_H

#import "MorvaADPPdePanelRV2.h"
#include "PanelModel.hpp"
#import "TestPrintSettings.h"

#import <AppKit/AppKit.h>

namespace imageposition::test {

/// The controls of one offset; null before the view is loaded.
struct OffsetControls {
  NSTextField *text;
  NSStepper *stepper;
  NSTextField *label;
  NSTextField *rangeLabel;
};

/// Access to a panel's controller, settings and controls.
class PanelParts {
public:
  explicit PanelParts(MorvaADPPdePanelRV2 *panel);

  MorvaADPSettingsCollectorRV2 *controller() const { return controller_; }
  id setting(const std::string &name) const;
  OffsetControls controls(const std::string &name) const;
  NSButton *check() const;
  NSButton *button() const;

private:
  MorvaADPSettingsCollectorRV2 *controller_;
};

/// Copies the initial state of the controls, which the interface file defines, to the model.
void takeControls(const PanelParts &parts, PanelModel &model);

/// Returns the first difference; empty if there is none.
std::string compare(const PanelParts &parts, const PanelModel &model);
std::string compare(const TestPrintSettings &settings, const PanelModel &model);
std::string compare(NSDictionary *summary, const PanelModel::Summary &expected);

} // namespace imageposition::test

#endif
