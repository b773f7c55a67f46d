#include "Tokens.hpp"

#include "TemporaryFolder.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <vector>

namespace {

using imageposition::PreparedFile;
using imageposition::Tokens;
using imageposition::test::TemporaryFolder;

class TokensOfApplications : public testing::Test {
protected:
  std::unique_ptr<PreparedFile> job(const std::string &name = "job") {
    return std::make_unique<PreparedFile>(folder.write(name, "{}"));
  }
  std::uint32_t nextNumber() {
    const std::uint32_t number = numbers.back();
    numbers.pop_back();
    return number;
  }

  TemporaryFolder folder;
  std::vector<std::uint32_t> numbers{9, 8, 7};
  Tokens::Clock::time_point now;
  Tokens tokens{[this] { return nextNumber(); }, [this] { return now; }};
};

TEST_F(TokensOfApplications, AreTakenOnce) {
  const std::uint32_t token = tokens.add("org.example.Editor", job());
  EXPECT_EQ(token, 7U);
  const auto taken = tokens.take("org.example.Editor", token);
  ASSERT_TRUE(taken);
  EXPECT_EQ(taken->path(), folder.path("job"));
  EXPECT_FALSE(tokens.take("org.example.Editor", token));
  EXPECT_TRUE(tokens.isEmpty());
}

TEST_F(TokensOfApplications, AreOfNoUseToOthers) {
  const std::uint32_t token = tokens.add("org.example.Editor", job());
  EXPECT_FALSE(tokens.take("org.example.Intruder", token));
  EXPECT_FALSE(tokens.take("", token));
  EXPECT_FALSE(tokens.take("org.example.Editor", token + 1));
  EXPECT_FALSE(tokens.take("org.example.Editor", 0));
  EXPECT_TRUE(tokens.take("org.example.Editor", token));
}

TEST_F(TokensOfApplications, AreNeitherZeroNorRepeated) {
  numbers = {5, 4, 4, 0};
  EXPECT_EQ(tokens.add("a", job("1")), 4U);
  EXPECT_EQ(tokens.add("a", job("2")), 5U);
}

TEST_F(TokensOfApplications, EndWithTheirFilesAfterHalfAnHour) {
  const std::uint32_t token = tokens.add("a", job());
  now += Tokens::kLifetime - std::chrono::seconds(1);
  tokens.expire();
  EXPECT_FALSE(tokens.isEmpty());
  EXPECT_EQ(folder.fileCount(), 1U);
  now += std::chrono::seconds(1);
  EXPECT_FALSE(tokens.take("a", token));
  EXPECT_TRUE(tokens.isEmpty());
  EXPECT_EQ(folder.fileCount(), 0U);
}

TEST_F(TokensOfApplications, AJobsFileIsRemovedOnceTheJobIsDone) {
  auto taken = tokens.take("a", tokens.add("a", job()));
  EXPECT_EQ(folder.fileCount(), 1U);
  taken.reset();
  EXPECT_EQ(folder.fileCount(), 0U);
}

} // namespace
