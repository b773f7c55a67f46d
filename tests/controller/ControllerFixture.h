/// Controllers for test bundles, with recorders in their fields or a real view.
#ifndef IMAGEPOSITION_TESTS_CONTROLLER_CONTROLLERFIXTURE_H
#define IMAGEPOSITION_TESTS_CONTROLLER_CONTROLLERFIXTURE_H

#import "Fields.h"
#import "LogCapture.h"
#import "Recorders.h"
#import "RecordingHost.h"
#import "TestBundle.h"
#import "TestPpd.h"
#import "TestPrintSettings.h"
#import "Text.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <initializer_list>
#include <memory>
#include <string>
#include <vector>

namespace imageposition::test {

using Lines = std::vector<std::string>;

inline const Lines kNames = {"FrontLRM", "FrontTBM", "BackLRM", "BackTBM"};

inline constexpr const char *kEnableKey = "com.morva.printsettings.19AImagePositionEnable";
inline constexpr const char *kCheckTrace = "@@@Check on checkbox Enable Image Position Adjust!";
inline constexpr const char *kDuplexTrace = "@@@Get duplex setting Duplex = None !";
inline constexpr const char *kBannerTrace = "@@@Get MVBannerPagePrint setting  True= True !";
inline constexpr const char *kFlagRead = "Get Enable Image Position Adjust PrintTicket success.";
inline constexpr const char *kFlagNotWritten = "Set Enable Image Position Adjust PrintTicket fail.";

/// A definition record with the range -20 to 20 and the default 0. Its ticket key is the name plus
/// "Ticket", its summary name the name plus "Summary".
NSMutableDictionary *definition(const std::string &name);
/// "SettingInfo": the records under "0", "1", ...
NSMutableDictionary *definitions(const std::vector<NSDictionary *> &records);
/// The four settings in order.
NSMutableDictionary *fourDefinitions();
/// "ConstraintInfo": rules under "0", "1", .... Each has the condition's object, type, pattern and
/// value, then the action's object, pattern and value.
NSMutableDictionary *rules(const std::vector<Lines> &fields);

/// The PPD lines of a printer that allows the adjustment: Duplex on, no banner page.
Lines duplexPrinter();

Lines operator+(Lines left, const Lines &right);

class ControllerFixture : public testing::Test {
protected:
  void SetUp() override;
  void TearDown() override;

  /// Writes the definitions, the rules and one language's strings.
  void writeBundle(NSDictionary *settingInfo = fourDefinitions(),
                   NSDictionary *constraintInfo = [NSDictionary dictionary]);
  /// Writes the real panel's interface file, or these bytes, to the program's resources, where the
  /// controller finds it because its classes are linked into the program. Removed with the fixture.
  static void writeInterfaceFile();
  static void writeInterfaceFile(const std::string &bytes);
  static void removeInterfaceFile();

  /// A new controller for the bundle, owned by the fixture; null if it cannot be built.
  MorvaADPSettingsCollectorRV2 *make();
  /// The same, of a subclass that records its methods.
  MorvaADPSettingsCollectorRV2 *makeRecording();
  /// A controller without settings whose fields hold recorders: controls by the names of their
  /// fields, settings by their own names, the checkbox as "check" and the button as "button".
  MorvaADPSettingsCollectorRV2 *makeHollow();

  template <class T> T &get(const char *name) { return field<T>(controller, name); }
  MorvaADPIntegerSettingRV2 *setting(const std::string &name);
  RecordingControl *control(const char *fieldName) {
    return (RecordingControl *)get<id>(fieldName);
  }
  int32_t value(const std::string &name) { return field<int32_t>(setting(name), "Value"); }

  /// The log lines, without those of the availability check.
  Lines logWithoutTraces();

  Journal journal;
  std::unique_ptr<LogCapture> log;
  std::unique_ptr<TestBundle> bundle;
  std::unique_ptr<TestPrintSettings> settings;
  std::unique_ptr<TestPpd> ppd;
  RecordingHost *host = nil;
  MorvaADPSettingsCollectorRV2 *controller = nil;

private:
  void fill(const char *fieldName, Recorder *recorder);

  std::vector<std::pair<std::string, Recorder *>> fillings_;
};

} // namespace imageposition::test

#endif
