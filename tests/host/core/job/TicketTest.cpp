#include "Ticket.hpp"

#include "ExitCode.hpp"
#include "TemporaryFolder.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

using namespace imageposition;
using imageposition::test::contentOf;
using imageposition::test::TemporaryFolder;
using testing::HasSubstr;
using testing::StrEq;

Ticket sample() {
  Ticket ticket;
  ticket.printer = "Sample";
  ticket.settings.set("LeftRightMargin", "-3");
  ticket.settings.set("Duplex", "DuplexNoTumble", true);
  return ticket;
}

template <typename Act> std::string failureOf(Act &&act) {
  try {
    act();
  } catch (const Failure &failure) {
    EXPECT_EQ(failure.code(), ExitCode::Ticket);
    return failure.what();
  }
  ADD_FAILURE() << "did not fail";
  return {};
}

TEST(Ticket, CanBeReadBackAsWritten) {
  const Ticket read = readTicketText(writeTicketText(sample()), "job.json");
  EXPECT_EQ(read.printer, "Sample");
  EXPECT_THAT(read.documents, testing::IsEmpty());
  EXPECT_EQ(read.settings.optionCount(), 2);
  EXPECT_THAT(read.settings.get("LeftRightMargin"), StrEq("-3"));
  EXPECT_TRUE(read.settings.isLocked("Duplex"));
  EXPECT_FALSE(read.settings.isLocked("LeftRightMargin"));
}

TEST(Ticket, APreparedJobsPaperCanBeReadBackAsWritten) {
  Ticket ticket = sample();
  EXPECT_FALSE(readTicketText(writeTicketText(ticket), "t").paper);
  ticket.paper = TicketPaper{"A4", "A4 (210 × 297 mm)", 595.25, 842, 12, 13, 14, 15.5};
  const auto paper = readTicketText(writeTicketText(ticket), "t").paper;
  ASSERT_TRUE(paper);
  EXPECT_EQ(paper->keyword, "A4");
  EXPECT_EQ(paper->text, "A4 (210 × 297 mm)");
  EXPECT_THAT((std::vector{paper->width, paper->length, paper->left, paper->bottom, paper->right,
                           paper->top}),
              testing::ElementsAre(595.25, 842, 12, 13, 14, 15.5));
}

TEST(Ticket, AnIncompletePaperIsIgnored) {
  for (const char *paper : {"7", "{}", R"({"points": [1, 2]})", R"({"points": [1,2,3,4,5,"6"]})"})
    EXPECT_FALSE(
        readTicketText(std::string(R"({"settings": {}, "paper": )") + paper + "}", "t").paper)
        << paper;
}

TEST(Ticket, KeepsAnyCharacterInAValue) {
  Ticket ticket;
  ticket.settings.set("job-name", "\"\\\n\t\x01 \xE5\xB7\xA6");
  EXPECT_THAT(readTicketText(writeTicketText(ticket), "t").settings.get("job-name"),
              StrEq("\"\\\n\t\x01 \xE5\xB7\xA6"));
}

TEST(Ticket, ADocumentNameInAnotherEncodingIsHarmless) {
  Ticket ticket = sample();
  ticket.documents = {"\xE4.pdf"};
  EXPECT_EQ(readTicketText(writeTicketText(ticket), "t").settings.optionCount(), 2);
}

TEST(Ticket, AWholeNumberIsConvertedToAString) {
  const Ticket read = readTicketText(R"({"settings": {"LeftRightMargin": -3}})", "t");
  EXPECT_THAT(read.settings.get("LeftRightMargin"), StrEq("-3"));
}

TEST(Ticket, OneDocumentIsAStringAndSeveralAreAList) {
  Ticket ticket;
  ticket.documents = {"a.pdf"};
  EXPECT_THAT(writeTicketText(ticket), HasSubstr(R"("document": "a.pdf")"));
  EXPECT_EQ(readTicketText(writeTicketText(ticket), "t").documents, ticket.documents);
  ticket.documents = {"a.pdf", "-", "b.pdf"};
  EXPECT_THAT(writeTicketText(ticket), HasSubstr("\"documents\": ["));
  EXPECT_EQ(readTicketText(writeTicketText(ticket), "t").documents, ticket.documents);
}

