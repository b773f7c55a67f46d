/// The panel as it is seen, against the model.
#ifndef IMAGEPOSITION_TESTS_USE_PANELCOMPARISON_H
#define IMAGEPOSITION_TESTS_USE_PANELCOMPARISON_H

#import "MorvaADPPdePanelRV2.h"
#include "PanelModel.hpp"
#import "TestPrintSettings.h"

#import <AppKit/AppKit.h>

namespace imageposition::test {

/// The controls of one offset; each null before there is a view.
struct OffsetControls {
  NSTextField *text;
  NSStepper *stepper;
  NSTextField *label;
  NSTextField *rangeLabel;
};

/// What lies behind a panel.
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

/// The first state of the controls, which is the interface file's to choose.
void takeControls(const PanelParts &parts, PanelModel &model);

/// The first difference, or nothing.
std::string compare(const PanelParts &parts, const PanelModel &model);
std::string compare(const TestPrintSettings &settings, const PanelModel &model);
std::string compare(NSDictionary *summary, const PanelModel::Summary &expected);

} // namespace imageposition::test

#endif
