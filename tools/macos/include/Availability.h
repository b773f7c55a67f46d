/// A stand-in for macOS's header: marks the version that introduced a declaration.
#ifndef IMAGEPOSITION_TOOLS_MACOS_AVAILABILITY_H
#define IMAGEPOSITION_TOOLS_MACOS_AVAILABILITY_H

/// clang warns about uses that are newer than the deployment target; tools/check-macos makes that
/// an error.
#define SINCE(version) __attribute__((availability(macosx, introduced = version)))

#endif
