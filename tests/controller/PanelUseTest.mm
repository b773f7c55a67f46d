// Sequences of calls to controllers with the real view, real settings and real rules, also with
// print settings that fail and hosts that return null.
#import "ControllerFixture.h"
#include "PanelModel.hpp"
#import "TestPool.h"

using namespace imageposition::test;
using testing::ElementsAre;

namespace {

NSDictionary *mixedRules() {
  return rules({{"BackLRM", "Setting", "Value", "7", "FrontTBM", "Range", "-5:5"},
                {"FrontLRM", "Setting", "Range", "5:10", "BackLRM", "Value", "3"},
                {"FrontTBM", "Setting", "Value", "0", "BackTBM", "Default", "4"},
                {"FrontLRM", "Setting", "Value", "-1", "BackTBM", "View", "OFF"}});
}

class PanelUse : public ControllerFixture {
protected:
  void SetUp() override {
    ControllerFixture::SetUp();
    writeInterfaceFile();
    writeBundle();
    for (std::size_t i = 0; i < kNames.size(); ++i)
      model.offsets[i].ticketKey = kNames[i] + "Ticket";
  }

  void makeWithView() {
    ASSERT_NE(make(), nil);
    ASSERT_NE([controller prepareView], nil);
    model.loadView();
    for (std::size_t i = 0; i < kNames.size(); ++i)
      model.offsets[i].shown = cxxString([text(kNames[i]) stringValue]);
  }

  NSTextField *text(const std::string &name) { return get<NSTextField *>((name + "Text").c_str()); }
  NSStepper *stepper(const std::string &name) {
    return get<NSStepper *>((name + "Stepper").c_str());
  }
  NSTextField *label(const std::string &name) {
    return get<NSTextField *>((name + "Label").c_str());
  }
  NSTextField *rangeLabel(const std::string &name) {
    return get<NSTextField *>((name + "RangeLabel").c_str());
  }
  NSButton *check() { return get<NSButton *>("chkEnableImagePositionAdjust"); }
  std::string shown(const std::string &name) { return cxxString([text(name) stringValue]); }

  void put(const std::string &key, const std::string &value) {
    settings->put(key, value);
    model.store[key] = {value};
  }
  void putAll() {
    put("FrontLRMTicket", "-3");
    put("FrontTBMTicket", "4");
    put("BackLRMTicket", "5");
    put("BackTBMTicket", "-6");
    put(kEnableKey, "True");
  }

  void show() {
    [controller prepareForShow];
    [controller getTicket];
    [controller saveTicket];
    model.prepareForShow();
    model.getTicket();
    model.saveTicket();
  }

  void expectLikeTheModel() {
    for (std::size_t i = 0; i < kNames.size(); ++i) {
      const std::string &name = kNames[i];
      const PanelModel::Offset &offset = model.offsets[i];
      EXPECT_EQ(value(name), offset.value) << name;
      EXPECT_EQ(field<int32_t>(setting(name), "Min"), offset.min) << name;
      EXPECT_EQ(field<int32_t>(setting(name), "Max"), offset.max) << name;
      EXPECT_EQ(field<int32_t>(setting(name), "Default"), offset.defaultValue) << name;
      EXPECT_EQ(shown(name), offset.shown) << name;
      EXPECT_EQ([stepper(name) intValue], offset.steps) << name;
      for (NSControl *item :
           {static_cast<NSControl *>(text(name)), static_cast<NSControl *>(stepper(name)),
            static_cast<NSControl *>(label(name)), static_cast<NSControl *>(rangeLabel(name))})
        EXPECT_EQ([item isEnabled] != NO, offset.enabled) << name;
      EXPECT_TRUE([[label(name) textColor]
          isEqual:offset.enabled ? [NSColor blackColor] : [NSColor lightGrayColor]]);
      EXPECT_EQ([[text(name) textColor] isEqual:[NSColor lightGrayColor]] != NO, offset.fieldIsGray)
          << name;
      EXPECT_EQ(settings->text(offset.ticketKey), stored(offset.ticketKey)) << name;
    }
    EXPECT_EQ([check() state] != 0, model.checked);
    EXPECT_EQ([check() isEnabled] != NO, model.checkEnabled);
    EXPECT_EQ([get<NSButton *>("btnRestore2Defalut") isEnabled] != NO, model.checkEnabled);
    EXPECT_EQ(cxxString([label("FrontLRM") stringValue]),
              model.checked ? "Front left-right" : "Left-right");
    EXPECT_EQ(cxxString([label("FrontTBM") stringValue]),
              model.checked ? "Front top-bottom" : "Top-bottom");
    EXPECT_EQ(settings->text(kEnableKey), stored(kEnableKey));
  }

