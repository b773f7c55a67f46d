// Documents that applications send through the portal, however they send them.
#include "PortalFixture.hpp"

namespace {

using namespace imageposition::test;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

const char *const kDocument = IMAGEPOSITION_SAMPLES "/two-sided.pdf";

class PortalDocument : public PortalFixture, public testing::WithParamInterface<const char *> {};

TEST_P(PortalDocument, IsPrintedAsAWhole) {
  const auto application = session->application({"prepare", "print", GetParam(), kDocument});
  window().press("Return");
  EXPECT_THAT(application->wait().output, testing::EndsWith("asked\nresponse 0\n"));
  const auto jobs = newJobs();
  ASSERT_THAT(jobs, SizeIs(1));
  const std::string printed = kept->contentOf(jobs.front());
  EXPECT_THAT(printed, HasSubstr("%PDF-"));
  EXPECT_THAT(printed, HasSubstr("%%EOF"));
}

INSTANTIATE_TEST_SUITE_P(Kinds, PortalDocument,
                         testing::Values("file", "written", "sealed", "pipe"));

class UnusableDocument : public PortalDocument {};

TEST_P(UnusableDocument, IsRefusedWithoutAQuestion) {
  const auto application = session->application({"print", GetParam(), kDocument});
  EXPECT_THAT(application->wait().output, HasSubstr("response 2"));
  EXPECT_THAT(session->dialogs(), IsEmpty());
  EXPECT_THAT(newJobs(), IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(Kinds, UnusableDocument, testing::Values("empty", "device", "writeonly"));

class TruncatedDocument : public PortalFixture {};

TEST_F(TruncatedDocument, ComesBackToTheUser) {
  TemporaryFolder folder;
  const std::string whole = contentOf(kDocument);
  const std::string cut = folder.write("cut.pdf", whole.substr(0, whole.size() / 2));
  const auto application = session->application({"prepare", "print", "written", cut});
  const pid_t first = session->dialog();
  {
    PrintWindow dialog = window();
    dialog.enter("Left-right offset (\xC3\x97 0.1 mm)", "50");
    dialog.press("Return");
  }
  windowAfter(first).press("Escape");
  EXPECT_THAT(application->wait().output, HasSubstr("response 1"));
  EXPECT_THAT(newJobs(), IsEmpty());
}

} // namespace
