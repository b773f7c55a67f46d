/// The bundle's data files in the source tree.
#ifndef IMAGEPOSITION_TESTS_RESOURCES_RESOURCEFILES_H
#define IMAGEPOSITION_TESTS_RESOURCES_RESOURCEFILES_H

#import <Foundation/Foundation.h>

#include <map>
#include <string>
#include <vector>

namespace imageposition::test {

using Record = std::map<std::string, std::string>;

/// The path of a resource: "SettingInfo.plist".
std::string resourcePath(const std::string &name);

/// The bytes of a file; throws if it cannot be read.
std::string fileBytes(const std::string &path);

/// A property list that is a dictionary; throws if it is not.
NSDictionary *propertyList(const std::string &name);

/// The dictionaries under "0", "1", ... of an index-keyed property list, in that order. Throws if
/// an index is missing, a key is not an index, or a value is not a string.
std::vector<Record> indexedRecords(const std::string &name);

/// The folder names of the bundle's languages.
const std::vector<std::string> &languages();

/// A language's strings by their keys, in the order of the file. Throws if the file is not UTF-8
/// with a byte order mark, is not a strings file, or has a key twice.
std::vector<std::pair<std::string, std::string>> orderedStrings(const std::string &language);
std::map<std::string, std::string> localizedStrings(const std::string &language);

} // namespace imageposition::test

#endif
