/// The part of macOS's Objective-C runtime that the plug-in uses, for compiling without macOS.
#ifndef IMAGEPOSITION_TOOLS_MACOS_OBJC_RUNTIME_H
#define IMAGEPOSITION_TOOLS_MACOS_OBJC_RUNTIME_H

#include <Availability.h>

typedef signed char BOOL; // bool only on arm64
typedef struct objc_class *Class;
typedef struct objc_object {
  Class isa;
} * id;
typedef struct objc_selector *SEL;
typedef void (*IMP)(void);

#define YES ((BOOL)1)
#define NO ((BOOL)0)
#ifdef __cplusplus
#define nil nullptr
#define Nil nullptr
#endif

@class Protocol;

extern "C" {
Class object_getClass(id object) SINCE(10.5);
IMP class_getMethodImplementation(Class type, SEL name) SINCE(10.5);
}

#endif
