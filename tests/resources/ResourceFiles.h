/// The bundle's data as it stands in the source tree.
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

/// The bytes of a file; throws when it cannot be read.
std::string fileBytes(const std::string &path);

/// A property list that is a dictionary; throws when it is not.
NSDictionary *propertyList(const std::string &name);

/// The dictionaries under "0", "1", ... of an index-keyed property list, in that order. Throws when
/// an index is missing, a key is no index, or a value is not a text.
std::vector<Record> indexedRecords(const std::string &name);

/// The languages that the bundle is built with, as their folders are named.
const std::vector<std::string> &languages();

/// The texts of a language by their keys, in the order of the file; throws when the file is not
/// UTF-8 behind a byte order mark, not a strings file, or has a key twice.
std::vector<std::pair<std::string, std::string>> orderedTexts(const std::string &language);
std::map<std::string, std::string> texts(const std::string &language);

} // namespace imageposition::test

#endif
