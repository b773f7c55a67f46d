// tools/macos/make-installer, with stand-ins for the Mac's programs.
#include "ProcessRun.hpp"
#include "TemporaryFolder.hpp"

#include <gmock/gmock.h>

#include <cstdlib>
#include <regex>
#include <sys/stat.h>

namespace {

using namespace imageposition::test;
using testing::AllOf;
using testing::ContainsRegex;
using testing::HasSubstr;
using testing::Not;

const std::string kSource = IMAGEPOSITION_SOURCE;
const std::string kBundleName = "MorvaADPImagePosition.plugin";
const std::string kVersion = IMAGEPOSITION_VERSION;
const std::string kIdentifier = "com.morva.print.pde.ImagePosition";
const std::vector<std::string> kIdentities = {"--application", "Developer ID Application: Tester",
                                              "--installer", "Developer ID Installer: Tester"};

std::string replaced(std::string text, const std::string &what, const std::string &by) {
  for (auto at = text.find(what); at != std::string::npos; at = text.find(what, at + by.size()))
    text.replace(at, what.size(), by);
  return text;
}

/// The path in the PPD whose printer has the panel.
std::string pathInPpd() {
  const std::string ppd = contentOf(kSource + "/samples/duplex-shift.ppd");
  std::smatch match;
  std::regex_search(ppd, match, std::regex("\\*APDialogExtension: \"([^\"]+)\""));
  return match.str(1);
}

std::vector<std::string> languages() {
  std::vector<std::string> result;
  std::istringstream list(LANGUAGES);
  for (std::string language; list >> language;)
    result.push_back(language);
  return result;
}

class MacInstaller : public testing::Test {
protected:
  MacInstaller() { makeBundle(kVersion); }

  std::string bundle() const { return folder_.path(kBundleName); }
  std::string product() const { return folder_.path("out/ImagePosition-" + kVersion + ".pkg"); }

  /// A bundle with code for i386 and x86_64, as far as the headers go.
  void makeBundle(const std::string &version) {
    const std::string contents = kBundleName + "/Contents/";
    std::string plist = contentOf(kSource + "/plugin/Info.plist.in");
    plist = replaced(plist, "${PROJECT_VERSION}", version);
    folder_.write(contents + "Info.plist",
                  replaced(plist, "${CMAKE_OSX_DEPLOYMENT_TARGET}", "10.7"));
    const std::string none(16, '\0');
    using namespace std::string_literals;
    folder_.write(contents + "MacOS/MorvaADPImagePosition",
                  "\xca\xfe\xba\xbe\0\0\0\x02"s + "\0\0\0\x07"s + none + "\x01\0\0\x07"s + none);
  }

  ProcessResult make(std::vector<std::string> options = {},
                     std::vector<std::string> environment = {}) const {
    options.insert(options.begin(), {kSource + "/tools/macos/make-installer", "--bundle", bundle(),
                                     "--output", folder_.path("out")});
    environment.push_back("PATH=" + kSource + "/tools/macos/stand-in:" + std::getenv("PATH"));
    environment.push_back("STAND_IN_LOG=" + folder_.path("calls"));
    return runProcess(options, environment);
  }

  std::string calls() const { return contentOf(folder_.path("calls")); }

  /// Unpacks the product; the result is the folder.
  std::string unpacked() const {
    const std::string target = folder_.path("unpacked");
    std::filesystem::create_directories(target + "/payload");
    EXPECT_EQ(runProcess({"bsdtar", "-x", "-f", product(), "-C", target}).status, 0);
    EXPECT_EQ(runProcess({"bsdtar", "-x", "-p", "-f", target + "/ImagePosition.pkg/Payload", "-C",
                          target + "/payload"})
                  .status,
              0);
    return target;
  }

  /// The string value of an XPath expression in an XML file.
  static std::string value(const std::string &file, const std::string &path) {
    const auto result = runProcess({"xmllint", "--nonet", "--xpath", "string(" + path + ")", file});
    EXPECT_EQ(result.status, 0) << testing::PrintToString(result);
    return result.output.substr(0, result.output.find_last_not_of('\n') + 1);
  }

