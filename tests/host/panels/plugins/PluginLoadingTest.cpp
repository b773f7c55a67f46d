// How print-dialog handles plug-ins that are broken in various ways.
#include "PluginFixture.hpp"

namespace {

using namespace imageposition::test;
using testing::HasSubstr;
using testing::IsEmpty;

namespace fs = std::filesystem;

class PluginLoading : public PluginFixture {
protected:
  ProcessResult behave(const std::string &behaviour, const Words &words = {}) {
    return load(FIXTURE_PLUGIN, behaviour, words);
  }
};

TEST_F(PluginLoading, APanelsMethodsAreCalledInTheDocumentedOrder) {
  const auto result = behave("", {"--set", "Number=5", "--back", "on"});
  ASSERT_EQ(result.status, kDone) << testing::PrintToString(result);
  EXPECT_EQ(contentOf(journal), "initWithBundle:\n"
                                "PDEPanelsForType:withHostInfo:\n"
                                "panelKind\n"
                                "panelName\n"
                                "supportedPPDOptionKeys\n"
                                "panelView\n"
                                "willShow\n"
                                "action\n"
                                "action\n"
                                "shouldPrint\n"
                                "saveValuesAndReturnError:\n"
                                "summaryInfo\n");
}

TEST_F(PluginLoading, ASummaryKeepsItsOrderAndAppendsUnorderedItems) {
  const auto result = behave("", {"--summary"});
  EXPECT_THAT(result.output, HasSubstr("Fixture Panel\n  First: 1\n  Second: 2\n  Forgotten: 3\n"));
}

TEST_F(PluginLoading, AFieldsFullNameIsPreferredToAPrefix) {
  EXPECT_EQ(behave("", {"--set", "Number=5"}).status, kDone);
  EXPECT_EQ(behave("", {"--set", "Num=5"}).status, kValue);
}

TEST_F(PluginLoading, APanelWithoutANameIsShownByItsKind) {
  EXPECT_THAT(behave("no name", {"--summary"}).output, HasSubstr("fixture.kind\n"));
}

TEST_F(PluginLoading, ValuesOfWrongTypesAreIgnored) {
  const auto result = behave("wrong types", {"--summary"});
  EXPECT_EQ(result.status, kDone) << testing::PrintToString(result);
  EXPECT_THAT(result.output, HasSubstr("Not available"));
}

TEST_F(PluginLoading, APanelThatCannotSaveStopsTheJobWithItsMessage) {
  const auto result = behave("say no to save");
  EXPECT_EQ(result.status, kPlugin) << testing::PrintToString(result);
  EXPECT_THAT(result.errors, HasSubstr("\"Fixture Panel\""));
  EXPECT_THAT(result.errors, HasSubstr("The tray is locked."));
  EXPECT_THAT(result.output, IsEmpty());
  EXPECT_FALSE(fs::exists(folder.path("job.json")));
}

TEST_F(PluginLoading, APanelThatCannotSaveWithoutAMessageIsNamed) {
  const auto result = behave("say no without a word to save");
  EXPECT_EQ(result.status, kPlugin) << testing::PrintToString(result);
  EXPECT_THAT(result.errors, HasSubstr("\"Fixture Panel\" could not add its settings"));
  EXPECT_FALSE(fs::exists(folder.path("job.json")));
}

TEST_F(PluginLoading, AnExceptionDisablesThePluginAndNamesTheOperation) {
  for (const char *operation : {"initWithBundle:", "PDEPanelsForType:withHostInfo:", "panelKind",
                                "panelName", "supportedPPDOptionKeys", "panelView", "willShow",
                                "shouldPrint", "saveValuesAndReturnError:", "summaryInfo"}) {
    SCOPED_TRACE(operation);
    const auto raised = behave(std::string("raise ") + operation);
    expectLeftOut(raised, std::string("failed in \"") + operation + "\"");
    EXPECT_THAT(raised.errors, HasSubstr("FixtureException: raised on demand"));
    expectLeftOut(behave(std::string("throw ") + operation), "thrown on demand");
    expectLeftOut(behave(std::string("throw-number ") + operation), "without description");
  }
}

TEST_F(PluginLoading, AnExceptionInAButtonsActionDisablesThePlugin) {
  expectLeftOut(behave("raise action", {"--back", "on"}), "raised on demand");
}

// GNUstep posts the end of editing as a notification and catches exceptions there.
TEST_F(PluginLoading, AnExceptionInAnEntryFieldsActionIsHarmless) {
  const auto result = behave("raise action", {"--set", "Number=5"});
  EXPECT_EQ(result.status, kDone) << testing::PrintToString(result);
}

TEST_F(PluginLoading, EachResultThatIsNotAPanelIsReported) {
  expectLeftOut(behave("refuse"), "was not loaded");
  expectLeftOut(behave("no array"), "could not be loaded");
  expectLeftOut(behave("stranger"), "lacks \"panelView\"");
  expectLeftOut(behave("no view"), "has no view");
}

TEST_F(PluginLoading, AnEmptyArrayMeansNoPanelForThisPrinter) {
  EXPECT_EQ(behave("nothing", {"--summary"}).status, kNoPanel);
  EXPECT_EQ(behave("nothing").status, kDone);
}

TEST_F(PluginLoading, APanelThatRefusesTheJobStopsIt) {
  const auto result = behave("veto");
  EXPECT_EQ(result.status, kCancelled);
  EXPECT_THAT(result.errors, HasSubstr("\"Fixture Panel\" does not allow"));
  EXPECT_FALSE(fs::exists(folder.path("job.json")));
}

TEST_F(PluginLoading, EachFailingStepIsReported) {
  expectLeftOut(load(folder.path("none.plugin"), ""), "does not exist");
  expectLeftOut(load(folder.write("file.plugin", "text"), ""), "not a bundle with code");
  fs::create_directory(folder.path("empty.plugin"));
  expectLeftOut(load(folder.path("empty.plugin"), ""), "not a bundle with code");

  const std::string withoutCode = copy("withoutCode.plugin");
  fs::remove(withoutCode + "/Fixture");
  expectLeftOut(load(withoutCode, ""), "not a bundle with code");

  const std::string damaged = copy("damaged.plugin");
  std::ofstream(damaged + "/Fixture") << "no code";
  expectLeftOut(load(damaged, ""), "could not be loaded (");

  const std::string cut = copy("cut.plugin");
  fs::resize_file(cut + "/Fixture", 5000);
  expectLeftOut(load(cut, ""), "its end is missing");

  const std::string nameless = copy("nameless.plugin");
  std::ofstream(nameless + "/Resources/Info-gnustep.plist") << "{ NSExecutable = Fixture; }";
  expectLeftOut(load(nameless, ""), "lacks its principal class");

  const std::string wrong = copy("wrong.plugin");
  std::ofstream(wrong + "/Resources/Info-gnustep.plist")
      << "{ NSExecutable = Fixture; NSPrincipalClass = NoSuchClass; }";
  expectLeftOut(load(wrong, ""), "lacks its principal class \"NoSuchClass\"");

  const std::string stranger = copy("stranger.plugin");
  std::ofstream(stranger + "/Resources/Info-gnustep.plist")
      << "{ NSExecutable = Fixture; NSPrincipalClass = FixtureStranger; }";
  expectLeftOut(load(stranger, ""), "lacks \"initWithBundle:\"");

  const std::string foreign = copy("foreign.plugin");
  std::ofstream(foreign + "/Resources/Info-gnustep.plist")
      << "{ NSExecutable = Fixture; NSPrincipalClass = NSObject; }";
  expectLeftOut(load(foreign, ""), "already loaded");

  const std::string garbled = copy("garbled.plugin");
  std::ofstream(garbled + "/Resources/Info-gnustep.plist") << "{{{ not a property list";
  expectLeftOut(load(garbled, ""), "");
}

// A PPD comes from a server.
TEST_F(PluginLoading, APpdCannotLoadCodeFromOtherFolders) {
  const std::string description = contentOf(sample("duplex-shift.ppd"));
  for (const std::string &path :
       {std::string(FIXTURE_PLUGIN), copy("MorvaADPImagePosition.plugin"), "../" + copy()}) {
    SCOPED_TRACE(path);
    const std::string ppd =
        folder.write("evil.ppd", description + "*APDialogExtension: \"" + path + "\"\n");
    const auto result = batch(ppd, {"--summary"}, {"FIXTURE_JOURNAL=" + journal});
    EXPECT_EQ(result.status, kDone) << testing::PrintToString(result);
    EXPECT_THAT(result.output, HasSubstr("Image Position\n")); // the one next to the program
    EXPECT_FALSE(fs::exists(journal));
  }
}

TEST_F(PluginLoading, ABundleThatOtherUsersCanModifyIsRefused) {
  const auto everybody = fs::perms::others_write;
  const std::string bundle = copy("place/Copy.plugin");
  for (const std::string &part : {folder.path("place"), bundle, bundle + "/Fixture",
                                  bundle + "/Resources/Info-gnustep.plist"}) {
    fs::permissions(part, everybody, fs::perm_options::add);
    expectUnheard(load(bundle),
                  "Copy.plugin\" was not loaded: other users can modify \"" + part + "\"");
    fs::permissions(part, everybody, fs::perm_options::remove);
  }
  EXPECT_EQ(load(bundle, "").status, kDone);
}

TEST_F(PluginLoading, ALinkIsCheckedAtItsTarget) {
  const std::string bundle = copy("place/Copy.plugin");
  fs::create_directory_symlink(bundle, folder.path("Link.plugin"));
  EXPECT_EQ(load(folder.path("Link.plugin"), "").status, kDone);
  fs::remove(folder.path("job.json"));
  fs::permissions(folder.path("place"), fs::perms::others_write, fs::perm_options::add);
  expectLeftOut(load(folder.path("Link.plugin"), ""),
                "Link.plugin\" was not loaded: other users can modify");
}

TEST_F(PluginLoading, CodeOutsideTheBundleIsCheckedToo) {
  const std::string bundle = copy();
  fs::create_directory(folder.path("open"));
  fs::rename(bundle + "/Fixture", folder.path("open/Fixture"));
  fs::permissions(folder.path("open"), fs::perms::others_write, fs::perm_options::add);
  std::ofstream(bundle + "/Resources/Info-gnustep.plist")
      << "{ NSExecutable = \"../open/Fixture\"; NSPrincipalClass = FixturePlugin; }";
  expectLeftOut(load(bundle, ""), "Copy.plugin\" was not loaded: other users can modify");
}

TEST_F(PluginLoading, ThePanelWithoutOneOfItsDefinitionsCannotBeLoaded) {
  for (const char *file : {"SettingInfo.plist", "ConstraintInfo.plist"}) {
    for (const char *content : {"", "{{{", "(\"an array\")"}) {
      SCOPED_TRACE(std::string(file) + " " + content);
      TemporaryFolder place;
      const std::string bundle = place.path("Broken.plugin");
      fs::copy(IMAGE_POSITION_PLUGIN, bundle, fs::copy_options::recursive);
      std::ofstream(bundle + "/Resources/" + file) << content;
      expectLeftOut(load(bundle, ""), "The panel of the plug-in");
      fs::remove(bundle + "/Resources/" + file);
      expectLeftOut(load(bundle, ""), "could not be loaded");
    }
  }
}

TEST_F(PluginLoading, ThePanelWithoutItsInterfaceFileHasNoView) {
  for (const char *content : {"", "<?xml version=\"1.0\"?><document/>", "garbage"}) {
    SCOPED_TRACE(content);
    TemporaryFolder place;
    const std::string bundle = place.path("Broken.plugin");
    fs::copy(IMAGE_POSITION_PLUGIN, bundle, fs::copy_options::recursive);
    std::ofstream(bundle + "/Resources/ImagePositionAdjustPrint.xib") << content;
    expectLeftOut(load(bundle, ""), "has no view. Reinstall the plug-in.");
    expectLeftOut(load(bundle, "", {"--set", "FrontLRM=1"}), "has no view. Reinstall the plug-in.");
    fs::remove(bundle + "/Resources/ImagePositionAdjustPrint.xib");
    expectLeftOut(load(bundle, ""), "has no view. Reinstall the plug-in.");
  }
}

TEST_F(PluginLoading, ASecondCopyIsRefusedByName) {
  const auto result = load(FIXTURE_PLUGIN, "", {"--plugin", copy()});
  expectLeftOut(result, "Copy.plugin\" was not loaded: its class \"FixturePlugin\"");

  // GNUstep would return the first copy for a bundle with the same identifier.
  fs::copy(IMAGE_POSITION_PLUGIN, folder.path("Other.plugin"), fs::copy_options::recursive);
  expectLeftOut(load(IMAGE_POSITION_PLUGIN, "", {"--plugin", folder.path("Other.plugin")}),
                "Other.plugin\" was not loaded: its class \"MorvaADPPdePluginRV2\"");
}

TEST_F(PluginLoading, TwoPluginsWorkTogether) {
  const auto result = load(
      FIXTURE_PLUGIN, "",
      {"--plugin", IMAGE_POSITION_PLUGIN, "--summary", "--set", "FrontLRM=4", "--set", "Number=5"});
  ASSERT_EQ(result.status, kDone) << testing::PrintToString(result);
  EXPECT_THAT(result.output, HasSubstr("Fixture Panel\n"));
  EXPECT_THAT(result.output, HasSubstr("Image Position\n"));
  EXPECT_THAT(contentOf(folder.path("job.options")), HasSubstr("LeftRightMargin=4\n"));
}

TEST_F(PluginLoading, ACheckboxInTwoPanelsIsAmbiguous) {
  EXPECT_EQ(load(FIXTURE_PLUGIN, "", {"--plugin", IMAGE_POSITION_PLUGIN, "--back", "on"}).status,
            kValue);
}

} // namespace
