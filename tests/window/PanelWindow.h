/// The whole panel of the built bundle, in a test dialog's window.
#ifndef IMAGEPOSITION_TESTS_WINDOW_PANELWINDOW_H
#define IMAGEPOSITION_TESTS_WINDOW_PANELWINDOW_H

#import "Fields.h"
#import "LogCapture.h"
#import "RecordingHost.h"
#import "SimulatedUser.h"
#import "TestPpd.h"
#import "TestPrintSettings.h"
#import "Text.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace imageposition::test {

inline NSString *const kPrintDialogType = @"BDB091F4-E57F-11D3-B5CC-0050E4603277";
inline constexpr const char *kEnableFlag = "com.morva.printsettings.19AImagePositionEnable";

/// The built bundle, loaded.
NSBundle *pluginBundle();
/// A new plug-in object from the bundle; the caller owns it.
id newPlugin();
/// The PPD lines of a printer that supports the adjustment and whose marked choices allow it.
std::vector<std::string> supportingPrinter();

class PanelWindow : public testing::Test {
protected:
  void SetUp() override;
  void TearDown() override;

  NSControl *control(const std::string &fieldName);
  NSTextField *text(const std::string &name) {
    return static_cast<NSTextField *>(control(name + "Text"));
  }
  NSControl *stepper(const std::string &name) { return control(name + "Stepper"); }
  NSButton *check() { return static_cast<NSButton *>(control("chkEnableImagePositionAdjust")); }
  NSButton *button() { return static_cast<NSButton *>(control("btnRestore2Defalut")); }

  /// What the user sees in the entry field.
  std::string shown(const std::string &name);
  std::string label(const std::string &name);
  /// The bundle's string for a key.
  static std::string localized(const std::string &key);
  /// The offset's value in the job's print settings; "(null)" if there is none.
  std::string stored(const std::string &ticketKey);
  std::string flag() { return stored(kEnableFlag); }

  /// The name of the control with the keyboard focus; "" if there is none.
  std::string focused();

  /// Selects the text of a field, like a user who wants to replace it.
  void select(const std::string &name);
  void expectSeen(const std::function<bool()> &condition, const char *what);

  std::unique_ptr<LogCapture> log;
  std::unique_ptr<TestPpd> ppd;
  std::unique_ptr<TestPrintSettings> settings;
  RecordingHost *host = nil;
  id plugin = nil;
  id panel = nil;
  NSView *view = nil;
  NSWindow *window = nil;
  std::unique_ptr<SimulatedUser> user;
};

/// Waits until the condition holds, and fails if it does not.
#define EXPECT_SEEN(condition) expectSeen([&] { return (condition); }, #condition)

} // namespace imageposition::test

#endif