  void expectFailure(const ProcessResult &result, const std::string &sentence) const {
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.errors, HasSubstr("make-installer: " + sentence));
    EXPECT_FALSE(std::filesystem::exists(product()));
  }

  TemporaryFolder folder_;
};

TEST_F(MacInstaller, ThePackageHasTheBundlesVersionAndIdentifier) {
  const auto result = make();
  ASSERT_EQ(result.status, 0) << testing::PrintToString(result);
  EXPECT_THAT(result.output, HasSubstr(product()));
  const std::string script = unpacked() + "/Distribution";
  const std::string component = folder_.path("unpacked/ImagePosition.pkg/PackageInfo");

  EXPECT_EQ(value(script, "//product/@id"), kIdentifier);
  EXPECT_EQ(value(script, "//product/@version"), kVersion);
  EXPECT_EQ(value(script, "//pkg-ref[text()]/@version"), kVersion);
  EXPECT_EQ(value(script, "//pkg-ref[text()]/@id"), value(component, "/pkg-info/@identifier"));
  EXPECT_EQ(value(script, "//choice/pkg-ref/@id"), value(component, "/pkg-info/@identifier"));
  EXPECT_EQ(value(script, "//line/@choice"), value(script, "//choice/@id"));
  EXPECT_EQ(value(component, "/pkg-info/@version"), kVersion);
  EXPECT_THAT(contentOf(script), Not(ContainsRegex("@[A-Z]")));
}

TEST_F(MacInstaller, ThePackageIsForTheSystemsAndProcessorsOfTheBundle) {
  ASSERT_EQ(make().status, 0);
  const std::string script = unpacked() + "/Distribution";
  EXPECT_EQ(value(script, "//allowed-os-versions/os-version/@min"), "10.7");
  EXPECT_EQ(value(script, "//options/@hostArchitectures"), "i386,x86_64");
}

TEST_F(MacInstaller, TheBundleIsInstalledWherePrintersLookForIt) {
  ASSERT_EQ(make().status, 0);
  const std::string component = unpacked() + "/ImagePosition.pkg/PackageInfo";
  EXPECT_EQ(value(component, "/pkg-info/@install-location") + "/" + kBundleName, pathInPpd());
  const std::string description = kSource + "/tools/macos/installer/component.plist";
  EXPECT_EQ(value(description, "//key[.='RootRelativeBundlePath']/following-sibling::string[1]"),
            kBundleName);
  EXPECT_EQ(value(description, "name(//key[.='BundleIsRelocatable']/following-sibling::*[1])"),
            "false");
}

TEST_F(MacInstaller, OnlyTheOwnerCanWriteWhatIsInstalled) {
  std::filesystem::permissions(bundle(), std::filesystem::perms::all);
  std::filesystem::permissions(bundle() + "/Contents/Info.plist", std::filesystem::perms(0600));
  ASSERT_EQ(make().status, 0);
  const std::string payload = unpacked() + "/payload";
  for (const auto &entry : std::filesystem::recursive_directory_iterator(payload))
    EXPECT_EQ(static_cast<unsigned>(entry.status().permissions()) & 0066U, 0044U) << entry.path();
  struct stat top = {};
  ASSERT_EQ(stat(payload.c_str(), &top), 0);
  EXPECT_EQ(top.st_mode & 0777U, 0755U);
}

