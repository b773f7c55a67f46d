// Ways in which another user might make GNUstep run their code: names of documents, words of the
// command line, the environment, and folders that others may write to.
#include "DialogFixture.hpp"
#include "OfficeQueue.hpp"
#include "PlatformDefaults.hpp"

#include <sys/stat.h>
#include <unistd.h>

namespace {

using namespace imageposition::test;
using testing::HasSubstr;
namespace fs = std::filesystem;

class Intruder : public WithOfficeQueue<DialogFixture> {
protected:
  /// A bundle whose code leaves a trace.
  std::string putBundle(const std::string &name) const {
    fs::copy(INTRUDER_BUNDLE, folder.path(name), fs::copy_options::recursive);
    return folder.path(name);
  }

  std::string trace() const { return folder.path("trace"); }

  /// Runs in the folder, like a user who has unpacked the documents there.
  ProcessResult print(const Words &words, const Words &environment = {}) const {
    Words all{"env", "-C", folder.path(), PRINT_DIALOG, "--batch", "-d", "office"};
    all.insert(all.end(), words.begin(), words.end());
    return runProcess(all, variablesWith(environment));
  }

  /// Prints all files of the folder, like a user who types "*".
  ProcessResult printAll(const std::string &wordsBefore) const {
    return runProcess({"env", "-C", folder.path(), "sh", "-c",
                       "exec \"$0\" --batch -d office --dry-run " + wordsBefore + " *",
                       PRINT_DIALOG},
                      variablesWith({}));
  }

  Words variablesWith(const Words &environment) const {
    Words variables = cups->environment();
    variables.push_back("INTRUDER_FILE=" + trace());
    variables.insert(variables.end(), environment.begin(), environment.end());
    return variables;
  }

  void expectNoTrace(const ProcessResult &result) const {
    EXPECT_EQ(result.status, kDone) << testing::PrintToString(result);
    EXPECT_FALSE(fs::exists(trace())) << testing::PrintToString(result);
  }

  static int jobIn(const std::string &output) {
    const std::size_t dash = output.find("office-");
    return dash == std::string::npos ? 0 : std::atoi(output.c_str() + dash + 7);
  }

  const std::string pdf = contentOf(sample("two-sided.pdf"));
};

TEST_F(Intruder, DocumentsNamedLikeADefaultDoNotLoadABundleBesideThem) {
  putBundle(".h.bundle");
  const Words names{"-GSAppKitUserBundles", "(\".h.bundle\")", "a.pdf"};
  Words words{"-H", "hold", "--"};
  for (const std::string &name : names) {
    folder.write(name, pdf);
    words.push_back(name);
  }
  const auto result = print(words);
  expectNoTrace(result);
  EXPECT_THAT(result.output, HasSubstr("(3 file(s))"));
  cups->run({"cancel", "-a", "-x"});
}

TEST_F(Intruder, ADocumentNamedLikeADefaultDoesNotChooseTheTheme) {
  const std::string theme = putBundle("x.theme");
  folder.write("-GSTheme", pdf);
  print({"--dry-run", "--", "-GSTheme", theme});
  EXPECT_FALSE(fs::exists(trace()));
}

TEST_F(Intruder, AnOptionValueThatLooksLikeADefaultIsOnlyAnOptionValue) {
  putBundle(".h.bundle");
  folder.write("(\".h.bundle\")", pdf);
  for (const char *option : {"-t", "-o"})
    expectNoTrace(print({"--dry-run", option, "-GSAppKitUserBundles", "(\".h.bundle\")"}));
}

TEST_F(Intruder, DocumentsAndTitlesNamedLikeDefaultsReachCupsAsWithLp) {
  for (const char *name : {"-NSDraft", "-GSPlan", "--GNU-Debug=dflt", "a.pdf"})
    folder.write(name, pdf);
  const Words line{
      "-H", "hold", "-t", "-NSTitle", "--", "-NSDraft", "-GSPlan", "--GNU-Debug=dflt", "a.pdf"};
  Words lp{"env", "-C", folder.path(), "lp", "-d", "office"};
  lp.insert(lp.end(), line.begin(), line.end());
  const int theirs = jobIn(cups->run(lp).output);
  const auto result = print(line);
  const int ours = jobIn(result.output);
  ASSERT_NE(theirs, 0);
  ASSERT_NE(ours, 0) << testing::PrintToString(result);
  for (const char *name : {"job-name", "number-of-documents"})
    EXPECT_EQ(cups->jobAttribute(ours, name), cups->jobAttribute(theirs, name)) << name;
  cups->run({"cancel", "-a", "-x"});
}

TEST_F(Intruder, AFileNamedLikeAnOptionIsNotMistakenForOne) {
  putBundle(".x.plugin");
  folder.write("a.pdf", pdf);
  for (const char *name : {"--plugin=.x.plugin", "--ticket=a.json", "-hevil.example:631", "-s"}) {
    const std::string path = folder.write(name, "");
    const auto result = printAll("");
    EXPECT_EQ(result.status, kUsage) << name << testing::PrintToString(result);
    EXPECT_THAT(result.errors, HasSubstr("\"" + std::string(name) + "\""));
    EXPECT_THAT(result.errors, HasSubstr("\"--\""));
    EXPECT_FALSE(fs::exists(trace())) << name;
    fs::remove(path);
  }
}

TEST_F(Intruder, ADanglingLinkNamedLikeAnOptionIsNotMistakenForOne) {
  folder.write("a.pdf", pdf);
  fs::create_symlink("nowhere", folder.path("-hevil.example:631"));
  EXPECT_EQ(printAll("").status, kUsage);
}

TEST_F(Intruder, AFileNamedLikeAnOptionIsADocumentAfterTwoDashes) {
  folder.write("--plugin=.x.plugin", pdf);
  folder.write("a.pdf", pdf);
  const auto result = printAll("--");
  expectNoTrace(result);
  EXPECT_THAT(result.errors, testing::IsEmpty());
}

TEST_F(Intruder, ADefaultBeforeTheDocumentsIsAnUnknownOption) {
  const auto result = print({"--dry-run", "-NSLanguages", "(de)"});
  EXPECT_EQ(result.status, kUsage) << testing::PrintToString(result);
  EXPECT_THAT(result.errors, HasSubstr("-NSLanguages"));
}

/// A configuration of GNUstep whose defaults name the bundle.
class Configuration : public Intruder {
protected:
  Configuration() {
    const std::string bundle = putBundle("Harmful.bundle");
    folder.write("shared/Defaults/print-dialog.plist",
                 "{ GSAppKitUserBundles = (\"" + bundle + "\"); }");
    folder.write("shared/GNUstep.conf",
                 contentOf(std::getenv("GNUSTEP_CONFIG_FILE")) +
                     "GNUSTEP_USER_DEFAULTS_DIR=" + folder.path("shared/Defaults") + "\n");
    chmod(folder.path("shared/GNUstep.conf").c_str(), 0644);
    chmod(folder.path("shared").c_str(), 0755);
  }

