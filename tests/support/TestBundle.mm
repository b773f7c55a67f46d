#import "TestBundle.h"

#import "Text.h"

#include <cstdlib>
#include <fstream>
#include <stdexcept>

namespace fs = std::filesystem;

namespace imageposition::test {
namespace {

std::string quoted(const std::string &text) {
  std::string result = "\"";
  for (char unit : text) {
    if (unit == '"' || unit == '\\')
      result += '\\';
    result += unit;
  }
  return result + '"';
}

} // namespace

TestBundle::TestBundle() {
  std::string folder = (fs::temp_directory_path() / "TestBundle.XXXXXX").string();
  if (mkdtemp(folder.data()) == nullptr)
    throw std::runtime_error("cannot make the folder " + folder);
  path_ = folder;
  fs::create_directory(path_ / "Resources");
}

TestBundle::~TestBundle() {
  [bundle_ release];
  std::error_code ignored;
  fs::remove_all(path_, ignored);
}

fs::path TestBundle::resource(const std::string &name) const { return path_ / "Resources" / name; }

void TestBundle::write(const std::string &name, const std::string &bytes) {
  fs::create_directories(resource(name).parent_path());
  std::ofstream file(resource(name), std::ios::binary);
  file << bytes;
  if (!file.flush())
    throw std::runtime_error("cannot write " + resource(name).string());
}

void TestBundle::writePropertyList(const std::string &name, id propertyList) {
  NSData *bytes = [NSPropertyListSerialization dataWithPropertyList:propertyList
                                                             format:NSPropertyListXMLFormat_v1_0
                                                            options:0
                                                              error:NULL];
  if (bytes == nil)
    throw std::runtime_error("not a property list: " + name);
  write(name + ".plist", std::string(static_cast<const char *>([bytes bytes]), [bytes length]));
}

void TestBundle::writeStrings(const std::map<std::string, std::string> &strings,
                              const std::string &language) {
  std::string text = "\xEF\xBB\xBF"; // GNUstep needs the byte order mark to detect UTF-8
  for (const auto &[key, value] : strings)
    text += quoted(key) + " = " + quoted(value) + ";\n";
  write((language.empty() ? "" : language + ".lproj/") + "Localizable.strings", text);
}

void TestBundle::copy(const fs::path &source) {
  fs::copy(source, resource(source.filename().string()), fs::copy_options::recursive);
}

void TestBundle::remove(const std::string &name) { fs::remove_all(resource(name)); }

NSBundle *TestBundle::bundle() {
  if (bundle_ == nil)
    bundle_ = [[NSBundle alloc] initWithPath:nsString(path_.string())];
  return bundle_;
}

} // namespace imageposition::test
