// The principal class: which panels it offers, for which dialog and printer.
#import "ClassTable.h"
#import "ControllerFixture.h"
#import "LiveObjects.h"
#import "TestPool.h"

#import "MorvaADPPdePanelRV2.h"
#import "MorvaADPPdePluginRV2.h"

using namespace imageposition::test;

namespace {

NSString *const kPrintDialog = @"BDB091F4-E57F-11D3-B5CC-0050E4603277";

Lines supporting(const std::string &value = "true") {
  return duplexPrinter() + Lines{"*AdjustDuplexPositionSupport: \"" + value + "\""};
}

class PrincipalClass : public ControllerFixture {
protected:
  void SetUp() override {
    ControllerFixture::SetUp();
    writeBundle();
    usePrinter(supporting());
    plugin = [MorvaADPPdePluginRV2 alloc];
    ASSERT_TRUE([plugin initWithBundle:bundle->bundle()]);
  }

  void TearDown() override {
    [plugin release];
    ControllerFixture::TearDown();
  }

  void usePrinter(const Lines &lines) {
    ppd = std::make_unique<TestPpd>(lines);
    host->ppd = ppd->get();
  }

  NSArray *panels(NSString *type = kPrintDialog) {
    return [plugin PDEPanelsForType:type withHostInfo:host];
  }

