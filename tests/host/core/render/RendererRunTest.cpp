#include "RendererRun.hpp"

#include "ProcessRun.hpp"
#include "TemporaryFolder.hpp"
#include "Waiting.hpp"

#include <chrono>
#include <csignal>
#include <fcntl.h>
#include <gmock/gmock.h>
#include <sstream>
#include <sys/stat.h>
#include <sys/wait.h>

namespace imageposition {

namespace {

using namespace imageposition::test;

/// Programs in place of the renderer: a request for pages 4 and 5, of 2 by 3 pixels each.
class FalseRenderer : public testing::Test {
protected:
  std::vector<RenderedPage> render(
      const std::string &script, const KeepWaiting &keepWaiting = [] { return true; }) {
    const std::string program = folder_.write("renderer", "#!/bin/sh\n" + script + "\n");
    chmod(program.c_str(), 0755);
    const Descriptor pdf(open(folder_.write("document", "secret").c_str(), O_RDWR | O_CLOEXEC));
    return renderPagesWith(program, pdf, {{4, 5}, 1, 100}, keepWaiting);
  }

  RenderProblem problemWith(const std::string &script) {
    try {
      render(script);
      ADD_FAILURE() << "trusted: " << script;
    } catch (const RenderFailure &failure) {
      return failure.problem();
    }
    return {};
  }

