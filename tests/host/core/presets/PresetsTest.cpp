#include "Presets.hpp"

#include "ExitCode.hpp"
#include "OptionsPpd.hpp"
#include "PrivateCups.hpp"
#include "Waiting.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

using namespace imageposition;
using namespace imageposition::test;
using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;
using testing::StrEq;

/// Gives the user a private home directory and CUPS a private server root.
class PresetsTest : public testing::Test {
protected:
  void SetUp() override {
    setenv("HOME", folder.path("home").c_str(), 1);
    setenv("CUPS_SERVERROOT", folder.path("etc").c_str(), 1);
    folder.write("home/.profile", "");
    folder.write("etc/.keep", "");
  }

  static PrintSettingsStore
  settings(std::initializer_list<std::pair<const char *, const char *>> all) {
    PrintSettingsStore settings;
    for (const auto &[name, value] : all)
      EXPECT_EQ(settings.set(name, value), PrintSettingsStore::Outcome::Stored) << name;
    return settings;
  }
  std::string file() const { return contentOf(folder.path("home/.cups/lpoptions")); }

  template <typename Act> static std::string failureOf(Act &&act, ExitCode code = ExitCode::Usage) {
    try {
      act();
    } catch (const Failure &failure) {
      EXPECT_EQ(failure.code(), code) << failure.what();
      return failure.what();
    }
    ADD_FAILURE() << "did not fail";
    return {};
  }

  TemporaryFolder folder;
  PrinterDescription printer = optionsPrinter();
  Presets presets{"office"};
};

TEST_F(PresetsTest, ListingPresetsWithoutAFileCreatesNone) {
  EXPECT_THAT(presets.names(), IsEmpty());
  EXPECT_THAT(presets.ofOtherPrinters(), IsEmpty());
  EXPECT_NE(access(folder.path("home/.cups").c_str(), F_OK), 0);
}

TEST_F(PresetsTest, SavedSettingsAreLoaded) {
  const auto saved = settings({{"Duplex", "DuplexTumble"},
                               {"LeftRightMargin", "-3"},
                               {"Watermark", "Custom.It's \"my\", \\ {yes}"},
                               {"copies", "2"}});
  EXPECT_THAT(presets.save("draft", saved), IsEmpty());
  EXPECT_THAT(presets.names(), ElementsAre("draft"));
  const LoadedPreset loaded = presets.load("draft", printer);
  EXPECT_THAT(loaded.misfits, IsEmpty());
  ASSERT_EQ(loaded.settings.optionCount(), saved.optionCount());
  for (int i = 0; i < saved.optionCount(); i++)
    EXPECT_THAT(loaded.settings.get(saved.options()[i].name), StrEq(saved.options()[i].value));
}

TEST_F(PresetsTest, SavingAgainReplacesTheWholePreset) {
  presets.save("draft", settings({{"Duplex", "DuplexTumble"}, {"Stapler", "True"}}));
  presets.save("DRAFT", settings({{"Fold", "Z"}}));
  EXPECT_THAT(presets.names(), ElementsAre("DRAFT"));
  EXPECT_EQ(file(), "Dest office/DRAFT Fold=Z\n");
}

TEST_F(PresetsTest, SettingsOfASingleDocumentAreNotSaved) {
  presets.save(
      "draft",
      settings(
          {{"job-name", "Letter"}, {"page-ranges", "1-3"}, {"page-set", "odd"}, {"Fold", "Z"}}));
  EXPECT_EQ(file(), "Dest office/draft Fold=Z\n");
}

TEST_F(PresetsTest, APresetCanEqualTheDefaults) {
  presets.save("plain", PrintSettingsStore());
  EXPECT_THAT(presets.names(), ElementsAre("plain"));
  EXPECT_EQ(presets.load("plain", printer).settings.optionCount(), 0);
}

TEST_F(PresetsTest, SettingsThatCupsCannotStoreAreReported) {
  const auto lost = presets.save(
      "draft", settings({{"Note", "a#b"}, {"Lines", "a\nb"}, {"Empty", ""}, {"Fold", "Z"}}));
  EXPECT_THAT(lost, SizeIs(3));
  EXPECT_THAT(lost.back(), HasSubstr("a#b"));
  EXPECT_EQ(file(), "Dest office/draft Fold=Z\n");
  PrintSettingsStore much;
  much.set("Fold", std::string(9000, 'Z'));
  EXPECT_THAT(failureOf([&] { presets.save("draft", much); }), HasSubstr("more settings"));
  EXPECT_EQ(file(), "Dest office/draft Fold=Z\n");
}

