/// Runs print-dialog with copies of the fixture plug-in, intact or damaged.
#ifndef IMAGEPOSITION_TESTS_HOST_SUPPORT_PLUGINFIXTURE_HPP
#define IMAGEPOSITION_TESTS_HOST_SUPPORT_PLUGINFIXTURE_HPP

#include "DialogFixture.hpp"

namespace imageposition::test {

class PluginFixture : public DialogFixture {
protected:
  ProcessResult load(const std::string &bundle, const std::string &behaviour = "",
                     const Words &words = {}) const {
    Words all{"--plugin", bundle, "--ticket", folder.path("job.json")};
    all.insert(all.end(), words.begin(), words.end());
    return batch(sample("duplex-shift.ppd"), all,
                 {"FIXTURE_BEHAVIOUR=" + behaviour, "FIXTURE_JOURNAL=" + journal});
  }

  /// A copy of the plug-in for the test to damage.
  std::string copy(const std::string &name = "Copy.plugin") const {
    std::filesystem::create_directories(std::filesystem::path(folder.path(name)).parent_path());
    std::filesystem::copy(FIXTURE_PLUGIN, folder.path(name),
                          std::filesystem::copy_options::recursive);
    return folder.path(name);
  }

  void expectLeftOut(const ProcessResult &result, const std::string &reason) const {
    EXPECT_EQ(result.status, kPlugin) << testing::PrintToString(result);
    EXPECT_THAT(result.errors, testing::HasSubstr(".plugin\""));
    EXPECT_THAT(result.errors, testing::HasSubstr(reason));
    EXPECT_THAT(result.output, testing::IsEmpty());
    EXPECT_FALSE(std::filesystem::exists(folder.path("job.json")));
  }

  /// Expects the plug-in to be left out before any of its code ran.
  void expectUnheard(const ProcessResult &result, const std::string &reason) const {
    expectLeftOut(result, reason);
    EXPECT_FALSE(std::filesystem::exists(journal)) << contentOf(journal);
  }

  const std::string journal = folder.path("journal");
};

} // namespace imageposition::test

#endif
