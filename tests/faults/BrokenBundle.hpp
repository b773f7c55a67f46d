/// Copies of the plug-in's bundle, to be damaged and given to the program.
#ifndef IMAGEPOSITION_TESTS_FAULTS_BROKENBUNDLE_HPP
#define IMAGEPOSITION_TESTS_FAULTS_BROKENBUNDLE_HPP

#include "WindowFixture.hpp"

#include <utility>

namespace imageposition::test {

/// With a ticket and its options that must not be lost, whatever becomes of the plug-in.
class BrokenBundle : public Window {
protected:
  using Damage = std::pair<std::string, std::function<void(const std::string &path)>>;

  void SetUp() override { restore(); }

  /// A sound copy in place of the one before, and the ticket as it was.
  void restore() {
    std::filesystem::remove_all(bundle);
    std::filesystem::copy(IMAGE_POSITION_PLUGIN, bundle, std::filesystem::copy_options::recursive);
    folder.write("job.json", kTicket);
    folder.write("job.options", kOptions);
  }

  std::string resource(const std::string &name) const { return bundle + "/Resources/" + name; }

  /// In a language that reads the resource, where it is one language's.
  static Words languageOf(const std::string &resourceName) {
    const std::size_t end = resourceName.find(".lproj/");
    if (end == std::string::npos)
      return {"LANGUAGE=en"};
    const std::string language = resourceName.substr(0, end);
    return {"LANGUAGE=" + (language == "zh-Hans" ? "zh_CN" : language), "LC_ALL=C.UTF-8"};
  }

  /// The panel set and its values written to the ticket, within the given seconds.
  ProcessResult use(const Words &environment, int patience = 30) const {
    return Process({PRINT_DIALOG, "--batch", "--ppd", sample("duplex-shift.ppd"), "--plugin",
                    bundle, "--ticket", ticket, "--summary"},
                   environment, patience)
        .wait();
  }

  /// Either done, with what was in the ticket before, or refused with a message that names the
  /// bundle and with the files as they were.
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
