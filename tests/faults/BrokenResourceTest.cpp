// The real program with a bundle in which one resource is damaged.
#include "BrokenBundle.hpp"

#include <iostream>
#include <map>

namespace {

using namespace imageposition::test;

namespace fs = std::filesystem;

void overwrite(const std::string &path, const std::string &content) {
  fs::remove_all(path);
  std::ofstream(path, std::ios::binary) << content;
}

class BrokenResource : public BrokenBundle {
protected:
  static std::vector<std::string> resources() {
    const fs::path all = fs::path(IMAGE_POSITION_PLUGIN) / "Resources";
    std::vector<std::string> names;
    for (const auto &entry : fs::recursive_directory_iterator(all))
      if (entry.is_regular_file())
        names.push_back(fs::relative(entry.path(), all).string());
    return names;
  }

  static std::vector<Damage> damages() {
    std::vector<Damage> list{
        {"missing", [](const std::string &path) { fs::remove(path); }},
        {"empty", [](const std::string &path) { overwrite(path, ""); }},
        {"a folder",
         [](const std::string &path) {
           fs::remove(path);
           fs::create_directory(path);
         }},
        {"a dangling link",
         [](const std::string &path) {
           fs::remove(path);
           fs::create_symlink("nowhere", path);
         }},
        {"a list", [](const std::string &path) { overwrite(path, "(\"a\", \"b\")"); }},
        {"a string", [](const std::string &path) { overwrite(path, "\"%s%n%@\""); }},
        {"a list in XML",
         [](const std::string &path) {
           overwrite(path, "<?xml version=\"1.0\"?><plist version=\"1.0\"><array/></plist>");
         }},
        {"binary data",
         [](const std::string &path) { overwrite(path, std::string("\0\xff\xfe\x80\n\0{", 7)); }},
        {"bplist00 only", [](const std::string &path) { overwrite(path, "bplist00"); }}};
    for (const int percent : {1, 10, 25, 50, 75, 90, 99})
      list.emplace_back("cut at " + std::to_string(percent) + " %", [=](const std::string &path) {
        fs::resize_file(path, fs::file_size(path) * percent / 100);
      });
    return list;
  }
};

TEST_F(BrokenResource, EveryDamageGivesAMessageOrASafeResult) {
  std::map<int, int> outcomes;
  for (const std::string &name : resources()) {
    for (const auto &[how, damage] : damages()) {
      SCOPED_TRACE(name + ": " + how);
      restore();
      damage(resource(name));
      const auto result = use(languageOf(name));
      expectSafe(result);
      outcomes[result.status]++;
    }
  }
  EXPECT_GT(outcomes[kDone], 0);
  EXPECT_GT(outcomes[kPlugin], 0);
  for (const auto &[status, count] : outcomes)
    RecordProperty("status" + std::to_string(status), count);
}

} // namespace
