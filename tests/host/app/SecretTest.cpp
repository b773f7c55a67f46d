// Options whose names mark their values as secret in IPP or CUPS, in everything that print-dialog
// writes.
#include "DialogFixture.hpp"
#include "OfficeQueue.hpp"

#include <sys/stat.h>

namespace {

using namespace imageposition::test;
using testing::HasSubstr;
using testing::Not;

class Secret : public WithOfficeQueue<DialogFixture> {
protected:
  ProcessResult batchOn(const std::string &queue, const Words &words) const {
    Words all{"--batch", "-d", queue};
    all.insert(all.end(), words.begin(), words.end());
    return dialog(all, cups->environment());
  }
  ProcessResult dryRun(const std::string &queue, const Words &words = {}) const {
    Words all{"--dry-run", sample("two-sided.pdf")};
    all.insert(all.end(), words.begin(), words.end());
    return batchOn(queue, all);
  }
};

TEST_F(Secret, IsHiddenInADryRun) {
  for (const char *option :
       {"auth-info=mary,hunter2", "AUTH-Info=mary,hunter2", "job-password=hunter2",
        "job-password-encryption=hunter2", "document-password=hunter2",
        "document-access={access-password=hunter2}", "destination-accesses={access-pin=hunter2}"}) {
    const auto result = dryRun("office", {"-o", option});
    EXPECT_EQ(result.status, kDone) << testing::PrintToString(result);
    EXPECT_THAT(result.output, HasSubstr("= ••••\n")) << option;
    EXPECT_THAT(result.output + result.errors, Not(HasSubstr("hunter2"))) << option;
  }
  EXPECT_THAT(dryRun("office", {"-o", "job-account-id=hunter2"}).output, HasSubstr("= hunter2"));
}

TEST_F(Secret, IsHiddenUnderNamesThatPrinterMakersUse) {
  for (const char *name : {"MVPassword", "printer-password", "PASSWORD", "ReleasePasscode",
                           "JobPIN", "jobPin", "release-pin", "JOB_PIN", "pin"})
    EXPECT_THAT(dryRun("office", {"-o", std::string(name) + "=hunter2"}).output,
                Not(HasSubstr("hunter2")))
        << name;
  for (const char *name : {"Spin", "StapleSpin", "UPIN", "PasswordLength", "PinPlace"})
    EXPECT_THAT(dryRun("office", {"-o", std::string(name) + "=hunter2"}).output,
                HasSubstr("= hunter2"))
        << name;
}

TEST_F(Secret, InTheDefaultsOfAQueueOrInstanceIsHiddenInADryRun) {
  cups->run({"lpoptions", "-p", "office", "-o", "job-password=hunter2"});
  cups->run({"lpoptions", "-p", "office/private", "-o", "auth-info=mary,hunter2"});
  for (const char *queue : {"office", "office/private"}) {
    const auto result = dryRun(queue);
    EXPECT_THAT(result.output, HasSubstr("= ••••\n")) << queue;
    EXPECT_THAT(result.output + result.errors, Not(HasSubstr("hunter2"))) << queue;
  }
  cups->run({"lpoptions", "-x", "office/private"});
  cups->run({"lpoptions", "-x", "office"});
}

TEST_F(Secret, InATicketIsReadableOnlyByTheOwner) {
  const std::string ticket = folder.write("job.json", "{\"settings\": {}}");
  chmod(ticket.c_str(), 0644);
  const auto result = batchOn("office", {"--ticket", ticket, "-o", "Auth-Info=mary,hunter2", "-s"});
  ASSERT_EQ(result.status, kDone) << testing::PrintToString(result);
  for (const std::string &file : {ticket, folder.path("job.options")}) {
    EXPECT_THAT(contentOf(file), HasSubstr("hunter2"));
    struct stat status {};
    ASSERT_EQ(stat(file.c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777, 0600U) << file;
  }
}

TEST_F(Secret, IsNotRepeatedInAnErrorAboutTheWordBesideIt) {
  const auto result = batchOn("office", {"-o", "auth-info=mary,hunter2 caf\u00e9=1"});
  EXPECT_EQ(result.status, kUsage);
  EXPECT_THAT(result.errors, HasSubstr("caf\u00e9"));
  EXPECT_THAT(result.errors, Not(HasSubstr("hunter2")));
}

TEST_F(Secret, IsNotRepeatedInAnErrorAboutATruncatedTicket) {
  const auto result = batchOn(
      "office", {"--ticket", folder.write("job.json", R"({"settings":{"auth-info":"hunter2)")});
  EXPECT_EQ(result.status, kTicket);
  EXPECT_THAT(result.errors, HasSubstr("line 1, column 34"));
  EXPECT_THAT(result.errors, Not(HasSubstr("hunter2")));
}

} // namespace
