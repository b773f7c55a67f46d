/// Keeps the language of GNUstep and of the program the same.
#ifndef IMAGEPOSITION_GUI_STARTUP_PLATFORMLANGUAGE_H
#define IMAGEPOSITION_GUI_STARTUP_PLATFORMLANGUAGE_H

namespace imageposition {

/// Chooses one language for the program, CUPS, GNUstep and bundles, from the user default
/// NSLanguages or else from the environment. GNUstep itself recognizes only locales that are
/// generated on the machine.
void agreeOnLanguage();

} // namespace imageposition

#endif
