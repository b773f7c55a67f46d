// What stands in for libraries that are mapped when they are needed. Linked as the program is; each
// test is a process of its own, in which nothing has been called yet.
#import <AppKit/AppKit.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <sstream>
#include <string>
#include <thread>
#include <vector>

extern "C" {
ssize_t FormatLocaleString(char *string, std::size_t length, const char *format, ...);
using AnyFunction = void (*)();
AnyFunction glXGetProcAddress(const unsigned char *name);
}

namespace {

using testing::ExitedWithCode;

/// The paths of the libraries, one for each that is stood in for.
std::vector<std::string> delayedLibraries() {
  std::vector<std::string> paths;
  std::istringstream words(DELAYED_LIBRARIES);
  for (std::string path; std::getline(words, path, '|');)
    paths.push_back(path);
  return paths;
}

bool isMapped(const std::string &part) {
  const auto paths = delayedLibraries();
  const auto path = std::find_if(paths.begin(), paths.end(), [&](const std::string &candidate) {
    return candidate.find(part) != std::string::npos;
  });
  std::ifstream maps("/proc/self/maps");
  for (std::string line; path != paths.end() && std::getline(maps, line);)
    if (line.find(*path) != std::string::npos)
      return true;
  return false;
}

void expectHere(bool condition, const char *what) {
  if (condition)
    return;
  std::fprintf(stderr, "not so: %s\n", what);
  std::_Exit(1);
}
#define EXPECT_HERE(condition) expectHere((condition), #condition)

/// Runs a step in a process of its own.
#define EXPECT_IN_NEW_PROCESS(step) EXPECT_EXIT((step(), std::_Exit(0)), ExitedWithCode(0), "")

struct Pool {
  ~Pool() { [pool release]; }
  NSAutoreleasePool *const pool = [[NSAutoreleasePool alloc] init];
};

const unsigned char kRed = 255, kGreen = 128, kBlue = 0;

bool isColoured(NSBitmapImageRep *image, int size) {
  if (image == nil || [image pixelsWide] != size || [image pixelsHigh] != size)
    return false;
  NSUInteger pixel[5] = {};
  [image getPixel:pixel atX:size / 2 y:size / 2];
  return pixel[0] == kRed && pixel[1] == kGreen && pixel[2] == kBlue;
}

NSBitmapImageRep *firstImage(const std::string &bytes, Class reader) {
  NSData *const data = [NSData dataWithBytes:bytes.data() length:bytes.size()];
  NSArray *const images = [reader imageRepsWithData:data];
  return [images count] > 0 ? (NSBitmapImageRep *)[images objectAtIndex:0] : nil;
}

void readOwnTiff() {
  const Pool pool;
  NSBitmapImageRep *const image =
      [[[NSBitmapImageRep alloc] initWithBitmapDataPlanes:nullptr
                                               pixelsWide:8
                                               pixelsHigh:8
                                            bitsPerSample:8
                                          samplesPerPixel:3
                                                 hasAlpha:NO
                                                 isPlanar:NO
                                           colorSpaceName:NSDeviceRGBColorSpace
                                              bytesPerRow:0
                                             bitsPerPixel:0] autorelease];
  for (int i = 0; i < 8 * 8 * 3; i += 3) {
    [image bitmapData][i] = kRed;
    [image bitmapData][i + 1] = kGreen;
    [image bitmapData][i + 2] = kBlue;
  }
  EXPECT_HERE(!isMapped("libtiff"));
  NSData *const data = [image TIFFRepresentation];
  EXPECT_HERE(isMapped("libtiff"));
  EXPECT_HERE(isColoured([NSBitmapImageRep imageRepWithData:data], 8));
}

std::string bigEndian(std::size_t number) {
  std::string bytes;
  for (int shift = 24; shift >= 0; shift -= 8)
    bytes += static_cast<char>(number >> shift & 0xff);
  return bytes;
}

std::string chunk(const std::string &name, const std::string &content) {
  return name + bigEndian(content.size() + 8) + content;
}

/// 16 by 16 pixels of one colour: two runs of 128 for each component, and a mask.
std::string iconFile() {
  std::string runs;
  for (const unsigned char part : {kRed, kGreen, kBlue})
    for (int i = 0; i < 2; i++)
      runs += {static_cast<char>(128 + 125), static_cast<char>(part)};
  return chunk("icns", chunk("is32", runs) + chunk("s8mk", std::string(256, '\xff')));
}

void readIcon() {
  const Pool pool;
  EXPECT_HERE(!isMapped("libicns"));
  NSBitmapImageRep *const image = firstImage(iconFile(), [NSBitmapImageRep class]);
  EXPECT_HERE(isMapped("libicns"));
  EXPECT_HERE(isColoured(image, 16));
}

std::string littleEndian(unsigned number, int size) {
  std::string bytes;
  for (; size > 0; size--, number >>= 8)
    bytes += static_cast<char>(number & 0xff);
  return bytes;
}

/// A picture in Windows's format, for which ImageMagick has a module that is linked with its
/// library.
std::string bitmapFile() {
  constexpr unsigned kSide = 4, kHeaders = 14 + 40, kPixels = kSide * kSide * 3;
  std::string file =
      "BM" + littleEndian(kHeaders + kPixels, 4) + littleEndian(0, 4) + littleEndian(kHeaders, 4);
  file += littleEndian(40, 4) + littleEndian(kSide, 4) + littleEndian(kSide, 4) +
          littleEndian(1, 2) + littleEndian(24, 2) + littleEndian(0, 4) + littleEndian(kPixels, 4) +
          std::string(16, '\0');
  for (unsigned i = 0; i < kSide * kSide; i++)
    file += {static_cast<char>(kBlue), static_cast<char>(kGreen), static_cast<char>(kRed)};
  return file;
}

void readBitmap() {
  const Pool pool;
  EXPECT_HERE(!isMapped("libMagickCore"));
  const Class reader = NSClassFromString(@"GSImageMagickImageRep");
  EXPECT_HERE(reader != Nil);
  NSBitmapImageRep *const image = firstImage(bitmapFile(), reader);
  EXPECT_HERE(isMapped("libMagickCore"));
  EXPECT_HERE(isColoured(image, 4));
}

/// In every register that can have an argument, and beyond them.
void passManyArguments() {
  EXPECT_HERE(!isMapped("libMagickCore"));
  char text[200] = "";
  FormatLocaleString(text, sizeof text, "%d %s %c %g %g %g %g %g %g %g %g %g %Lg %ld", 1, "two",
                     '3', 0.5, 1.5, 2.5, 3.5, 4.5, 5.5, 6.5, 7.5, 8.5, 9.5L, -10L);
  EXPECT_HERE(isMapped("libMagickCore"));
  EXPECT_HERE(std::strcmp(text, "1 two 3 0.5 1.5 2.5 3.5 4.5 5.5 6.5 7.5 8.5 9.5 -10") == 0);
}

void callFromManyThreads() {
  std::vector<std::thread> threads;
  for (int i = 0; i < 16; i++)
    threads.emplace_back([=] {
      char text[20] = "";
      FormatLocaleString(text, sizeof text, "%d %g", i, i + 0.5);
      EXPECT_HERE(text == std::to_string(i) + " " + std::to_string(i) + ".5");
    });
  for (std::thread &thread : threads)
    thread.join();
}

void askForDrawing() {
  EXPECT_HERE(!isMapped("libGL.so"));
  const auto *const name = reinterpret_cast<const unsigned char *>("glXQueryVersion");
  EXPECT_HERE(glXGetProcAddress(name) != nullptr);
  EXPECT_HERE(isMapped("libGL.so"));
}

TEST(DelayedLibraries, AreNotMappedUntilTheyAreCalled) {
  EXPECT_GE(delayedLibraries().size(), 3U);
  for (const std::string &path : delayedLibraries())
    EXPECT_FALSE(isMapped(path)) << path;
}

TEST(DelayedLibraries, WriteAndReadATiff) { EXPECT_IN_NEW_PROCESS(readOwnTiff); }

TEST(DelayedLibraries, ReadAnIcon) { EXPECT_IN_NEW_PROCESS(readIcon); }

TEST(DelayedLibraries, FindTheirOwnModules) { EXPECT_IN_NEW_PROCESS(readBitmap); }

TEST(DelayedLibraries, GetEveryArgumentOfTheFirstCall) { EXPECT_IN_NEW_PROCESS(passManyArguments); }

TEST(DelayedLibraries, AreOpenedByWhicheverThreadIsFirst) {
  EXPECT_IN_NEW_PROCESS(callFromManyThreads);
}

TEST(DelayedLibraries, TellWhereTheirFunctionsAre) { EXPECT_IN_NEW_PROCESS(askForDrawing); }

} // namespace