TEST_F(PresetsTest, PasswordsAreNeitherSavedNorShown) {
  for (ppd_file_t *const ppd : {printer.ppd(), static_cast<ppd_file_t *>(nullptr)}) {
    const auto lost = presets.save(
        "draft",
        settings({{"Auth-Info", "mary,hunter2"}, {"job-password", "hunter2#"}, {"Fold", "Z"}}),
        ppd);
    ASSERT_THAT(lost, SizeIs(2));
    for (const std::string &sentence : lost)
      EXPECT_THAT(sentence, AllOf(HasSubstr("password"), Not(HasSubstr("hunter2"))));
    EXPECT_EQ(file(), "Dest office/draft Fold=Z\n");
  }
}

TEST_F(PresetsTest, APasswordThatDoesNotFitIsNotShown) {
  folder.write("home/.cups/lpoptions", "Dest attic/private Auth-Info=mary,hunter2\n");
  const auto loaded = Presets::load(PresetName{"attic", "private"}, printer);
  ASSERT_THAT(loaded.misfits, SizeIs(1));
  EXPECT_THAT(loaded.misfits.front(), AllOf(HasSubstr("Auth-Info"), Not(HasSubstr("hunter2"))));
}

TEST_F(PresetsTest, NamesAreMadeUsable) {
  const std::pair<const char *, const char *> rows[] = {
      {"draft", "draft"},
      {"Two sided", "Two-sided"},
      {"  a  b  ", "a-b"},
      {"a/b", "a-b"},
      {"\"x\"", "x"},
      {"#1", "1"},
      {"a-", "a-"},
      {"50% grey", "50%-grey"},
      {"\xE4\xB8\xA1\xE9\x9D\xA2", "\xE4\xB8\xA1\xE9\x9D\xA2"},
  };
  for (const auto &[typed, name] : rows)
    EXPECT_EQ(Presets::usableName(typed), name) << typed;
  for (const char *typed : {"", "  ", "/", "\xFF", "\t"})
    EXPECT_THAT(failureOf([&] { Presets::usableName(typed); }), HasSubstr("Two-sided."));
  EXPECT_THAT(failureOf([&] { Presets::usableName(std::string(128, 'x')); }), HasSubstr("shorter"));
  presets.save("Two sided", settings({{"Fold", "Z"}}));
  EXPECT_THAT(presets.names(), ElementsAre("Two-sided"));
}

TEST_F(PresetsTest, RenamingKeepsTheSettings) {
  presets.save("draft", settings({{"Fold", "Z"}}));
  presets.save("fine", settings({{"Fold", "None"}}));
  presets.rename("draft", "quick one");
  EXPECT_THAT(presets.names(), ElementsAre("fine", "quick-one"));
  EXPECT_THAT(presets.load("quick-one", printer).settings.get("Fold"), StrEq("Z"));
  EXPECT_THAT(failureOf([&] { presets.rename("fine", "Quick-One"); }), HasSubstr("already"));
  EXPECT_THAT(failureOf([&] { presets.rename("draft", "x"); }), HasSubstr("no preset \"draft\""));
  presets.rename("fine", "Fine");
  EXPECT_THAT(presets.names(), ElementsAre("Fine", "quick-one"));
}

TEST_F(PresetsTest, RenamingReplacesAnotherPresetOnlyIfItMay) {
  presets.save("draft", settings({{"Fold", "Z"}}));
  presets.save("fine", settings({{"Fold", "None"}}));
  presets.rename("draft", "FINE", true);
  EXPECT_THAT(presets.names(), ElementsAre("FINE"));
  EXPECT_THAT(presets.load("fine", printer).settings.get("Fold"), StrEq("Z"));
}

TEST_F(PresetsTest, WhatAppliesToTheDocumentStaysWithTheJob) {
  const PrintSettingsStore merged =
      Presets::withDocumentOf(settings({{"page-ranges", "2-3"}, {"Fold", "Z"}}),
                              settings({{"page-ranges", "9"}, {"copies", "2"}}));
  EXPECT_EQ(merged.optionCount(), 2);
  EXPECT_THAT(merged.get("page-ranges"), StrEq("2-3"));
  EXPECT_THAT(merged.get("copies"), StrEq("2"));
}

