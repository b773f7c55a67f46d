#include "Appearance.hpp"

#include "Strings.hpp"

#include <algorithm>
#include <cctype>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <string_view>

namespace imageposition {

namespace {

constexpr double kMinScale = 0.75;
constexpr double kMaxScale = 3;

std::string lowerCase(std::string text) {
  std::transform(text.begin(), text.end(), text.begin(),
                 [](unsigned char c) { return static_cast<char>(c < 0x80 ? std::tolower(c) : c); });
  return text;
}

std::string environment(const char *name) {
  const char *const value = std::getenv(name);
  return value != nullptr ? value : "";
}

std::string contentOf(const std::string &path) {
  std::ifstream file(path);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

std::string configurationFolder() {
  const std::string folder = environment("XDG_CONFIG_HOME");
  return folder.empty() ? environment("HOME") + "/.config" : folder;
}

std::string withoutWhitespace(std::string_view text) {
  std::string result;
  std::copy_if(text.begin(), text.end(), std::back_inserter(result),
               [](unsigned char c) { return std::isspace(c) == 0; });
  return result;
}

/// The value of a "key=value" line, without whitespace and in lower case; empty if there is none.
std::string settingOf(const std::string &file, const std::string &key) {
  std::size_t start = 0;
  while (start < file.size()) {
    const std::size_t end = std::min(file.find('\n', start), file.size());
    const std::string line = withoutWhitespace(std::string_view(file).substr(start, end - start));
    if (line.compare(0, key.size() + 1, key + "=") == 0)
      return lowerCase(line.substr(key.size() + 1));
    start = end + 1;
  }
  return {};
}

/// Accepts both "Adwaita:dark" and "Adwaita-dark".
bool namesDarkTheme(const std::string &theme) {
  const std::string name = lowerCase(theme);
  return endsWith(name, ":dark") || endsWith(name, "-dark");
}

bool isOn(const std::string &text) { return text == "1" || text == "true"; }

bool gtkPrefersDark(const std::string &settings) {
  return isOn(settingOf(settings, "gtk-application-prefer-dark-theme")) ||
         namesDarkTheme(settingOf(settings, "gtk-theme-name"));
}

bool kdePrefersDark(const std::string &globals) {
  return endsWith(settingOf(globals, "ColorScheme"), "dark");
}

} // namespace

std::optional<Appearance> readAppearance(const std::string &text) {
  const std::string name = lowerCase(text);
  if (name == "light")
    return Appearance::Light;
  if (name == "dark")
    return Appearance::Dark;
  return std::nullopt;
}

std::optional<double> readTextScale(const std::string &text) {
  char *end = nullptr;
  const double scale = std::strtod(text.c_str(), &end);
  return *end == '\0' && scale > 0 ? std::optional(scale) : std::nullopt;
}

Surroundings readSurroundings() {
  Surroundings found;
  found.appearance = environment("PRINT_DIALOG_APPEARANCE");
  found.textScale = environment("PRINT_DIALOG_TEXT_SCALE");
  if (found.textScale.empty())
    found.textScale = environment("GDK_DPI_SCALE");
  found.gtkTheme = environment("GTK_THEME");
  const std::string folder = configurationFolder();
  found.gtkSettings = contentOf(folder + "/gtk-3.0/settings.ini");
  found.kdeGlobals = contentOf(folder + "/kdeglobals");
  return found;
}

Appearance chosenAppearance(const Surroundings &surroundings) {
  if (const auto requested = readAppearance(surroundings.appearance))
    return *requested;
  if (!surroundings.gtkTheme.empty())
    return namesDarkTheme(surroundings.gtkTheme) ? Appearance::Dark : Appearance::Light;
  const bool isDark =
      gtkPrefersDark(surroundings.gtkSettings) || kdePrefersDark(surroundings.kdeGlobals);
  return isDark ? Appearance::Dark : Appearance::Light;
}

double chosenTextScale(const Surroundings &surroundings) {
  return std::clamp(readTextScale(surroundings.textScale).value_or(1), kMinScale, kMaxScale);
}

} // namespace imageposition
