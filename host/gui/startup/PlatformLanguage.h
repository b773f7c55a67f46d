/// The language that GNUstep and the program's own texts share.
#ifndef IMAGEPOSITION_GUI_STARTUP_PLATFORMLANGUAGE_H
#define IMAGEPOSITION_GUI_STARTUP_PLATFORMLANGUAGE_H

namespace imageposition {

/// Chooses one language for the program, CUPS, GNUstep and bundles: by the user default
/// NSLanguages, or else by the environment. By itself GNUstep knows only a locale that is generated
/// on the machine.
void agreeOnLanguage();

} // namespace imageposition

#endif