TEST(Ticket, AnInvalidTicketIsRefusedWithItsNameAndTheReason) {
  const struct {
    const char *text;
    const char *reason;
  } rows[] = {
      {"", "not JSON"},
      {"{", "not JSON"},
      {"[]", "the object \"settings\" is missing"},
      {"{}", "the object \"settings\" is missing"},
      {R"({"settings": []})", "the object \"settings\" is missing"},
      {R"({"settings": {"a": null}})", "\"a\" is neither"},
      {R"({"settings": {"a": 1.5}})", "\"a\" is neither"},
      {R"({"settings": {"a": true}})", "\"a\" is neither"},
      {R"({"settings": {"": "1"}})", "cannot hold"},
      {R"({"settings": {"a=b": "1"}})", "\"a=b\""},
      {R"({"settings": {"a": "\u0000"}})", "cannot hold"},
      {R"({"settings": {"a": "1", "A": "2"}, "locked": ["a"]})", "appears twice"},
      {R"({"settings": {"a": "1", "a": "2"}})", "\"a\" appears twice"},
      {R"({"settings": {"a": "1", "A": "2"}})", "appears twice"},
      {R"({"settings": {}, "settings": {"a": "1"}})", "\"settings\" appears twice"},
      {R"({"settings": {}, "x": [{"b": 1, "b": 1}]})", "\"b\" appears twice"},
      {R"({"settings": {"touch$IFS$HOME/x;A": "1"}})", "\"touch$IFS$HOME/x;A\""},
      {R"({"settings": {"A\u0007": "1"}})", "cannot hold"},
      {R"({"settings": {}, "locked": "a"})", "list of strings"},
      {R"({"settings": {}, "locked": [1]})", "list of strings"},
      {R"({"settings": {}, "documents": "a"})", "\"documents\" is not a list"},
      {R"({"settings": {}, "printer": 1})", "\"printer\" is not a string"},
  };
  for (const auto &row : rows) {
    SCOPED_TRACE(row.text);
    const std::string failure = failureOf([&] { readTicketText(row.text, "job.json"); });
    EXPECT_THAT(failure, HasSubstr("job.json"));
    EXPECT_THAT(failure, HasSubstr(row.reason));
  }
}

TEST(Ticket, DeeplyNestedJsonIsRefused) {
  failureOf([] { readTicketText(std::string(100000, '['), "t"); });
}

TEST(Ticket, DeeplyNestedUnknownMembersAreHarmless) {
  const std::string deep = std::string(1000000, '[') + std::string(1000000, ']');
  EXPECT_EQ(
      readTicketText("{\"settings\": {\"a\": 1}, \"x\": " + deep + "}", "t").settings.optionCount(),
      1);
}

TEST(Ticket, ManySettingsAreReadInAnyOrder) {
  constexpr int kCount = 30000;
  std::string json = "{\"settings\": {";
  for (int i = kCount; i > 0; i--)
    json += "\"Setting" + std::to_string(i * 7919 % 30011) + "\": " + std::to_string(i) +
            (i > 1 ? "," : "}}");
  const Ticket read = readTicketText(json, "t");
  EXPECT_EQ(read.settings.optionCount(), kCount);
  EXPECT_THAT(read.settings.get("Setting7919"), StrEq("1"));
  EXPECT_EQ(writeTicketText(readTicketText(writeTicketText(read), "t")), writeTicketText(read));
}

TEST(TicketFile, APreparedJobIsOneFileThatOnlyItsOwnerReads) {
  const TemporaryFolder folder;
  const std::string path = folder.write("job", "");
  chmod(path.c_str(), 0644);
  writePreparedTicket(sample(), path);
  EXPECT_EQ(folder.fileCount(), 1U);
  struct stat status {};
  stat(path.c_str(), &status);
  EXPECT_EQ(status.st_mode & 0777, 0600U);
  EXPECT_THAT(readTicket(path)->settings.get("LeftRightMargin"), StrEq("-3"));
  EXPECT_THAT(failureOf([&] { writePreparedTicket(sample(), folder.path("none/job")); }),
              HasSubstr("none/job"));
}

TEST(TicketFile, AMissingFileIsNoError) {
  TemporaryFolder folder;
  EXPECT_FALSE(readTicket(folder.path("job.json")));
}

TEST(TicketFile, APipeIsRefusedWithoutReadingIt) {
  TemporaryFolder folder;
  ASSERT_EQ(mkfifo(folder.path("job.json").c_str(), 0600), 0);
  EXPECT_THAT(failureOf([&] { readTicket(folder.path("job.json")); }),
              HasSubstr("not a regular file"));
}

TEST(TicketFile, AFolderIsRefused) {
  TemporaryFolder folder;
  failureOf([&] { readTicket(folder.path()); });
  failureOf([&] { writeTicket(sample(), folder.path()); });
}

TEST(TicketFile, BothFilesAreWrittenAndNoOthers) {
  TemporaryFolder folder;
  writeTicket(sample(), folder.path("job.json"));
  EXPECT_EQ(folder.fileCount(), 2U);
  EXPECT_EQ(contentOf(folder.path("job.options")), "Duplex=DuplexNoTumble\nLeftRightMargin=-3\n");
  ASSERT_TRUE(readTicket(folder.path("job.json")));
}

TEST(TicketFile, TheOptionFileIsNamedAfterTheTicket) {
  EXPECT_EQ(optionTextPath("a/job.json"), "a/job.options");
  EXPECT_EQ(optionTextPath("job"), "job.options");
  EXPECT_EQ(optionTextPath("a.b/job.ticket"), "a.b/job.ticket.options");
  EXPECT_EQ(optionTextPath(".json"), ".json.options");
}

