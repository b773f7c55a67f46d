/// Copies of the plug-in's bundle that tests damage and the program loads.
#ifndef IMAGEPOSITION_TESTS_FAULTS_BROKENBUNDLE_HPP
#define IMAGEPOSITION_TESTS_FAULTS_BROKENBUNDLE_HPP

#include "WindowFixture.hpp"

#include <utility>

namespace imageposition::test {

/// Also has a ticket and its options, which must survive whatever happens to the plug-in.
class BrokenBundle : public Window {
protected:
  using Damage = std::pair<std::string, std::function<void(const std::string &path)>>;

  void SetUp() override { restore(); }

  /// Restores an undamaged copy, and the original ticket.
  void restore() {
    std::filesystem::remove_all(bundle);
    std::filesystem::copy(IMAGE_POSITION_PLUGIN, bundle, std::filesystem::copy_options::recursive);
    folder.write("job.json", kTicket);
    folder.write("job.options", kOptions);
  }

  std::string resource(const std::string &name) const { return bundle + "/Resources/" + name; }

  /// The environment for a localized resource's language, so that the program reads it.
  static Words languageOf(const std::string &resourceName) {
    const std::size_t end = resourceName.find(".lproj/");
    if (end == std::string::npos)
      return {"LANGUAGE=en"};
    const std::string language = resourceName.substr(0, end);
    return {"LANGUAGE=" + (language == "zh-Hans" ? "zh_CN" : language), "LC_ALL=C.UTF-8"};
  }

  /// Runs the panel and writes its values to the ticket; fails after `patience` seconds.
  ProcessResult use(const Words &environment, int patience = 30) const {
    return Process({PRINT_DIALOG, "--batch", "--ppd", sample("duplex-shift.ppd"), "--plugin",
                    bundle, "--ticket", ticket, "--summary"},
                   environment, patience)
        .wait();
  }

  /// Expects either success, with the former contents of the ticket kept, or a message that names
  /// the bundle, with unchanged files.
  void expectSafe(const ProcessResult &result) const {
    if (result.status == kDone) {
      EXPECT_THAT(contentOf(ticket), testing::HasSubstr("\"Foreign\": \"kept\""));
      EXPECT_THAT(contentOf(ticket), testing::EndsWith("}\n"));
      return;
    }
    EXPECT_TRUE(result.status == kPlugin || result.status == kNoPanel)
        << testing::PrintToString(result);
    EXPECT_THAT(result.errors, testing::HasSubstr("Broken.plugin"));
    EXPECT_EQ(contentOf(ticket), kTicket);
    EXPECT_EQ(contentOf(folder.path("job.options")), kOptions);
  }

  static constexpr const char *kTicket =
      R"({"settings": {"LeftRightMargin": "9", "Foreign": "kept"}})";
  static constexpr const char *kOptions = "Foreign=kept\n";
  const std::string bundle = folder.path("Broken.plugin");
};

} // namespace imageposition::test

#endif