  TemporaryFolder folder_;
};

constexpr const char *kSixPixels = "printf abcdefghijklmnopqrstuvwx >&4\n";
constexpr const char *kPage4 = "echo 4 2 3\n";
constexpr const char *kPage5 = "echo 5 2 3\n";

TEST_F(FalseRenderer, GivesItsPixelsToTheDialog) {
  const auto pages = render(std::string(kSixPixels) + kPage4 + kSixPixels + kPage5);
  ASSERT_EQ(pages.size(), 2u);
  EXPECT_EQ(pages[1].width, 2);
  EXPECT_EQ(pages[1].height, 3);
  EXPECT_EQ(pages[1].pageWidth.count, 2);
  ASSERT_EQ(pages[1].pixels.size(), 6u);
  EXPECT_EQ(pages[0].pixels[0], 0xFF636261U);
}

TEST_F(FalseRenderer, IsNotBelieved) {
  const struct {
    const char *what;
    std::string script;
  } rows[] = {
      {"no result", std::string(kPage4)},
      {"a short result", std::string("printf abc >&4\n") + kPage4},
      {"a short second page", std::string(kSixPixels) + kPage4 + "printf abc >&4\n" + kPage5},
      {"a long result", std::string(kSixPixels) + kPage4 + kSixPixels + kPage5 + "printf abc >&4"},
      {"another page", std::string(kSixPixels) + kPage5},
      {"a page twice", std::string(kSixPixels) + kPage4 + kSixPixels + kPage4},
      {"too many pages",
       std::string(kSixPixels) + kPage4 + kSixPixels + kPage5 + kSixPixels + "echo 6 2 3"},
      {"a negative size", "echo 4 -2 -3"},
      {"a huge size", "echo 4 1e300 1e300"},
      {"no number", "echo 4 nan nan"},
      {"words", "echo hello"},
      {"an endless line", "while :; do printf aaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaa; done"},
      {"a result that became shorter",
       std::string(kSixPixels) + kPage4 + ": >/proc/self/fd/4\n" + kPage5},
      {"a crash", "kill -SEGV $$"},
      {"nothing", "exit 0"},
  };
  for (const auto &row : rows)
    EXPECT_EQ(problemWith(row.script), RenderProblem::Fault) << row.what;
  EXPECT_EQ(problemWith("echo password"), RenderProblem::Password);
  EXPECT_EQ(problemWith("echo damaged"), RenderProblem::Damaged);
}

TEST_F(FalseRenderer, KeepsThePagesThatAreThereWhenItCrashes) {
  const auto pages = render(std::string(kSixPixels) + kPage4 + "printf abc >&4\nkill -SEGV $$");
  ASSERT_EQ(pages.size(), 2u);
  EXPECT_EQ(pages[0].pixels.size(), 6u);
  EXPECT_EQ(pages[1].width, 0);
  EXPECT_TRUE(pages[1].pixels.empty());
}

TEST_F(FalseRenderer, ReportsAPageWithoutPixels) {
  const auto pages = render(std::string("echo 4 0 0\n") + kSixPixels + kPage5);
  ASSERT_EQ(pages.size(), 2u);
  EXPECT_TRUE(pages[0].pixels.empty());
  EXPECT_EQ(pages[1].pixels.size(), 6u);
}

TEST_F(FalseRenderer, MayNotTakeLong) {
  const auto start = std::chrono::steady_clock::now();
  EXPECT_EQ(problemWith("exec sleep 60"), RenderProblem::TooLong);
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(10));
}

bool isRunning(const std::string &words) { return runProcess({"pgrep", "-f", words}).status == 0; }

TEST_F(FalseRenderer, EndsAtOnceWhenCancelled) {
  std::chrono::steady_clock::time_point cancelled;
  const auto pages = render("exec sleep 765432", [&] {
    const bool isStarting = !isRunning("sleep 765432");
    cancelled = std::chrono::steady_clock::now();
    return isStarting;
  });
  EXPECT_LT(std::chrono::steady_clock::now() - cancelled, std::chrono::milliseconds(500))
      << "0.2 s on an idle machine";
  EXPECT_TRUE(pages.empty());
  EXPECT_FALSE(isRunning("sleep 765432"));
  EXPECT_EQ(waitpid(-1, nullptr, WNOHANG), -1) << "a process is left";
}

TEST_F(FalseRenderer, IsAskedForOftenEnough) {
  int calls = 0;
  EXPECT_TRUE(render("exec sleep 60", [&calls] { return ++calls < 20; }).empty());
  EXPECT_EQ(calls, 20);
}

TEST_F(FalseRenderer, GetsNothingButItsDescriptorsAndItsEnvironment) {
  setenv("LD_SECRET", "hidden", 1);
  setenv("FONTCONFIG_FILE", "/fonts", 1);
  const int another = fcntl(STDOUT_FILENO, F_DUPFD, 50); // inherited without further ado
  ASSERT_GE(another, 50);
  problemWith("env > " + folder_.path("environment") + "; ls /proc/$$/fd > " +
              folder_.path("descriptors"));
  close(another);
  unsetenv("LD_SECRET");
  unsetenv("FONTCONFIG_FILE");
  const std::string environment = contentOf(folder_.path("environment"));
  EXPECT_THAT(environment, testing::HasSubstr("FONTCONFIG_FILE=/fonts"));
  EXPECT_THAT(environment, testing::Not(testing::HasSubstr("LD_SECRET")));
  std::istringstream numbers(contentOf(folder_.path("descriptors")));
  std::vector<std::string> links;
  for (std::string number; numbers >> number;)
    links.push_back(number);
  EXPECT_THAT(links, testing::Not(testing::Contains(std::to_string(another))));
  EXPECT_THAT(links, testing::IsSupersetOf({"0", "1", "2", "3", "4"}));
}

TEST_F(FalseRenderer, CannotWriteToTheDocument) {
  problemWith("echo changed >&3");
  EXPECT_EQ(contentOf(folder_.path("document")), "secret");
}

TEST_F(FalseRenderer, MayBeMissing) {
  const Descriptor pdf(open("/dev/null", O_RDONLY | O_CLOEXEC));
  const RenderRequest request{{0}, 1, 100};
  const auto keepWaiting = [] { return true; };
  EXPECT_THROW(renderPagesWith(folder_.path("missing"), pdf, request, keepWaiting), RenderFailure);
  EXPECT_THROW(renderPagesWith("/bin/true", Descriptor(-1), request, keepWaiting), RenderFailure);
  EXPECT_THROW(renderPagesWith("/bin/true", pdf, {{}, 1, 100}, keepWaiting), std::invalid_argument);
}

} // namespace

} // namespace imageposition