  ProcessResult printWithIt() const {
    return print({"--dry-run"}, {"GNUSTEP_CONFIG_FILE=" + folder.path("shared/GNUstep.conf")});
  }
};

TEST_F(Configuration, OfTheUserIsRead) {
  EXPECT_EQ(printWithIt().status, kDone);
  EXPECT_TRUE(fs::exists(trace()));
}

TEST_F(Configuration, InAFolderThatOthersMayWriteToIsIgnored) {
  for (const mode_t mode : {0777, 01777}) { // with the latter, others can add GlobalDefaults.plist
    chmod(folder.path("shared").c_str(), mode);
    const auto result = printWithIt();
    expectNoTrace(result);
    EXPECT_THAT(result.errors, HasSubstr("\"" + folder.path("shared") + "\""));
  }
}

TEST_F(Configuration, OfAnotherUserIsIgnored) {
  if (geteuid() != 0)
    return; // only root can give a file away
  const std::string file = folder.path("shared/GNUstep.conf");
  ASSERT_EQ(chown(file.c_str(), 65534, 65534), 0);
  const auto result = printWithIt();
  expectNoTrace(result);
  EXPECT_THAT(result.errors, HasSubstr("\"" + file + "\""));
}

TEST_F(Intruder, AVariableDoesNotChangeHowGnustepReadsNames) {
  folder.write("r\u00e9sum\u00e9.pdf", pdf);
  expectNoTrace(print({"--dry-run", "r\u00e9sum\u00e9.pdf"},
                      {"GNUSTEP_STRING_ENCODING=NSASCIIStringEncoding"}));
}

TEST_F(Intruder, ABundleInTheUserDefaultsIsLoadedOnlyIfNoOtherUserCanChangeIt) {
  const std::string bundle = putBundle("Mine.bundle");
  const PlatformDefaults defaults("GSAppKitUserBundles = (\"" + bundle + "\");");
  EXPECT_EQ(print({"--dry-run"}).status, kDone);
  EXPECT_TRUE(fs::remove(trace()));

  chmod(bundle.c_str(), 0777);
  const auto result = print({"--dry-run"});
  expectNoTrace(result);
  EXPECT_THAT(result.errors, HasSubstr("\"" + bundle + "\""));
}

TEST_F(Intruder, AThemeInTheUserDefaultsIsLoadedOnlyIfNoOtherUserCanChangeIt) {
  const std::string theme = putBundle("Mine.theme");
  const PlatformDefaults defaults("GSTheme = \"" + theme + "\";");
  chmod(theme.c_str(), 0777);
  expectNoTrace(print({"--dry-run"}));
}

} // namespace
