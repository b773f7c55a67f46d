/// The part of macOS's print-settings interface that the plug-in calls, for compiling without
/// macOS.
#ifndef IMAGEPOSITION_TOOLS_MACOS_APPLICATIONSERVICES_H
#define IMAGEPOSITION_TOOLS_MACOS_APPLICATIONSERVICES_H

#include <Availability.h>

typedef int OSStatus;
typedef unsigned char Boolean;
typedef const void *CFTypeRef;
typedef const struct __CFString *CFStringRef;
typedef struct OpaquePMPrintSettings *PMPrintSettings;

extern "C" {
OSStatus PMPrintSettingsGetValue(PMPrintSettings settings, CFStringRef key, CFTypeRef *value)
    SINCE(10.5);
OSStatus PMPrintSettingsSetValue(PMPrintSettings settings, CFStringRef key, CFTypeRef value,
                                 Boolean locked) SINCE(10.5);
}

#endif
