/// The desktop's light or dark appearance and its text scale.
#ifndef IMAGEPOSITION_CORE_BASE_APPEARANCE_HPP
#define IMAGEPOSITION_CORE_BASE_APPEARANCE_HPP

#include <optional>
#include <string>

namespace imageposition {

enum class Appearance { Light, Dark };

/// Parses "light" or "dark" in any letter case. Returns nullopt for any other string.
std::optional<Appearance> readAppearance(const std::string &text);

/// Parses a number above 0. Returns nullopt for any other string.
std::optional<double> readTextScale(const std::string &text);

/// The user's settings for the appearance. The last two are the contents of settings files, empty
/// if there is no such file.
struct Surroundings {
  std::string appearance;  ///< $PRINT_DIALOG_APPEARANCE: "light" or "dark"; overrides the rest.
  std::string textScale;   ///< $PRINT_DIALOG_TEXT_SCALE or, if unset, $GDK_DPI_SCALE.
  std::string gtkTheme;    ///< $GTK_THEME: "Adwaita:dark".
  std::string gtkSettings; ///< gtk-3.0/settings.ini
  std::string kdeGlobals;  ///< kdeglobals
};

/// Reads the environment and at most two small files below $XDG_CONFIG_HOME (or ~/.config). Does
/// not contact any daemon.
Surroundings readSurroundings();

/// Uses `appearance` if it is valid, otherwise `gtkTheme`. If neither is set, returns dark if one
/// of the files asks for it, otherwise light.
Appearance chosenAppearance(const Surroundings &surroundings);

/// The scale factor for text: 1 if none is set, clamped to the range from 0.75 to 3.
double chosenTextScale(const Surroundings &surroundings);

} // namespace imageposition

#endif