  std::optional<std::string> stored(const std::string &key) {
    const auto entry = model.store.find(key);
    if (entry == model.store.end())
      return std::nullopt;
    return entry->second.text;
  }

  PanelModel model;
};

// The effects of one call.

TEST_F(PanelUse, ShowingTakesTheStoredValues) {
  makeWithView();
  putAll();
  show();
  EXPECT_EQ(shown("FrontLRM"), "-3");
  EXPECT_EQ(shown("BackTBM"), "-6");
  EXPECT_EQ([check() state], 1);
  EXPECT_EQ(cxxString([label("BackLRM") stringValue]), "Back left-right");
  EXPECT_EQ(cxxString([rangeLabel("BackLRM") stringValue]), "-20 to 20");
  EXPECT_EQ(cxxString([check() title]), "Separate offsets for the back");
  EXPECT_EQ(cxxString([get<NSButton *>("btnRestore2Defalut") title]), "Back to zero");
  expectLikeTheModel();
}

TEST_F(PanelUse, SavingWritesEachValueUnderItsKeyAndTheFlag) {
  makeWithView();
  putAll();
  [controller getTicket];
  settings->put("FrontLRMTicket", "1");
  settings->put(kEnableKey, "False");
  [controller saveTicket];
  EXPECT_EQ(settings->text("FrontLRMTicket"), "-3");
  EXPECT_EQ(settings->text("FrontTBMTicket"), "4");
  EXPECT_EQ(settings->text("BackLRMTicket"), "5");
  EXPECT_EQ(settings->text("BackTBMTicket"), "-6");
  EXPECT_EQ(settings->text(kEnableKey), "True");
}

TEST_F(PanelUse, AnEditIsWrittenToThePrintSettingsAtOnce) {
  makeWithView();
  show();
  [text("FrontLRM") setStringValue:@"-3"];
  [controller UIItemActionListener:text("FrontLRM")];
  EXPECT_EQ(settings->text("FrontLRMTicket"), "-3");
  EXPECT_EQ(shown("FrontLRM"), "-3");
}

TEST_F(PanelUse, AnEditAndStepsTogetherAddUp) {
  makeWithView();
  show();
  [text("FrontLRM") setStringValue:@"5"];
  [stepper("FrontLRM") setIntValue:-1];
  [controller UIItemActionListener:stepper("FrontLRM")];
  EXPECT_EQ(settings->text("FrontLRMTicket"), "4");
  EXPECT_EQ([stepper("FrontLRM") intValue], 0);
}

TEST_F(PanelUse, StepsWithoutPrintSettingsStayPendingInTheStepper) {
  makeWithView();
  show();
  host->settings = nullptr;
  [stepper("BackLRM") setIntValue:2];
  [controller UIItemActionListener:stepper("BackLRM")];
  EXPECT_EQ([stepper("BackLRM") intValue], 2);
  EXPECT_EQ(value("BackLRM"), 0);
  host->settings = settings->handle();
  [controller UIItemActionListener:nil];
  EXPECT_EQ([stepper("BackLRM") intValue], 0);
  EXPECT_EQ(value("BackLRM"), 2);
}

TEST_F(PanelUse, TheCheckboxIsWrittenToThePrintSettingsOnlyWhenSaved) {
  makeWithView();
  show();
  [check() setState:1];
  [controller clickEnableImgPositionAdjust:check()];
  EXPECT_EQ(settings->text(kEnableKey), "False");
  EXPECT_TRUE([text("BackLRM") isEnabled]);
  EXPECT_EQ(cxxString([label("FrontLRM") stringValue]), "Front left-right");
  [controller saveTicket];
  EXPECT_EQ(settings->text(kEnableKey), "True");
}

TEST_F(PanelUse, WhenForbiddenEverythingIsDisabledAndACheckedBoxStaysChecked) {
  makeWithView();
  putAll();
  ppd->mark("Duplex", "None");
  show();
  model.printer->duplex = "None";
  model.grayUI();
  expectLikeTheModel();
  EXPECT_EQ([check() state], 1);
  EXPECT_FALSE([check() isEnabled]);
  EXPECT_EQ(cxxString([label("FrontLRM") stringValue]), "Front left-right");
}

TEST_F(PanelUse, RestoringDefaultsDoesNotWritePrintSettingsUntilTheNextRefresh) {
  makeWithView();
  putAll();
  show();
  settings->forgetCalls();
  [controller clickbtnReasto2Default:nil];
  EXPECT_TRUE(settings->calls().empty());
  EXPECT_EQ(settings->text("FrontLRMTicket"), "-3");
  EXPECT_EQ(shown("FrontLRM"), "0");
  EXPECT_EQ([check() state], 0);
  [controller notifyUI];
  EXPECT_EQ(settings->text("FrontLRMTicket"), "0");
  EXPECT_EQ(settings->text(kEnableKey), "True");
  [controller saveTicket];
  EXPECT_EQ(settings->text(kEnableKey), "False");
}

TEST_F(PanelUse, RestoringDefaultsIgnoresTheDefaultInTheDefinition) {
  NSMutableDictionary *record = definition("FrontLRM");
  [record setObject:@"9" forKey:@"DefaultValue"];
  NSMutableDictionary *all = fourDefinitions();
  [all setObject:record forKey:@"0"];
  writeBundle(all);
  makeWithView();
  show();
  EXPECT_EQ(shown("FrontLRM"), "9");
  [controller restoreDefaults];
  EXPECT_EQ(shown("FrontLRM"), "0");
}

TEST_F(PanelUse, RestoringDefaultsOutsideTheRangeShowsZeroFirstAndThenTheNearestBound) {
  NSMutableDictionary *record = definition("FrontTBM");
  [record setObject:@"5:10" forKey:@"Range"];
  [record setObject:@"8" forKey:@"DefaultValue"];
  NSMutableDictionary *all = fourDefinitions();
  [all setObject:record forKey:@"1"];
  writeBundle(all);
  makeWithView();
  show();
  id real = get<id>("FrontTBMText");
  RecordingControl *before = [[RecordingControl alloc] initWithName:"field" journal:&journal];
  get<id>("FrontTBMText") = before;
  [controller restoreDefaults];
  const Lines lines = journal.take();
  get<id>("FrontTBMText") = real;
  [before release];
  EXPECT_EQ(lines.front(), "field.setStringValue:0");
  EXPECT_EQ(shown("FrontTBM"), "5") << "the setting showed it through its item";
  EXPECT_EQ(value("FrontTBM"), 5);
}

TEST_F(PanelUse, ADefaultRuleDecidesWhatIsFirstShownForASettingThatIsNotStored) {
  writeBundle(fourDefinitions(),
              rules({{"FrontTBM", "Setting", "Value", "0", "BackTBM", "Default", "4"}}));
  makeWithView();
  [controller prepareForShow];
  EXPECT_EQ(shown("BackTBM"), "4");
  EXPECT_EQ(settings->text("BackTBMTicket"), "4");
}

TEST_F(PanelUse, AStoredValueReplacesTheValueThatARuleJustSet) {
  writeBundle(fourDefinitions(),
              rules({{"FrontTBM", "Setting", "Value", "9", "BackTBM", "Value", "4"}}));
  makeWithView();
  settings->put("FrontTBMTicket", "8");
  settings->put("BackTBMTicket", "2");
  [controller prepareForShow];
  EXPECT_EQ(shown("BackTBM"), "2");
}

TEST_F(PanelUse, ReadingWithoutAViewKeepsTheStoredNumberUnclamped) {
  ASSERT_NE(make(), nil);
  settings->put("FrontLRMTicket", "99");
  [controller getTicket];
  EXPECT_EQ(value("FrontLRM"), 99);
  [controller saveTicket];
  EXPECT_EQ(settings->text("FrontLRMTicket"), "20");
}

TEST_F(PanelUse, ARangeThatARuleChangedShowsAtTheNextRefreshAndNotInTheEntryField) {
  writeBundle(fourDefinitions(), mixedRules());
  makeWithView();
  show();
  [text("BackLRM") setStringValue:@"7"];
  [controller UIItemActionListener:nil];
  EXPECT_EQ(cxxString([rangeLabel("FrontTBM") stringValue]), "-20 to 20");
  [controller UIItemActionListener:nil];
  EXPECT_EQ(cxxString([rangeLabel("FrontTBM") stringValue]), "-5 to 5");
  EXPECT_EQ(field<int32_t>(text("FrontTBM"), "Max"), 20);
}

TEST_F(PanelUse, AnEntryFieldThatARuleDisabledStaysLightGray) {
  writeBundle(fourDefinitions(), mixedRules());
  makeWithView();
  settings->put(kEnableKey, "True");
  show();
  [text("FrontLRM") setStringValue:@"-1"];
  [controller UIItemActionListener:nil];
  EXPECT_TRUE([text("BackTBM") isEnabled]) << "availability is decided last";
  EXPECT_TRUE([[text("BackTBM") textColor] isEqual:[NSColor lightGrayColor]]);
  EXPECT_TRUE([[label("BackTBM") textColor] isEqual:[NSColor blackColor]]);
  EXPECT_EQ(field<BOOL>(text("BackTBM"), "ViewState"), NO);
}

// Print settings that fail once.

class PanelUseFailing : public PanelUse {
protected:
  /// Runs the use once for each of its reads and writes, which fails in that run, and compares the
  /// result with the model.
  template <class Real, class Modelled> void failEachAccess(Real real, Modelled modelled) {
    for (bool failsRead : {true, false}) {
      for (int n = 1;; ++n) {
        SCOPED_TRACE((failsRead ? "read " : "write ") + std::to_string(n));
        Pool pool;
        settings = std::make_unique<TestPrintSettings>();
        host->settings = settings->handle();
        model = PanelModel();
        for (std::size_t i = 0; i < kNames.size(); ++i)
          model.offsets[i].ticketKey = kNames[i] + "Ticket";
        makeWithView();
        putAll();
        show();
        log->clear();
        settings->forgetCalls();
        (failsRead ? model.failRead : model.failWrite) = n;
        failsRead ? settings->failRead(n) : settings->failWrite(n);
        real();
        modelled();
        const std::size_t accesses = settings->count(failsRead ? TestPrintSettings::Access::Get
                                                               : TestPrintSettings::Access::Set);
        expectLikeTheModel();
        expectFlagFailureLogged();
        settings->stopFailing();
        model.failRead = model.failWrite = 0;
        show();
        expectLikeTheModel();
        if (accesses < static_cast<std::size_t>(n)) {
          EXPECT_GT(n, 1) << "nothing failed";
          break;
        }
      }
    }
  }