TEST_F(PresetsTest, RemovingKeepsEverythingElse) {
  folder.write("home/.cups/lpoptions", "# mine\nDefault office Duplex=None\nDest gone/x A=1\n");
  presets.save("draft", settings({{"Fold", "Z"}}));
  presets.remove("draft");
  presets.remove("draft");
  EXPECT_EQ(file(), "# mine\nDefault office Duplex=None\nDest gone/x A=1\n");
  EXPECT_THAT(failureOf([&] { presets.load("draft", printer); }), HasSubstr("no preset"));
}

TEST_F(PresetsTest, PresetsOfOtherPrintersAreListed) {
  presets.save("draft", PrintSettingsStore());
  Presets("attic/draft").save("b", PrintSettingsStore());
  Presets("attic").save("a", PrintSettingsStore());
  const auto others = presets.ofOtherPrinters();
  ASSERT_THAT(others, SizeIs(2));
  EXPECT_EQ(others[0].printer + "/" + others[0].name, "attic/a");
  EXPECT_EQ(others[1].printer + "/" + others[1].name, "attic/b");
}

TEST_F(PresetsTest, SharedPresetsAreLoadedAndCannotBeChanged) {
  folder.write("etc/lpoptions", "Dest office/house Fold=Z Stapler=True\n");
  EXPECT_THAT(presets.names(), ElementsAre("house"));
  EXPECT_THAT(failureOf([&] { presets.remove("house"); }), HasSubstr("belongs to all users"));
  EXPECT_THAT(failureOf([&] { presets.rename("house", "home"); }),
              HasSubstr("belongs to all users"));
  presets.save("house", settings({{"Stapler", "False"}}));
  const LoadedPreset loaded = presets.load("house", printer);
  EXPECT_THAT(loaded.settings.get("Fold"), StrEq("Z"));
  EXPECT_THAT(loaded.settings.get("Stapler"), StrEq("False"));
  EXPECT_EQ(contentOf(folder.path("etc/lpoptions")), "Dest office/house Fold=Z Stapler=True\n");
}

TEST_F(PresetsTest, SettingsThatDoNotFitAreDroppedAndReported) {
  const struct {
    const char *setting;
    const char *value;
    const char *misfit; // null if it fits
  } rows[] = {
      {"MediaType", "labels", nullptr},
      {"MediaType", "Gold",
       "\"Kind of Paper\" to this printer's default: the printer does not offer"},
      {"Stapler", "true", nullptr},
      {"Saddle", "On", "Left out \"Saddle\" (On)"},
      {"copies", "2", nullptr},
      {"number-up", "4", nullptr},
      {"LeftRightMargin", "0", nullptr},
      {"LeftRightMargin", "-50", nullptr},
      {"LeftRightMargin", "Custom.50", nullptr},
      {"LeftRightMargin", "7.5", "must be a whole number"},
      {"LeftRightMargin", "Custom", "does not offer \"Custom\""},
      {"LeftRightMargin", "much", "does not offer \"much\""},
      {"Watermark", "Custom.Mine", nullptr},
      {"Watermark", "Mine", "does not offer"},
      {"PageSize", "Custom.300x400", nullptr},
      {"PageSize", "Custom.300x4000", "Height is out of range"},
      {"PageSize", "Letter", "does not offer \"Letter\""},
      {"BackShift", "7", nullptr}, // a setting of a panel
  };
  for (const auto &row : rows) {
    SCOPED_TRACE(std::string(row.setting) + "=" + row.value);
    Presets("attic").save("other", settings({{row.setting, row.value}, {"Fold", "Z"}}));
    const auto loaded = Presets::load(PresetName{"attic", "other"}, printer, {"BackShift"});
    EXPECT_THAT(loaded.settings.get("Fold"), StrEq("Z"));
    if (row.misfit == nullptr) {
      EXPECT_THAT(loaded.settings.get(row.setting), StrEq(row.value));
      EXPECT_THAT(loaded.misfits, IsEmpty());
    } else {
      EXPECT_EQ(loaded.settings.get(row.setting), nullptr);
      ASSERT_THAT(loaded.misfits, SizeIs(1));
      EXPECT_THAT(loaded.misfits[0], HasSubstr(row.misfit));
    }
  }
}

