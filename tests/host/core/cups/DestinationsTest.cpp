#include "Destinations.hpp"

#include "JobFixture.hpp"
#include "ProcessLimits.hpp"

#include <csignal>
#include <cstdlib>

#include <chrono>
#include <future>
#include <memory>

namespace {

using namespace imageposition;
using namespace imageposition::test;
using testing::AllOf;
using testing::Contains;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

class PrinterList : public JobFixture {
protected:
  void SetUp() override {
    JobFixture::SetUp();
    command({"lpadmin", "-p", "office", "-D", "Big one", "-L", "First floor"});
  }
  void TearDown() override {
    cups().send(SIGCONT);
    JobFixture::TearDown();
  }
  static Destination office() {
    const DestinationList list = readDestinations();
    EXPECT_EQ(list.reason, "");
    const Destination *const found = list.find("office");
    EXPECT_NE(found, nullptr);
    return found != nullptr ? *found : Destination{};
  }
};

TEST_F(PrinterList, HasTheLocationAndStateOfAPrinter) {
  const Destination printer = office();
  EXPECT_EQ(printer.fullName(), "office");
  EXPECT_EQ(printer.description, "Big one");
  EXPECT_EQ(printer.location, "First floor");
  EXPECT_THAT(printer.uri, HasSubstr("/printers/office"));
  EXPECT_EQ(printer.state, DestinationState::Idle);
  EXPECT_EQ(printer.stateText, "Ready");
  EXPECT_TRUE(printer.acceptsJobs);
}

TEST_F(PrinterList, HasDefaultJobOptionsWithoutAttributesOfThePrinter) {
  command({"lpadmin", "-p", "office", "-o", "number-up-default=2"});
  const Destination printer = office();
  EXPECT_STREQ(printer.defaults.get("number-up"), "2");
  for (int i = 0; i < printer.defaults.optionCount(); i++)
    EXPECT_THAT(
        printer.defaults.options()[i].name,
        AllOf(Not(StartsWith("printer-")), Not(StartsWith("marker-")), Not(StartsWith("device-"))));
}

TEST_F(PrinterList, DescribesAPrinterThatIsStoppedAndRefusesJobs) {
  command({"cupsdisable", "office"});
  EXPECT_EQ(office().state, DestinationState::Stopped);
  EXPECT_EQ(office().stateText, "Paused");
  command({"cupsreject", "office"});
  EXPECT_FALSE(office().acceptsJobs);
  EXPECT_EQ(office().stateText, "Not accepting jobs (paused)");
}

TEST_F(PrinterList, ListsInstancesAfterTheirQueueWithSeparateDefaults) {
  command({"lpoptions", "-p", "office/single", "-o", "Duplex=None"});
  const DestinationList list = readDestinations();
  command({"lpoptions", "-x", "office/single"});
  ASSERT_EQ(list.destinations.size(), 2u);
  EXPECT_EQ(list.destinations[0].fullName(), "office");
  EXPECT_EQ(list.destinations[0].defaults.get("Duplex"), nullptr);
  EXPECT_EQ(list.destinations[1].fullName(), "office/single");
  EXPECT_STREQ(list.destinations[1].defaults.get("Duplex"), "None");
  EXPECT_EQ(list.destinations[1].location, "First floor");
  EXPECT_NE(list.find("OFFICE/Single"), nullptr);
}

TEST_F(PrinterList, MarksTheDefaultPrinter) {
  addQueue("attic");
  command({"lpadmin", "-d", "office"});
  const DestinationList list = readDestinations();
  command({"lpadmin", "-x", "attic"});
  ASSERT_EQ(list.destinations.size(), 2u);
  EXPECT_TRUE(list.find("office")->isDefault);
  EXPECT_FALSE(list.find("attic")->isDefault);
}

TEST_F(PrinterList, SaysWhatToDoIfThereAreNoPrinters) {
  command({"lpadmin", "-x", "office"});
  const DestinationList list = readDestinations();
  EXPECT_TRUE(list.destinations.empty());
  EXPECT_THAT(list.reason, HasSubstr("CUPS has no printers"));
}

TEST_F(PrinterList, IsEmptyAndSaysWhatToDoWithoutCups) {
  cups().stop();
  const DestinationList list = readDestinations();
  EXPECT_TRUE(list.destinations.empty());
  EXPECT_THAT(list.reason, AllOf(HasSubstr(cups().socket()), HasSubstr("systemctl start cups")));
}

TEST_F(PrinterList, HasTheAdministratorsWordsAndTheNumberOfJobs) {
  EXPECT_EQ(office().remarks, "");
  command({"cupsdisable", "-r", "Out for lunch", "office"});
  const std::string document = folder.write("a.txt", "text");
  command({"lp", "-d", "office", document});
  command({"lp", "-d", "office", document});
  EXPECT_EQ(office().stateText, "Paused");
  EXPECT_EQ(office().remarks, "Out for lunch · 2 jobs waiting");
  command({"cancel", "-a", "office"});
  command({"cupsenable", "office"});
  EXPECT_EQ(office().remarks, "");
}

TEST_F(PrinterList, HasTheCoverPagesOfEachPrinterAndInstance) {
  EXPECT_THAT(office().coverPages, AllOf(Contains("none"), Contains("standard")));
  command({"lpoptions", "-p", "office/single", "-o", "Duplex=None"});
  const DestinationList list = readDestinations();
  command({"lpoptions", "-x", "office/single"});
  EXPECT_EQ(list.find("office/single")->coverPages, office().coverPages);
}

TEST_F(PrinterList, GivesUpIfCupsHangs) {
  cups().send(SIGSTOP);
  const auto start = std::chrono::steady_clock::now();
  const DestinationList list = readDestinations(std::chrono::milliseconds(300));
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(3));
  EXPECT_TRUE(list.destinations.empty());
  EXPECT_THAT(list.reason, HasSubstr("is not responding"));
}

