/// A bundle in a temporary folder.
#ifndef IMAGEPOSITION_TESTS_SUPPORT_TESTBUNDLE_H
#define IMAGEPOSITION_TESTS_SUPPORT_TESTBUNDLE_H

#import <Foundation/Foundation.h>

#include <filesystem>
#include <map>
#include <string>

namespace imageposition::test {

/// Starts without any resource. The folder goes with it; the platform forgets the bundle once
/// nobody else has a reference.
class TestBundle {
public:
  TestBundle();
  ~TestBundle();
  TestBundle(const TestBundle &) = delete;
  TestBundle &operator=(const TestBundle &) = delete;

  /// A resource, byte for byte: "SettingInfo.plist", "ja.lproj/Localizable.strings".
  void write(const std::string &resource, const std::string &bytes);
  /// The property list "NAME.plist".
  void writePropertyList(const std::string &name, id propertyList);
  /// "Localizable.strings" for every language, or for one ("ja").
  void writeStrings(const std::map<std::string, std::string> &strings,
                    const std::string &language = {});
  /// Copies a file or folder in among the resources.
  void copy(const std::filesystem::path &source);
  void remove(const std::string &resource);

  /// The bundle; it looks for resources at the time they are asked for, except languages' tables,
  /// which it keeps.
  NSBundle *bundle();
  std::filesystem::path path() const { return path_; }

private:
  std::filesystem::path resource(const std::string &name) const;

  std::filesystem::path path_;
  NSBundle *bundle_ = nil;
};

} // namespace imageposition::test

#endif