TEST_F(PresetsTest, ANumberOutOfRangeBecomesTheNearestAndIsReported) {
  const struct {
    const char *value;
    const char *nearest;
  } rows[] = {
      {"80", "50"}, {"-51", "-50"}, {"Custom.80", "Custom.50"}, {"custom.-99", "Custom.-50"}};
  for (const std::string owner : {"attic", "Options"})
    for (const auto &row : rows) {
      SCOPED_TRACE(owner + "/" + row.value);
      Presets(owner).save("far", settings({{"LeftRightMargin", row.value}}));
      const auto loaded = Presets::load(PresetName{owner, "far"}, printer);
      EXPECT_THAT(loaded.settings.get("LeftRightMargin"), StrEq(row.nearest));
      ASSERT_THAT(loaded.misfits, SizeIs(1));
      EXPECT_THAT(loaded.misfits[0], AllOf(HasSubstr("Set \"Shift\" to"),
                                           HasSubstr("this printer accepts -50 to 50")));
    }
}

TEST_F(PresetsTest, ARealNumberCanBeEitherEndOfItsRange) {
  const auto glossy = optionsPrinter(R"ppd(*PPD-Adobe: "4.3"
*OpenUI *Gloss/Gloss: PickOne
*DefaultGloss: Normal
*Gloss Normal/Normal: ""
*CloseUI: *Gloss
*CustomGloss True: "pop"
*ParamCustomGloss Amount/Amount: 1 real 0.1 0.9
)ppd");
  for (const char *value : {"Custom.0.1", "Custom.0.9", "0.1"}) {
    SCOPED_TRACE(value);
    presets.save("glossy", settings({{"Gloss", value}}));
    const auto loaded = presets.load("glossy", glossy);
    EXPECT_THAT(loaded.settings.get("Gloss"), StrEq(value));
    EXPECT_THAT(loaded.misfits, IsEmpty());
  }
  presets.save("glossy", settings({{"Gloss", "Custom.0.05"}}));
  EXPECT_THAT(presets.load("glossy", glossy).settings.get("Gloss"), StrEq("Custom.0.1"));
}

TEST_F(PresetsTest, SettingsThatOnlyPanelsKnowAreKept) {
  Presets("attic").save("other", settings({{"com.example.OwnBack", "True"}}));
  const auto loaded = Presets::load(PresetName{"attic", "other"}, printer);
  EXPECT_THAT(loaded.settings.get("com.example.OwnBack"), StrEq("True"));
  EXPECT_THAT(loaded.misfits, IsEmpty());
}

TEST_F(PresetsTest, AnUnwritableFileIsReportedAndUnchanged) {
  folder.write("home/.cups/lpoptions/in the way", "");
  EXPECT_THAT(failureOf([&] { presets.save("draft", PrintSettingsStore()); }, ExitCode::Printer),
              HasSubstr("home/.cups/lpoptions"));
  setenv("HOME", "/dev/null", 1);
  EXPECT_THAT(failureOf([&] { presets.save("draft", PrintSettingsStore()); }, ExitCode::Printer),
              HasSubstr("Cannot change the presets"));
}

TEST_F(PresetsTest, ADanglingLinkIsReportedWithTheReason) {
  folder.write("home/.cups/.keep", "");
  std::filesystem::create_symlink("/dev/null", folder.path("home/.cups/lpoptions"));
  EXPECT_THAT(failureOf([&] { presets.save("draft", PrintSettingsStore()); }, ExitCode::Printer),
              testing::AllOf(HasSubstr("home/.cups/lpoptions"), HasSubstr("not a regular file")));
}

TEST_F(PresetsTest, APipeIsReportedWithoutWaitingForIt) {
  folder.write("home/.cups/.keep", "");
  ASSERT_EQ(mkfifo(folder.path("home/.cups/lpoptions").c_str(), 0600), 0);
  EXPECT_THAT(failureOf([&] { presets.names(); }, ExitCode::Printer),
              HasSubstr("home/.cups/lpoptions"));
}

TEST_F(PresetsTest, ALockThatAnotherProgramHoldsIsReportedWithItsName) {
  presets.save("Draft", settings({{"Fold", "Z"}}));
  const std::string before = file();
  Process holder(
      {"flock", folder.path("home/.cups/lpoptions.lock"), "sh", "-c", "echo >&2; exec sleep 60"});
  ASSERT_TRUE(becomesTrue([&] { return !holder.errorsSoFar().empty(); }));
  EXPECT_THAT(failureOf(
                  [&] {
                    presets.save("Other", settings({{"Fold", "Z"}}));
                  },
                  ExitCode::Printer),
              HasSubstr(" is using it"));
  EXPECT_EQ(file(), before);
}

