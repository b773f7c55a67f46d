/// The built bundle's panel, loaded as a print dialog does.
#ifndef IMAGEPOSITION_TESTS_RESOURCES_PANELFIXTURE_H
#define IMAGEPOSITION_TESTS_RESOURCES_PANELFIXTURE_H

#import <AppKit/AppKit.h>

#import "LogCapture.h"
#import "MorvaADPPdeCallbackRV2.h"
#import "TestPpd.h"
#import "TestPrintSettings.h"

#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace imageposition::test {

extern const std::vector<std::string> kSettingNames;

class PanelFixture : public testing::Test {
protected:
  PanelFixture();
  ~PanelFixture() override;

  /// Shows the panel in a window, for a printer that has the adjustment and these further PPD
  /// lines.
  void show(const std::vector<std::string> &ppdLines = {}, bool backSideOn = false);

  /// The control of one of the controller's outlets.
  id control(const std::string &outlet) const;
  NSTextField *field(const std::string &setting) const { return control(setting + "Text"); }
  NSTextField *nameLabel(const std::string &setting) const { return control(setting + "Label"); }
  NSTextField *rangeLabel(const std::string &setting) const {
    return control(setting + "RangeLabel");
  }
  NSView *view() const { return view_; }

  /// Types the text into the field and leaves the field.
  void enter(const std::string &setting, const std::string &text);

  std::string shown(NSTextField *field) const;

  /// The folder name of this process's language.
  static std::string language();
  /// The bundle's string for the key, as the panel finds it.
  static std::string localized(const std::string &key);

  TestPrintSettings settings_;

private:
  LogCapture log_;
  std::optional<TestPpd> ppd_;
  id host_ = nil;
  id panel_ = nil;
  NSView *view_ = nil;
  NSWindow *window_ = nil;
};

} // namespace imageposition::test

#endif
