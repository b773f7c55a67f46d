#import "ResourceFiles.h"

#import "Text.h"
#include "TextEntries.hpp"

#include <fstream>
#include <iterator>
#include <sstream>
#include <stdexcept>

namespace imageposition::test {
namespace {

constexpr const char kByteOrderMark[] = "\xef\xbb\xbf";

Record record(id dictionary, const std::string &where) {
  if (![dictionary isKindOfClass:[NSDictionary class]])
    throw std::runtime_error(where + " is not a dictionary");
  Record result;
  NSEnumerator *keys = [dictionary keyEnumerator];
  for (id key = [keys nextObject]; key != nil; key = [keys nextObject]) {
    id value = [dictionary objectForKey:key];
    if (![value isKindOfClass:[NSString class]])
      throw std::runtime_error(where + " has a value that is not a string");
    result[cxxString(key)] = cxxString(value);
  }
  return result;
}

} // namespace

std::string resourcePath(const std::string &name) {
  return std::string(IMAGEPOSITION_RESOURCES) + "/" + name;
}

std::string fileBytes(const std::string &path) {
  std::ifstream file(path, std::ios::binary);
  if (!file)
    throw std::runtime_error("cannot read " + path);
  return std::string(std::istreambuf_iterator<char>(file), {});
}

NSDictionary *propertyList(const std::string &name) {
  NSDictionary *list = [NSDictionary dictionaryWithContentsOfFile:nsString(resourcePath(name))];
  if (list == nil)
    throw std::runtime_error(name + " is not a dictionary");
  return list;
}

std::vector<Record> indexedRecords(const std::string &name) {
  NSDictionary *list = propertyList(name);
  std::vector<Record> records;
  for (NSUInteger index = 0; index < [list count]; ++index) {
    const std::string key = std::to_string(index);
    records.push_back(record([list objectForKey:nsString(key)], name + " " + key));
  }
  return records;
}

const std::vector<std::string> &languages() {
  static const std::vector<std::string> all = [] {
    std::istringstream list(IMAGEPOSITION_LANGUAGES);
    return std::vector<std::string>(std::istream_iterator<std::string>(list), {});
  }();
  return all;
}

std::vector<std::pair<std::string, std::string>> orderedStrings(const std::string &language) {
  const std::string name = language + ".lproj/Localizable.strings";
  const std::string bytes = fileBytes(resourcePath(name));
  if (bytes.compare(0, 3, kByteOrderMark) != 0)
    throw std::runtime_error(name + " does not begin with a byte order mark");
  if ([NSString stringWithUTF8String:bytes.c_str() + 3] == nil)
    throw std::runtime_error(name + " is not UTF-8");
  try {
    return stringsEntries(std::string_view(bytes).substr(3));
  } catch (const std::runtime_error &fault) {
    throw std::runtime_error(name + ", " + fault.what());
  }
}

std::map<std::string, std::string> localizedStrings(const std::string &language) {
  const auto ordered = orderedStrings(language);
  return {ordered.begin(), ordered.end()};
}

} // namespace imageposition::test
