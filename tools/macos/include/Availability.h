/// Stands for the platform's own: every declaration here says which macOS brought it.
#ifndef IMAGEPOSITION_TOOLS_MACOS_AVAILABILITY_H
#define IMAGEPOSITION_TOOLS_MACOS_AVAILABILITY_H

/// clang warns of a use that the deployment target is too old for; here that is an error.
#define SINCE(version) __attribute__((availability(macosx, introduced = version)))

#endif