  void expectFlagFailureLogged() {
    long failed = 0;
    for (const TestPrintSettings::Call &call : settings->calls())
      if (call.key == kEnableKey && call.access == TestPrintSettings::Access::Set &&
          call.status != 0)
        ++failed;
    EXPECT_EQ(std::count(log->lines().begin(), log->lines().end(), kFlagNotWritten), failed);
  }
};

TEST_F(PanelUseFailing, FailureWhileShowingLosesOnlyTheFailedAccess) {
  failEachAccess(
      [this] {
        [controller prepareForShow];
        [controller getTicket];
        [controller saveTicket];
      },
      [this] {
        model.prepareForShow();
        model.getTicket();
        model.saveTicket();
      });
}

TEST_F(PanelUseFailing, FailureInAnActionLosesOnlyTheFailedAccess) {
  failEachAccess(
      [this] {
        [text("BackLRM") setStringValue:@"9"];
        [stepper("FrontTBM") setIntValue:2];
        [controller UIItemActionListener:nil];
      },
      [this] {
        model.offsets[PanelModel::BackLRM].shown = "9";
        model.offsets[PanelModel::FrontTBM].steps = 2;
        model.action();
      });
}

TEST_F(PanelUseFailing, FailureWhileSavingLosesOnlyTheFailedAccess) {
  // A failed write is followed by a read: save twice, so that reads can be counted too.
  failEachAccess(
      [this] {
        [controller notifyUI];
        [controller saveTicket];
        [controller getTicket];
      },
      [this] {
        model.notifyUI();
        model.saveTicket();
        model.getTicket();
      });
}

TEST_F(PanelUseFailing, FailureWhileRestoringLosesOnlyTheFailedAccess) {
  failEachAccess(
      [this] {
        [controller getTicket];
        [controller saveTicket];
        [controller getTicket];
      },
      [this] {
        model.getTicket();
        model.saveTicket();
        model.getTicket();
      });
}

TEST_F(PanelUse, AFailedWriteShowsTheStoredValue) {
  makeWithView();
  putAll();
  show();
  settings->failWritesOf("FrontLRMTicket");
  [text("FrontLRM") setStringValue:@"12"];
  [controller UIItemActionListener:nil];
  EXPECT_EQ(shown("FrontLRM"), "-3");
  EXPECT_EQ(value("FrontLRM"), -3);
  EXPECT_THAT(logWithoutTraces(), testing::Not(testing::Contains(kFlagNotWritten)));
}

TEST_F(PanelUse, AFailedWriteOfASettingThatIsNotStoredShowsItsDefault) {
  makeWithView();
  settings->failWritesOf("FrontLRMTicket");
  show();
  [text("FrontLRM") setStringValue:@"12"];
  [controller UIItemActionListener:nil];
  EXPECT_EQ(shown("FrontLRM"), "0");
}

// A host that returns null.

TEST_F(PanelUse, EachRequestForPrintSettingsMayReturnNull) {
  putAll();
  for (int n = 1;; ++n) {
    SCOPED_TRACE(n);
    Pool pool;
    makeWithView();
    host->settingsRequests = 0;
    host->failingSettingsRequest = n;
    [controller prepareForShow];
    [controller getTicket];
    [controller saveTicket];
    [controller UIItemActionListener:nil];
    [controller getSummaryInfo];
    [controller restoreDefaults];
    [controller notifyUI];
    const BOOL saved = [controller saveTicket];
    EXPECT_EQ(saved, host->settingsRequests == n ? NO : YES);
    if (host->settingsRequests < n)
      break;
    ASSERT_LT(n, 20);
  }
}

TEST_F(PanelUse, AHostThatAlwaysReturnsNullLeavesThePanelUsable) {
  host->settings = nullptr;
  makeWithView();
  [controller prepareForShow];
  EXPECT_FALSE([controller getTicket]);
  EXPECT_FALSE([controller saveTicket]);
  EXPECT_EQ([[controller getSummaryInfo] count], 6U);
  EXPECT_EQ(cxxString([check() title]), "Separate offsets for the back");
  EXPECT_EQ(shown("FrontLRM"), "0");
  EXPECT_TRUE([text("FrontLRM") isEnabled]);
}

} // namespace