TEST_F(PrinterList, RefreshesWithoutWaiting) {
  Destinations printers;
  cups().send(SIGSTOP);
  const auto start = std::chrono::steady_clock::now();
  printers.refresh();
  EXPECT_FALSE(printers.takeAnswer());
  EXPECT_TRUE(printers.isRefreshing());
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::milliseconds(200));
  cups().send(SIGCONT);
  ASSERT_TRUE(comesTrue([&] { return printers.takeAnswer(); }));
  EXPECT_NE(printers.list().find("office"), nullptr);
  EXPECT_FALSE(printers.isRefreshing());
}

TEST_F(PrinterList, ReportsWhetherItChanged) {
  Destinations printers;
  printers.refresh();
  ASSERT_TRUE(comesTrue([&] { return printers.takeAnswer(); }));
  printers.refresh();
  bool isNew = false;
  ASSERT_TRUE(comesTrue([&] {
    isNew = printers.takeAnswer() || isNew;
    return !printers.isRefreshing();
  }));
  EXPECT_FALSE(isNew);
  command({"cupsdisable", "office"});
  printers.refresh();
  ASSERT_TRUE(comesTrue([&] { return printers.takeAnswer(); }));
  EXPECT_EQ(printers.list().find("office")->stateText, "Paused");
}

TEST_F(PrinterList, CallsBackOnceTheResponseCanBeTaken) {
  Destinations printers;
  std::promise<void> answered;
  printers.refresh([&] { answered.set_value(); });
  ASSERT_EQ(answered.get_future().wait_for(std::chrono::seconds(30)), std::future_status::ready);
  EXPECT_TRUE(printers.takeAnswer());
  EXPECT_NE(printers.list().find("office"), nullptr);
}

TEST_F(PrinterList, CallsBackEvenAfterTheListIsDestroyed) {
  cups().send(SIGSTOP);
  auto answered = std::make_shared<std::promise<void>>();
  {
    Destinations printers;
    printers.refresh([answered] { answered->set_value(); });
  }
  cups().send(SIGCONT);
  EXPECT_EQ(answered->get_future().wait_for(std::chrono::seconds(30)), std::future_status::ready);
}

TEST_F(PrinterList, CanBeDestroyedDuringAQuery) {
  cups().send(SIGSTOP);
  const auto start = std::chrono::steady_clock::now();
  {
    Destinations printers;
    printers.refresh({}, std::chrono::milliseconds(500));
  }
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::milliseconds(200));
}

TEST_F(PrinterList, QueriesCupsAgainOnceAThreadCanBeCreated) {
  const auto hasAnswered = [] {
    Destinations printers;
    forbidThreads();
    printers.refresh();
    allowThreads();
    printers.refresh();
    return comesTrue([&] { return printers.takeAnswer(); });
  };
  EXPECT_EXIT(std::_Exit(hasAnswered() ? 0 : 1), testing::ExitedWithCode(0), "");
}

TEST(PrinterStates, AreInWords) {
  constexpr const char *kIdle = "3", *kPrinting = "4", *kStopped = "5";
  const struct {
    const char *state;
    const char *reasons;
    const char *accepts;
    const char *words;
  } kRows[] = {
      {kIdle, "none", "true", "Ready"},
      {kIdle, "toner-low-warning", "true", "Ready (toner low)"},
      {kIdle, "none", "false", "Not accepting jobs"},
      {kIdle, "toner-low-warning", "false", "Not accepting jobs (toner low)"},
      {kPrinting, "media-low-report", "true", "Printing (paper low)"},
      {kStopped, "none", "true", "Stopped"},
      {kStopped, "media-jam-error", "true", "Stopped (paper jam)"},
      {kStopped, "paused", "true", "Paused"},
      {kStopped, "media-empty-error,paused", "true", "Paused (out of paper)"},
      {kStopped, "paused", "false", "Not accepting jobs (paused)"},
      // It may print nothing.
      {kIdle, "media-empty-error", "true", "Needs attention (out of paper)"},
      {kIdle, "cups-missing-filter-warning", "true",
       "Needs attention (part of the driver is missing)"},
      {kIdle, "cups-insecure-filter-warning", "true",
       "Needs attention (part of the driver has unsafe permissions)"},
  };
  for (const auto &row : kRows) {
    cups_dest_t dest{};
    char name[] = "office";
    dest.name = name;
    for (const auto &[option, value] :
         {std::pair("printer-state", row.state), std::pair("printer-state-reasons", row.reasons),
          std::pair("printer-is-accepting-jobs", row.accepts)})
      dest.num_options = cupsAddOption(option, value, dest.num_options, &dest.options);
    EXPECT_EQ(toDestination(dest).stateText, row.words) << row.state << " " << row.reasons;
    cupsFreeOptions(dest.num_options, dest.options);
  }
}

TEST(StateReasons, AreTranslated) {
  const struct {
    const char *reasons;
    const char *words;
  } kRows[] = {{"none", ""},
               {"", ""},
               {"media-empty-error", "out of paper"},
               {"media-empty,toner-low-warning", "out of paper, toner low"},
               {"door-open-report,other", "door open"},
               {"cover-open,interlock-open", "cover open"},
               {"maker-special-warning", "maker-special"}};
  for (const auto &row : kRows)
    EXPECT_EQ(stateReasonsInWords(row.reasons), row.words) << row.reasons;
}

} // namespace
