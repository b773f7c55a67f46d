#import "TestPool.h"
#import "Text.h"

#import <Foundation/Foundation.h>
#import <objc/runtime.h>

#include <cstdio>
#include <dlfcn.h>
#include <fstream>
#include <gmock/gmock.h>
#include <map>
#include <regex>
#include <set>

namespace imageposition::test {
namespace {

using Lines = std::vector<std::string>;

/// Converts a type encoding to the table's format.
std::string plain(std::string encoding) {
  encoding = std::regex_replace(encoding, std::regex("@\"[^\"]*\""), "@");
  encoding = std::regex_replace(encoding, std::regex("\\d+"), "");
  for (const std::regex structure("\\{[^{}]*\\}"); std::regex_search(encoding, structure);)
    encoding = std::regex_replace(encoding, structure, "S");
  encoding = std::regex_replace(encoding, std::regex("r?\\^(r?\\^)*r?."), "^");
  std::replace(encoding.begin(), encoding.end(), 'C', 'c');
  std::replace(encoding.begin(), encoding.end(), 'Q', 'I');
  std::replace(encoding.begin(), encoding.end(), 'L', 'I');
  return encoding;
}

void addProtocols(Class type, Lines &lines) {
  unsigned count = 0;
  Protocol **const list = class_copyProtocolList(type, &count);
  for (unsigned i = 0; i < count; i++)
    lines.push_back(std::string("  protocol ") + protocol_getName(list[i]));
  free(list);
}

void addFields(Class type, Lines &lines) {
  unsigned count = 0;
  Ivar *const list = class_copyIvarList(type, &count);
  for (unsigned i = 0; i < count; i++)
    lines.push_back(std::string("  field ") + ivar_getName(list[i]) + " " +
                    plain(ivar_getTypeEncoding(list[i])));
  free(list);
}

void addOperations(Class type, const char *sign, Lines &lines) {
  unsigned count = 0;
  Method *const list = class_copyMethodList(type, &count);
  const std::size_t begin = lines.size();
  for (unsigned i = 0; i < count; i++)
    lines.push_back(std::string("  ") + sign + sel_getName(method_getName(list[i])) + " " +
                    plain(method_getTypeEncoding(list[i])));
  std::sort(lines.begin() + begin, lines.end());
  free(list);
}

Lines describe(Class type) {
  const Class super = class_getSuperclass(type);
  Lines lines = {std::string("class ") + class_getName(type) + " : " +
                 (super == Nil ? "none" : class_getName(super))};
  addProtocols(type, lines);
  addFields(type, lines);
  if (super != Nil) // a root class also has its instance methods as class methods
    addOperations(object_getClass(reinterpret_cast<id>(type)), "+", lines);
  addOperations(type, "-", lines);
  return lines;
}

/// Joins the lines, so that a failure shows only those that differ.
std::string joined(const Lines &lines) {
  std::string text;
  for (const std::string &line : lines)
    text += line + '\n';
  return text;
}

/// The names of the classes in that image file.
std::set<std::string> classesOf(const std::string &image) {
  std::set<std::string> names;
  const int count = objc_getClassList(nullptr, 0);
  // Names, because g++ has no containers of Class.
  Class *const classes = static_cast<Class *>(calloc(count, sizeof(Class)));
  objc_getClassList(classes, count);
  for (int i = 0; i < count; i++) {
    Dl_info place;
    if (dladdr(classes[i], &place) != 0 && image == place.dli_fname)
      names.insert(class_getName(classes[i]));
  }
  free(classes);
  return names;
}

/// The symbols that the file exports.
std::set<std::string> exportedBy(const std::string &file) {
  const std::string command = std::string(NM) + " -D --defined-only '" + file + "'";
  FILE *const output = popen(command.c_str(), "r");
  std::set<std::string> symbols;
  char name[4096];
  while (fscanf(output, "%*s %*s %4095s", name) == 1)
    symbols.insert(name);
  EXPECT_EQ(pclose(output), 0) << command;
  return symbols;
}

/// The lines of the table that begin so, without comments.
Lines tableLines(const std::string &beginning) {
  std::ifstream table(CLASS_TABLE);
  Lines lines;
  bool isTaken = false;
  for (std::string line; std::getline(table, line);) {
    if (line.compare(0, 2, "  ") != 0)
      isTaken = line.compare(0, beginning.size(), beginning) == 0;
    if (isTaken)
      lines.push_back(line);
  }
  return lines;
}

class Bundle : public testing::Test {
protected:
  Bundle() : bundle([NSBundle bundleWithPath:nsString(IMAGEPOSITION_BUNDLE)]) {
    [bundle load];
    executable = cxxString([bundle executablePath]);
  }

  Pool pool;
  NSBundle *bundle;
  std::string executable;
};

TEST_F(Bundle, HasTheClassesOfTheTableWithTheirFieldsAndMethods) {
  Lines lines;
  for (const std::string &name : classesOf(executable)) {
    const Lines description = describe(objc_getClass(name.c_str()));
    lines.insert(lines.end(), description.begin(), description.end());
  }
  EXPECT_EQ(joined(lines), joined(tableLines("class ")));
}

// Code that accesses fields by offset relies on this, with 32-bit and 64-bit pointers.
TEST_F(Bundle, FieldsAreLaidOutInOrderWithTheSizesOfTheirTypes) {
  const std::map<char, std::ptrdiff_t> widths = {
      {'@', sizeof(void *)}, {'^', sizeof(void *)}, {'i', 4}, {'c', 1}, {'C', 1}};
  for (const std::string &line : tableLines("class ")) {
    if (line.compare(0, 6, "class ") != 0)
      continue;
    const std::string name = line.substr(6, line.find(' ', 6) - 6);
    const Class type = objc_getClass(name.c_str());
    unsigned count = 0;
    Ivar *const list = class_copyIvarList(type, &count);
    std::ptrdiff_t place = count > 0 ? ivar_getOffset(list[0]) : 0;
    for (unsigned i = 0; i < count; i++) {
      const std::ptrdiff_t width = widths.at(*ivar_getTypeEncoding(list[i]));
      place = (place + width - 1) / width * width;
      EXPECT_EQ(ivar_getOffset(list[i]), place) << name << " " << ivar_getName(list[i]);
      place += width;
    }
    free(list);
  }
}

// Class names are global to the process, which may load other versions of the bundle too.
TEST_F(Bundle, EveryClassNameEndsWithTheVersion) {
  const std::set<std::string> classes = classesOf(executable);
  EXPECT_EQ(classes.size(), 10u);
  for (const std::string &name : classes)
    EXPECT_THAT(name, testing::MatchesRegex("MorvaADP.*RV2"));
}

// The dynamic linker may bind any other symbol to one of the same name in the process.
TEST_F(Bundle, ExportsOnlyItsClassesAndTheConstantsOfTheTable) {
  std::set<std::string> expected;
  for (const std::string &line : tableLines("constant "))
    expected.insert(line.substr(line.find(' ') + 1));
  EXPECT_EQ(expected.size(), 4u);
  for (const std::string &name : classesOf(executable))
    expected.insert("__objc_class_name_" + name);
  EXPECT_EQ(exportedBy(executable), expected);
}

TEST_F(Bundle, NamesThePrincipalClass) {
  EXPECT_EQ(cxxString(NSStringFromClass([bundle principalClass])), "MorvaADPPdePluginRV2");
}

} // namespace
} // namespace imageposition::test
