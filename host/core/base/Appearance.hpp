/// How the desktop is set up to look, as far as a dialog follows it.
#ifndef IMAGEPOSITION_HOST_APPEARANCE_HPP
#define IMAGEPOSITION_HOST_APPEARANCE_HPP

#include <optional>
#include <string>

namespace imageposition {

enum class Appearance { Light, Dark };

/// "light" or "dark", in any case; none for everything else.
std::optional<Appearance> readAppearance(const std::string &text);

/// A number above 0; none for everything else.
std::optional<double> readTextScale(const std::string &text);

/// What a person's surroundings say about looks. The files are the text of their settings files,
/// empty where there is none.
struct Surroundings {
  std::string appearance;  ///< $PRINT_DIALOG_APPEARANCE: "light" or "dark", stronger than the rest.
  std::string textScale;   ///< $PRINT_DIALOG_TEXT_SCALE, else $GDK_DPI_SCALE.
  std::string gtkTheme;    ///< $GTK_THEME: "Adwaita:dark".
  std::string gtkSettings; ///< gtk-3.0/settings.ini
  std::string kdeGlobals;  ///< kdeglobals
};

/// Reads the environment and at most two small files below $XDG_CONFIG_HOME (or ~/.config); no
/// daemon is asked.
Surroundings readSurroundings();

/// The first that says something, in the order of the members; light when none does.
Appearance chosenAppearance(const Surroundings &surroundings);

/// How much larger than usual texts are to be: 1 when nothing says so, kept within 0.75 to 3.
double chosenTextScale(const Surroundings &surroundings);

} // namespace imageposition

#endif