TEST_F(PresetsTest, ConcurrentSavesLoseNothing) {
  constexpr int kWriters = 6;
  constexpr int kEach = 15;
  std::vector<pid_t> writers;
  for (int writer = 0; writer < kWriters; writer++) {
    const pid_t child = fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
      for (int i = 0; i < kEach; i++)
        presets.save(std::to_string(writer) + "-" + std::to_string(i), settings({{"Fold", "Z"}}));
      _exit(0);
    }
    writers.push_back(child);
  }
  for (const pid_t child : writers) {
    int status = -1;
    waitpid(child, &status, 0);
    EXPECT_EQ(status, 0);
  }
  EXPECT_EQ(presets.names().size(), std::size_t(kWriters * kEach));
}

/// Shares the file with the commands of CUPS.
class PresetsWithCups : public PresetsTest {
protected:
  static void SetUpTestSuite() { cups = std::make_unique<PrivateCups>(); }
  static void TearDownTestSuite() { cups.reset(); }
  void SetUp() override {
    PresetsTest::SetUp();
    ASSERT_TRUE(cups->isRunning()) << cups->log();
    const auto added = run({"lpadmin", "-p", "office", "-E", "-v", "file:///dev/null", "-P",
                            IMAGEPOSITION_SAMPLES "/duplex-shift.ppd"});
    ASSERT_EQ(added.status, 0) << testing::PrintToString(added);
  }
  /// Runs a command with the private home directory.
  ProcessResult run(const std::vector<std::string> &words) const {
    auto environment = cups->environment();
    environment.push_back("HOME=" + folder.path("home"));
    return runProcess(words, environment);
  }

  static std::unique_ptr<PrivateCups> cups;
};

std::unique_ptr<PrivateCups> PresetsWithCups::cups;

TEST_F(PresetsWithCups, LpPrintsWithASavedPreset) {
  presets.save("Two sided", settings({{"Duplex", "DuplexTumble"}, {"copies", "2"}}));
  const auto shown = run({"lpoptions", "-p", "office/Two-sided"});
  EXPECT_THAT(shown.output, HasSubstr("Duplex=DuplexTumble"));
  EXPECT_THAT(shown.output, HasSubstr("copies=2"));
  const auto sent = run({"lp", "-d", "office/Two-sided", IMAGEPOSITION_SAMPLES "/two-sided.pdf"});
  EXPECT_EQ(sent.status, 0) << testing::PrintToString(sent);
  EXPECT_THAT(sent.output, HasSubstr("request id is office-"));
}

TEST_F(PresetsWithCups, AnInstanceFromLpoptionsIsAPreset) {
  run({"lpoptions", "-p", "office/theirs", "-o", "Duplex=DuplexTumble", "-o", "job-sheets=a b"});
  EXPECT_THAT(presets.names(), ElementsAre("theirs"));
  const auto sample = PrinterDescription::fromFile(IMAGEPOSITION_SAMPLES "/duplex-shift.ppd");
  const auto loaded = presets.load("theirs", sample);
  EXPECT_THAT(loaded.settings.get("Duplex"), StrEq("DuplexTumble"));
  EXPECT_THAT(loaded.misfits, IsEmpty());
  presets.remove("theirs");
  EXPECT_THAT(run({"lpoptions", "-p", "office/theirs"}).output, Not(HasSubstr("DuplexTumble")));
}

TEST_F(PresetsWithCups, LpoptionsKeepsOurPresets) {
  presets.save("ours", settings({{"LeftRightMargin", "-3"}, {"Note", "it's \"a\" \\ b"}}));
  presets.save("plain", PrintSettingsStore());
  run({"lpoptions", "-p", "office/theirs", "-o", "Duplex=None"});
  EXPECT_THAT(presets.names(), ElementsAre("ours", "plain", "theirs"));
  const auto sample = PrinterDescription::fromFile(IMAGEPOSITION_SAMPLES "/duplex-shift.ppd");
  const auto loaded = presets.load("ours", sample, {"Note"});
  EXPECT_THAT(loaded.settings.get("LeftRightMargin"), StrEq("-3"));
  EXPECT_THAT(loaded.settings.get("Note"), StrEq("it's \"a\" \\ b"));
}

} // namespace
