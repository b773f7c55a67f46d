#include "Appearance.hpp"

#include "TemporaryFolder.hpp"

#include <gtest/gtest.h>

#include <cstdlib>

using namespace imageposition;
using imageposition::test::TemporaryFolder;

namespace {

Surroundings withGtkSettings(const std::string &text) {
  Surroundings surroundings;
  surroundings.gtkSettings = text;
  return surroundings;
}

Surroundings withTextScale(const std::string &text) {
  Surroundings surroundings;
  surroundings.textScale = text;
  return surroundings;
}

} // namespace

TEST(Appearance, IsLightByDefault) {
  EXPECT_EQ(chosenAppearance({}), Appearance::Light);
  EXPECT_EQ(chosenAppearance(withGtkSettings("[Settings]\ngtk-theme-name=Adwaita\n")),
            Appearance::Light);
}

TEST(Appearance, FollowsTheSettingsOfGtk) {
  EXPECT_EQ(
      chosenAppearance(withGtkSettings("[Settings]\ngtk-application-prefer-dark-theme = true\n")),
      Appearance::Dark);
  EXPECT_EQ(chosenAppearance(withGtkSettings("gtk-application-prefer-dark-theme=1")),
            Appearance::Dark);
  EXPECT_EQ(chosenAppearance(withGtkSettings("gtk-application-prefer-dark-theme=0")),
            Appearance::Light);
  EXPECT_EQ(chosenAppearance(withGtkSettings("[Settings]\r\ngtk-theme-name=Yaru-Dark\r\n")),
            Appearance::Dark);
}

TEST(Appearance, FollowsTheColourSchemeOfKde) {
  Surroundings surroundings;
  surroundings.kdeGlobals = "[General]\nColorScheme=BreezeDark\n";
  EXPECT_EQ(chosenAppearance(surroundings), Appearance::Dark);
}

TEST(Appearance, TheEnvironmentOverridesTheSettingsFiles) {
  Surroundings surroundings = withGtkSettings("gtk-application-prefer-dark-theme=1\n");
  surroundings.gtkTheme = "Adwaita";
  EXPECT_EQ(chosenAppearance(surroundings), Appearance::Light);
  surroundings.gtkTheme = "Adwaita:dark";
  EXPECT_EQ(chosenAppearance(surroundings), Appearance::Dark);
  surroundings.appearance = "Light";
  EXPECT_EQ(chosenAppearance(surroundings), Appearance::Light);
  surroundings.appearance = "no such";
  EXPECT_EQ(chosenAppearance(surroundings), Appearance::Dark);
}

TEST(Appearance, TheSettingsFilesAreReadFromTheConfigurationFolder) {
  const TemporaryFolder folder;
  folder.write("gtk-3.0/settings.ini", "gtk-theme-name=Some-dark\n");
  setenv("XDG_CONFIG_HOME", folder.path().c_str(), 1);
  EXPECT_EQ(readSurroundings().gtkSettings, "gtk-theme-name=Some-dark\n");
  unsetenv("XDG_CONFIG_HOME");
}

TEST(TextScale, IsOneUnlessSetToAPositiveNumber) {
  EXPECT_EQ(chosenTextScale({}), 1);
  EXPECT_EQ(chosenTextScale(withTextScale("1.5")), 1.5);
  for (const char *text : {"", "large", "0", "-2", "nan"})
    EXPECT_EQ(chosenTextScale(withTextScale(text)), 1) << text;
}

TEST(TextScale, IsClampedToTheSupportedRange) {
  EXPECT_EQ(chosenTextScale(withTextScale("100")), 3);
  EXPECT_EQ(chosenTextScale(withTextScale("0.1")), 0.75);
}