  MorvaADPPdePluginRV2 *plugin = nil;
};

// The class.

TEST(PluginInterface, DerivesFromTheRootClassAndHasOneField) {
  EXPECT_EQ([MorvaADPPdePluginRV2 superclass], [NSObject class]);
  EXPECT_EQ(fieldsOf([MorvaADPPdePluginRV2 class]), Lines{"Bundle @"});
}

// macOS has no such protocol.
TEST(PluginInterface, DeclaresNoProtocol) {
  EXPECT_FALSE([MorvaADPPdePluginRV2 conformsToProtocol:@protocol(PDEPlugIn)]);
}

TEST(PluginInterface, ImplementsItsMethodsItself) {
  const auto operations = operationsOf([MorvaADPPdePluginRV2 class]);
  for (const char *name : {"initWithBundle:", "dealloc",
                           "PDEPanelsForType:withHostInfo:", "isSupportAdjustImagePosition:"})
    EXPECT_EQ(operations.count(name), 1U) << name;
}

TEST(PluginInterface, BooleansAreOneByte) {
  for (SEL operation : { @selector(initWithBundle:), @selector(isSupportAdjustImagePosition:) }) {
    NSMethodSignature *signature =
        [MorvaADPPdePluginRV2 instanceMethodSignatureForSelector:operation];
    EXPECT_EQ([signature methodReturnLength], 1U) << sel_getName(operation);
  }
}

TEST(PluginInterface, PublishesTheAttributeAndItsOneValue) {
  EXPECT_EQ(cxxString(IPA_PPD_AdjustDuplexPositionSupport), "AdjustDuplexPositionSupport");
  EXPECT_EQ(cxxString(IPAPPDAdjustDuplexPositionSupportTrue), "true");
}

// The bundle.

TEST_F(PrincipalClass, RetainsItsBundleOnceAndReleasesIt) {
  NSBundle *given = bundle->bundle();
  const NSUInteger before = [given retainCount];
  MorvaADPPdePluginRV2 *other = [MorvaADPPdePluginRV2 alloc];
  EXPECT_EQ([other initWithBundle:given], 1);
  EXPECT_EQ([given retainCount], before + 1);
  EXPECT_EQ(field<NSBundle *>(other, "Bundle"), given);
  [other release];
  EXPECT_EQ([given retainCount], before);
}

TEST_F(PrincipalClass, WithoutABundleInitReturnsTrueAndNoPanelCanBeBuilt) {
  MorvaADPPdePluginRV2 *other = [MorvaADPPdePluginRV2 alloc];
  EXPECT_EQ([other initWithBundle:nil], 1);
  EXPECT_EQ(field<NSBundle *>(other, "Bundle"), nil);
  EXPECT_EQ([other PDEPanelsForType:kPrintDialog withHostInfo:host], nil);
  [other release];
}

TEST_F(PrincipalClass, WithoutABundleOtherDialogsAndPrintersStillGetAnEmptyArray) {
  MorvaADPPdePluginRV2 *other = [MorvaADPPdePluginRV2 alloc];
  [other initWithBundle:nil];
  EXPECT_EQ([[other PDEPanelsForType:@"page setup" withHostInfo:host] count], 0U);
  usePrinter(duplexPrinter());
  NSArray *none = [other PDEPanelsForType:kPrintDialog withHostInfo:host];
  EXPECT_NE(none, nil);
  [other release];
}

// The dialog.

class PluginForType : public PrincipalClass, public testing::WithParamInterface<const char *> {};

TEST_P(PluginForType, OffersNothingToOtherDialogsWithoutRequestingThePpd) {
  NSArray *offered = panels(nsString(GetParam()));
  ASSERT_NE(offered, nil);
  EXPECT_EQ([offered count], 0U);
  EXPECT_EQ(host->ppdRequests, 0);
}

INSTANTIATE_TEST_SUITE_P(Types, PluginForType,
                         testing::Values("BDB0E57A-E57F-11D3-B5CC-0050E4603277",
                                         "bdb091f4-e57f-11d3-b5cc-0050e4603277",
                                         " BDB091F4-E57F-11D3-B5CC-0050E4603277",
                                         "BDB091F4-E57F-11D3-B5CC-0050E4603277 ",
                                         "BDB091F4-E57F-11D3-B5CC-0050E460327", "page setup", ""));

TEST_F(PrincipalClass, OffersNothingToADialogWithoutAType) {
  NSArray *offered = panels(nil);
  ASSERT_NE(offered, nil);
  EXPECT_EQ([offered count], 0U);
}

TEST_F(PrincipalClass, OffersOnePanelToAPrintDialogForASupportingPrinter) {
  NSArray *offered = panels();
  ASSERT_EQ([offered count], 1U);
  EXPECT_EQ([[offered objectAtIndex:0] class], [MorvaADPPdePanelRV2 class]);
}

TEST_F(PrincipalClass, ComparesTheDialogTypeAsAString) {
  EXPECT_EQ([panels([NSMutableString stringWithString:kPrintDialog]) count], 1U);
}

TEST_F(PrincipalClass, PassesThePanelTheHostAndTheBundle) {
  id panel = [panels() objectAtIndex:0];
  EXPECT_EQ(field<id>(panel, "PDEPluginCallbackObject"), host);
  EXPECT_EQ(field<NSBundle *>(panel, "PDEBundle"), bundle->bundle());
}

TEST_F(PrincipalClass, TheArrayIsMutable) {
  EXPECT_TRUE([panels() isKindOfClass:[NSMutableArray class]]);
}

// The printer.

struct SupportRow {
  Lines lines;
  bool supported;
};

std::ostream &operator<<(std::ostream &out, const SupportRow &row) {
  for (const std::string &line : row.lines)
    out << line << ' ';
  return out;
}

class PluginForPrinter : public PrincipalClass, public testing::WithParamInterface<SupportRow> {};

TEST_P(PluginForPrinter, IsSupportedByExactlyTrueInTheFirstAttribute) {
  usePrinter(GetParam().lines);
  EXPECT_EQ([plugin isSupportAdjustImagePosition:ppd->get()], GetParam().supported ? YES : NO);
  NSArray *offered = panels();
  ASSERT_NE(offered, nil);
  EXPECT_EQ([offered count], GetParam().supported ? 1U : 0U);
}

#define ATTRIBUTE(text)                                                                            \
  { "*AdjustDuplexPositionSupport" text }

INSTANTIATE_TEST_SUITE_P(
    Attributes, PluginForPrinter,
    testing::Values(
        SupportRow{ATTRIBUTE(": \"true\""), true}, SupportRow{ATTRIBUTE(": true"), true},
        SupportRow{ATTRIBUTE(": \"True\""), false}, SupportRow{ATTRIBUTE(": \"TRUE\""), false},
        SupportRow{ATTRIBUTE(": \"yes\""), false}, SupportRow{ATTRIBUTE(": \"1\""), false},
        SupportRow{ATTRIBUTE(": \"true \""), false}, SupportRow{ATTRIBUTE(": \" true\""), false},
        SupportRow{ATTRIBUTE(": \"truetrue\""), false}, SupportRow{ATTRIBUTE(": \"false\""), false},
        SupportRow{ATTRIBUTE(": \"\""), false}, SupportRow{{}, false},
        SupportRow{{"*AdjustDuplexPosition: \"true\""}, false},
        SupportRow{ATTRIBUTE(" Any/Any: \"true\""), true},
        SupportRow{{"*AdjustDuplexPositionSupport A/A: \"true\"",
                    "*AdjustDuplexPositionSupport B/B: \"false\""},
                   true},
        SupportRow{{"*AdjustDuplexPositionSupport A/A: \"false\"",
                    "*AdjustDuplexPositionSupport B/B: \"true\""},
                   false}));

TEST_F(PrincipalClass, ANullPpdIsNotSupported) {
  EXPECT_EQ([plugin isSupportAdjustImagePosition:nullptr], NO);
  host->ppd = nullptr;
  NSArray *offered = panels();
  ASSERT_NE(offered, nil);
  EXPECT_EQ([offered count], 0U);
}

TEST_F(PrincipalClass, ANullHostGetsAnEmptyArray) {
  NSArray *offered = [plugin PDEPanelsForType:kPrintDialog withHostInfo:nil];
  ASSERT_NE(offered, nil);
  EXPECT_EQ([offered count], 0U);
}

TEST_F(PrincipalClass, AnAttributeWithoutAValueIsNotSupported) {
  ppd_attr_t *attribute = ppdFindAttr(ppd->get(), "AdjustDuplexPositionSupport", nullptr);
  ASSERT_NE(attribute, nullptr);
  char *value = attribute->value;
  attribute->value = nullptr;
  EXPECT_EQ([plugin isSupportAdjustImagePosition:ppd->get()], NO);
  EXPECT_EQ([panels() count], 0U);
  attribute->value = value;
}

TEST_F(PrincipalClass, AValueThatIsNotUtf8IsNotSupported) {
  usePrinter(supporting("tr\xfc\xe9"));
  EXPECT_EQ([plugin isSupportAdjustImagePosition:ppd->get()], NO);
}

TEST_F(PrincipalClass, OffersAPanelEvenIfTheMarkedChoicesForbidTheAdjustment) {
  ppd->mark("Duplex", "None");
  ppd->mark("MVBannerPagePrint", "True");
  EXPECT_EQ([panels() count], 1U);
}

TEST_F(PrincipalClass, RequestsThePpdEachTime) {
  EXPECT_EQ([panels() count], 1U);
  usePrinter(duplexPrinter());
  EXPECT_EQ([panels() count], 0U);
}

// Panels.

TEST_F(PrincipalClass, EachRequestMakesANewPanelAndController) {
  id first = [panels() objectAtIndex:0];
  id second = [panels() objectAtIndex:0];
  EXPECT_NE(first, second);
  EXPECT_NE(field<id>(first, "SettingItems"), field<id>(second, "SettingItems"));
}

TEST_F(PrincipalClass, EachRequestReadsTheDefinitionsAgain) {
  panels();
  NSMutableDictionary *record = definition("FrontLRM");
  [record setObject:@"9" forKey:@"DefaultValue"];
  writeBundle(definitions({record}));
  id items = field<id>([panels() objectAtIndex:0], "SettingItems");
  EXPECT_EQ(field<int32_t>(field<id>(items, "FrontLRMSettings"), "Value"), 9);
  EXPECT_EQ(field<id>(items, "BackTBMSettings"), nil);
}

TEST_F(PrincipalClass, APanelThatCannotBeBuiltIsNullAndNotAnEmptyArray) {
  bundle->remove("SettingInfo.plist");
  EXPECT_EQ(panels(), nil);
  writeBundle();
  bundle->remove("ConstraintInfo.plist");
  EXPECT_EQ(panels(), nil);
  NSMutableDictionary *record = definition("FrontLRM");
  [record setObject:@"20" forKey:@"Range"];
  writeBundle(definitions({record}));
  EXPECT_EQ(panels(), nil);
}

TEST_F(PrincipalClass, LogsNothingItself) {
  usePrinter(duplexPrinter());
  panels();
  panels(@"page setup");
  bundle->remove("SettingInfo.plist");
  usePrinter(supporting());
  panels();
  EXPECT_THAT(log->lines(), testing::IsEmpty());
}

TEST_F(PrincipalClass, KeepsNeitherTheArrayNorThePanel) {
  LiveObjects alive;
  const int before = alive.count([MorvaADPPdePanelRV2 class]);
  const NSUInteger hostReferences = [host retainCount];
  {
    Pool pool;
    NSArray *offered = [panels() retain];
    {
      Pool inner;
      EXPECT_EQ([offered count], 1U);
    }
    EXPECT_EQ([[offered objectAtIndex:0] retainCount], 1U) << "only the array retains the panel";
    [offered release];
  }
  EXPECT_EQ(alive.count([MorvaADPPdePanelRV2 class]), before);
  EXPECT_EQ([host retainCount], hostReferences);
}

TEST_F(PrincipalClass, ThePanelOutlivesThePlugin) {
  NSArray *offered = [[panels() retain] autorelease];
  [plugin release];
  plugin = nil;
  EXPECT_EQ(cxxString([[offered objectAtIndex:0] panelName]), "Image Position");
}

} // namespace