TEST_F(MacInstaller, TitleAndReadmeAreInEveryLanguageOfThePanel) {
  ASSERT_EQ(make().status, 0);
  const std::string resources = unpacked() + "/Resources/";
  EXPECT_EQ(contentOf(resources + "License.txt"), contentOf(kSource + "/LICENSE"));
  const std::string titleKey = value(folder_.path("unpacked/Distribution"), "//title");
  for (const std::string &language : languages()) {
    const std::string lproj = resources + language + ".lproj/";
    const std::string readme = contentOf(lproj + "ReadMe.html");
    std::smatch title;
    const std::string strings = contentOf(lproj + "Localizable.strings");
    ASSERT_TRUE(
        std::regex_search(strings, title, std::regex("\"" + titleKey + "\" = \"([^\"]+)\"")))
        << language;
    EXPECT_THAT(readme, AllOf(HasSubstr("<html lang=\"" + language + "\">"),
                              HasSubstr("<h1>" + title.str(1) + "</h1>"), HasSubstr(pathInPpd())));
    EXPECT_EQ(runProcess({"xmllint", "--noout", "--nonet", lproj + "ReadMe.html"}).status, 0);
  }
}

TEST_F(MacInstaller, SignsTheBundleBeforeThePackageAndNotarisesBoth) {
  auto options = kIdentities;
  options.insert(options.end(), {"--notary", "profile"});
  const auto result = make(options);
  ASSERT_EQ(result.status, 0) << testing::PrintToString(result);
  std::size_t at = 0;
  for (const char *step :
       {"codesign --force --sign Developer ID Application: Tester --options runtime --timestamp ",
        "codesign --verify --strict ", "pkgbuild --root ",
        "--sign Developer ID Installer: Tester --timestamp ", "pkgutil --check-signature ",
        "xcrun notarytool submit ", "--keychain-profile profile --wait ", "xcrun stapler staple ",
        "xcrun stapler validate ", "spctl --assess --type install "}) {
    const auto next = calls().find(step, at);
    ASSERT_NE(next, std::string::npos) << step << "\n" << calls();
    at = next;
  }
}

TEST_F(MacInstaller, SignsNothingWithoutIdentities) {
  const auto result = make();
  EXPECT_EQ(result.status, 0);
  EXPECT_THAT(calls(), Not(HasSubstr("sign")));
  EXPECT_THAT(result.output, AllOf(HasSubstr("Not signing"), HasSubstr("without a signature"),
                                   HasSubstr("Not notarising")));
}

TEST_F(MacInstaller, RefusesABundleOfAnotherVersion) {
  makeBundle("0.1.9");
  expectFailure(make(), "The bundle is version 0.1.9, but the project is version " + kVersion);
}

TEST_F(MacInstaller, RefusesWhatIsNotTheBundle) {
  std::filesystem::remove_all(bundle());
  expectFailure(make(), bundle() + " is not a bundle " + kBundleName);
}

TEST_F(MacInstaller, NotarisesOnlyWhatIsSigned) {
  expectFailure(make({"--notary", "profile"}), "Apple notarises only what is signed");
}

TEST_F(MacInstaller, LeavesNoPackageThatAppleDidNotAccept) {
  auto options = kIdentities;
  options.insert(options.end(), {"--notary", "profile"});
  expectFailure(make(options, {"STAND_IN_NOTARY=Invalid"}), "Apple did not accept the package");
  EXPECT_THAT(calls(), AllOf(HasSubstr("xcrun notarytool log 0f1e2d3c --keychain-profile profile"),
                             Not(HasSubstr("staple"))));
}

TEST_F(MacInstaller, SaysWhichStepFailed) {
  auto options = kIdentities;
  options.insert(options.end(), {"--notary", "profile"});
  const std::pair<const char *, const char *> rows[] = {
      {"defaults", "The bundle's Info.plist has no CFBundleShortVersionString"},
      {"lipo", "The bundle's program cannot be read"},
      {"ditto", "The plug-in cannot be copied"},
      {"codesign", "The plug-in cannot be signed"},
      {"pkgbuild", "pkgbuild cannot make the component"},
      {"productbuild", "productbuild cannot make the package"},
      {"pkgutil", "The package's signature is not valid"},
      {"notarytool", "Apple's notary service did not take the package"},
      {"stapler", "The ticket cannot be stapled"},
      {"spctl", "This Mac would not install the package"}};
  for (const auto &[program, sentence] : rows) {
    SCOPED_TRACE(program);
    expectFailure(make(options, {std::string("STAND_IN_FAILS=") + program}), sentence);
  }
}

} // namespace
