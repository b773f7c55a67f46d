/// The language that the platform and the program's own texts share.
#ifndef IMAGEPOSITION_HOST_PLATFORMLANGUAGE_H
#define IMAGEPOSITION_HOST_PLATFORMLANGUAGE_H

namespace imageposition {

/// The person's default NSLanguages, from the file of defaults, decides for all; else
/// the environment does, for bundles too. The platform by itself knows only a locale that is
/// generated on the machine.
void agreeOnLanguage();

} // namespace imageposition

#endif
