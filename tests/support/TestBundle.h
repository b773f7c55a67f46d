/// A bundle in a temporary folder.
#ifndef IMAGEPOSITION_TESTS_SUPPORT_TESTBUNDLE_H
#define IMAGEPOSITION_TESTS_SUPPORT_TESTBUNDLE_H

#import <Foundation/Foundation.h>

#include <filesystem>
#include <map>
#include <string>

namespace imageposition::test {

/// Starts without resources. The destructor removes the folder; GNUstep drops the bundle with its
/// last reference.
class TestBundle {
public:
  TestBundle();
  ~TestBundle();
  TestBundle(const TestBundle &) = delete;
  TestBundle &operator=(const TestBundle &) = delete;

  /// Writes a resource ("SettingInfo.plist", "ja.lproj/Localizable.strings") byte for byte.
  void write(const std::string &resource, const std::string &bytes);
  /// Writes the property list "NAME.plist".
  void writePropertyList(const std::string &name, id propertyList);
  /// Writes "Localizable.strings" for every language, or for one ("ja").
  void writeStrings(const std::map<std::string, std::string> &strings,
                    const std::string &language = {});
  /// Copies a file or folder to the resources.
  void copy(const std::filesystem::path &source);
  void remove(const std::string &resource);

  /// The bundle. It looks for resources on each request, but caches the strings tables.
  NSBundle *bundle();
  std::filesystem::path path() const { return path_; }

private:
  std::filesystem::path resource(const std::string &name) const;

  std::filesystem::path path_;
  NSBundle *bundle_ = nil;
};

} // namespace imageposition::test

#endif
