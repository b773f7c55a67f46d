/// The part of macOS's Foundation that the plug-in calls, for compiling without macOS. The version
/// that introduced each call is from Apple's public documentation.
#ifndef IMAGEPOSITION_TOOLS_MACOS_FOUNDATION_H
#define IMAGEPOSITION_TOOLS_MACOS_FOUNDATION_H

#include <Availability.h>
#include <objc/runtime.h>

#ifdef __LP64__
typedef long NSInteger;
typedef unsigned long NSUInteger;
typedef double CGFloat;
#else
typedef int NSInteger;
typedef unsigned int NSUInteger;
typedef float CGFloat;
#endif

typedef struct CGPoint {
  CGFloat x, y;
} NSPoint;
typedef struct CGSize {
  CGFloat width, height;
} NSSize;
typedef struct CGRect {
  NSPoint origin;
  NSSize size;
} NSRect;
typedef struct _NSRange {
  NSUInteger location, length;
} NSRange;

inline NSRect NSMakeRect(CGFloat x, CGFloat y, CGFloat width, CGFloat height) {
  return NSRect{{x, y}, {width, height}};
}
inline NSRange NSMakeRange(NSUInteger location, NSUInteger length) {
  return NSRange{location, length};
}

typedef unsigned short unichar;

@class NSArray, NSBundle, NSDictionary, NSEnumerator, NSError, NSString;

@protocol NSObject
- (BOOL)isEqual:(id)object SINCE(10.0);
- (BOOL)isKindOfClass:(Class)type SINCE(10.0);
- (BOOL)conformsToProtocol:(Protocol *)protocol SINCE(10.0);
- (id)retain SINCE(10.0);
- (oneway void)release SINCE(10.0);
- (id)autorelease SINCE(10.0);
@end

@protocol NSCopying
@end

__attribute__((objc_root_class)) SINCE(10.0) @interface NSObject<NSObject> { Class isa; }
+ (id)alloc SINCE(10.0);
+ (Class)class SINCE(10.0);
- (id)init SINCE(10.0);
- (void)dealloc SINCE(10.0);
- (id)copy SINCE(10.0);
@end

SINCE(10.0) @interface NSString : NSObject<NSCopying>
+ (id)stringWithCharacters:(const unichar *)characters length:(NSUInteger)length SINCE(10.0);
- (NSUInteger)length SINCE(10.0);
- (void)getCharacters:(unichar *)buffer range:(NSRange)range SINCE(10.0);
- (BOOL)isEqualToString:(NSString *)string SINCE(10.0);
- (NSArray *)componentsSeparatedByString:(NSString *)separator SINCE(10.0);
- (const char *)UTF8String SINCE(10.0);
@end

// The class of string literals, which the compiler references by name.
SINCE(10.0) @interface NSSimpleCString : NSString {
@protected
  char *bytes;
  int numBytes;
}
@end
SINCE(10.0) @interface NSConstantString : NSSimpleCString
@end

SINCE(10.0) @interface NSValue : NSObject
+ (NSValue *)valueWithPointer:(const void *)pointer SINCE(10.0);
- (void *)pointerValue SINCE(10.0);
@end

SINCE(10.0) @interface NSNumber : NSValue
- (BOOL)boolValue SINCE(10.0);
- (double)doubleValue SINCE(10.0);
@end

SINCE(10.0) @interface NSEnumerator : NSObject
- (id)nextObject SINCE(10.0);
@end

SINCE(10.0) @interface NSArray : NSObject
+ (id)arrayWithObjects:(id)first, ... __attribute__((sentinel))SINCE(10.0);
- (id)initWithObjects:(id)first, ... __attribute__((sentinel))SINCE(10.0);
- (NSUInteger)count SINCE(10.0);
- (id)objectAtIndex:(NSUInteger)index SINCE(10.0);
- (NSEnumerator *)objectEnumerator SINCE(10.0);
@end

SINCE(10.0) @interface NSMutableArray : NSArray
+ (id)array SINCE(10.0);
+ (id)arrayWithCapacity:(NSUInteger)capacity SINCE(10.0);
- (id)initWithCapacity:(NSUInteger)capacity SINCE(10.0);
- (void)addObject:(id)object SINCE(10.0);
- (void)setArray:(NSArray *)objects SINCE(10.0);
@end

SINCE(10.0) @interface NSSet : NSObject
- (id)member:(id)object SINCE(10.0);
@end

SINCE(10.0) @interface NSMutableSet : NSSet
- (void)addObject:(id)object SINCE(10.0);
@end

SINCE(10.0) @interface NSDictionary : NSObject
+ (id)dictionaryWithObjectsAndKeys:(id)first, ... __attribute__((sentinel))SINCE(10.0);
- (id)initWithContentsOfFile:(NSString *)path SINCE(10.0);
- (NSUInteger)count SINCE(10.0);
- (id)objectForKey:(id)key SINCE(10.0);
@end

SINCE(10.0) @interface NSMutableDictionary : NSDictionary
+ (id)dictionary SINCE(10.0);
- (void)setObject:(id)object forKey:(id)key SINCE(10.0);
@end

SINCE(10.0) @interface NSBundle : NSObject
- (NSString *)pathForResource:(NSString *)name ofType:(NSString *)type SINCE(10.0);
- (NSString *)localizedStringForKey:(NSString *)key
                              value:(NSString *)value
                              table:(NSString *)table SINCE(10.0);
@end

SINCE(10.0) @interface NSNotification : NSObject
@end

extern "C" void NSLog(NSString *format, ...) SINCE(10.0);

#endif