TEST(TicketFile, IfOneFileCannotBeWrittenTheOtherIsUnchanged) {
  TemporaryFolder folder;
  folder.write("job.json", "before");
  folder.write("job.options/in the way", "");
  failureOf([&] { writeTicket(sample(), folder.path("job.json")); });
  EXPECT_EQ(contentOf(folder.path("job.json")), "before");
  EXPECT_EQ(folder.fileCount(), 2U);
}

TEST(TicketFile, AnErrorForAMissingFolderNamesThePath) {
  TemporaryFolder folder;
  EXPECT_THAT(failureOf([&] { writeTicket(sample(), folder.path("no/job.json")); }),
              HasSubstr("no/job.json"));
}

TEST(TicketFile, TheLocationIsCheckedWithoutChangingAnything) {
  TemporaryFolder folder;
  const std::string path = folder.write("job.json", "before");
  imageposition::checkTicketPlace(path);
  EXPECT_EQ(contentOf(path), "before");
  EXPECT_FALSE(std::filesystem::exists(folder.path("job.options")));
  EXPECT_THAT(failureOf([&] { imageposition::checkTicketPlace(folder.path("none/job.json")); }),
              HasSubstr("none/job.json"));
  EXPECT_THAT(failureOf([] { imageposition::checkTicketPlace("/dev/null"); }),
              HasSubstr("regular file"));
}

TEST(TicketFile, ReplacingKeepsThePermissionsAndTheSymbolicLink) {
  TemporaryFolder folder;
  folder.write("real.json", "{}");
  chmod(folder.path("real.json").c_str(), 0640);
  ASSERT_EQ(symlink("real.json", folder.path("job.json").c_str()), 0);
  writeTicket(sample(), folder.path("job.json"));
  struct stat status {};
  ASSERT_EQ(lstat(folder.path("job.json").c_str(), &status), 0);
  EXPECT_TRUE(S_ISLNK(status.st_mode));
  ASSERT_EQ(stat(folder.path("real.json").c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 0777, 0640U);
  EXPECT_THAT(contentOf(folder.path("real.json")), HasSubstr("LeftRightMargin"));
}

TEST(TicketFile, OwnerAloneRemovesTheReadPermissionsOfOthers) {
  TemporaryFolder folder;
  const std::string path = folder.write("job.json", "{}");
  chmod(path.c_str(), 0664);
  writeTicket(sample(), path, imageposition::Readers::OwnerAlone);
  for (const std::string &file : {path, folder.path("job.options")}) {
    struct stat status {};
    ASSERT_EQ(stat(file.c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777, 0600U) << file;
  }
}

TEST(TicketFile, ConcurrentWritersLeaveCompleteFiles) {
  TemporaryFolder folder;
  const std::string path = folder.path("job.json");
  writeTicket(sample(), path);
  const pid_t other = fork();
  ASSERT_GE(other, 0);
  for (int i = 0; i < 50; i++) {
    Ticket ticket = sample();
    ticket.settings.set("Note", std::string(other == 0 ? 10000 : 1, 'x'));
    writeTicket(ticket, path);
    readTicket(path);
  }
  if (other == 0)
    _exit(0);
  int status = -1;
  waitpid(other, &status, 0);
  EXPECT_EQ(status, 0);
  EXPECT_EQ(folder.fileCount(), 2U);
}

TEST(TicketFile, ADanglingLinkOfTheUserCreatesItsTarget) {
  TemporaryFolder folder;
  ASSERT_EQ(symlink("real.json", folder.path("job.json").c_str()), 0);
  writeTicket(sample(), folder.path("job.json"));
  EXPECT_TRUE(std::filesystem::is_symlink(folder.path("job.json")));
  EXPECT_TRUE(readTicket(folder.path("real.json")));
}

TEST(TicketFile, ALinkToItselfIsRefused) {
  TemporaryFolder folder;
  ASSERT_EQ(symlink("job.json", folder.path("job.json").c_str()), 0);
  EXPECT_THAT(failureOf([&] { writeTicket(sample(), folder.path("job.json")); }),
              HasSubstr("job.json"));
}

TEST(TicketFile, AHugeFileIsRefused) {
  TemporaryFolder folder;
  const std::string path = folder.write("job.json", "{");
  std::filesystem::resize_file(path, std::uintmax_t(1) << 40); // a sparse file
  EXPECT_THAT(failureOf([&] { readTicket(path); }), HasSubstr("too large"));
}

TEST(TicketFile, ADeviceIsNotReplaced) {
  EXPECT_THAT(failureOf([] { writeTicket(sample(), "/dev/null"); }), HasSubstr("regular file"));
}

} // namespace
