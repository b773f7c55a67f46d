// Third-party printer descriptions, from Debian packages, with and without the attribute that
// enables the panel.
#include "DialogFixture.hpp"

#include <cups/ppd.h>

#include <algorithm>
#include <deque>
#include <map>
#include <memory>
#include <random>
#include <set>
#include <sstream>

namespace {

using namespace imageposition::test;
using testing::AnyOf;
using testing::HasSubstr;
using testing::IsEmpty;

namespace fs = std::filesystem;

constexpr std::size_t kFewest = 200;
constexpr const char *kFromArchive = "190";
constexpr const char *kArchive = "/usr/lib/cups/driver/foomatic-db-compressed-ppds";

struct ForeignPrinter {
  std::string name;
  std::string text;
};

std::vector<ForeignPrinter> filesIn(const std::string &folder) {
  std::vector<ForeignPrinter> printers;
  std::error_code failed;
  for (fs::recursive_directory_iterator entry(folder, failed), end; !failed && entry != end;
       entry.increment(failed))
    if (entry->path().extension() == ".ppd")
      printers.push_back({entry->path().string(), contentOf(entry->path().string())});
  return printers;
}

/// Evenly spread over the archive, to include many makers and drivers.
std::vector<ForeignPrinter> fromArchive() {
  const TemporaryFolder folder;
  runProcess({"python3", UNPACK_PPDS, kArchive, folder.path("ppds"), kFromArchive});
  return filesIn(folder.path("ppds"));
}

struct BatchOnPrinter {
  std::string name;
  std::string ppd; ///< The content of the PPD.
  std::vector<std::string> words;
};

class ForeignPrinters : public DialogFixture {
protected:
  static void SetUpTestSuite() {
    printers = filesIn("/usr/share/ppd");
    const auto more = fromArchive();
    printers.insert(printers.end(), more.begin(), more.end());
  }
  void SetUp() override {
    ASSERT_GE(printers.size(), kFewest)
        << "Install printer descriptions; on Debian: cups-filters hp-ppd "
           "foomatic-db-compressed-ppds";
  }

  /// Removes an existing attribute of that name, which would take precedence.
  static std::string supporting(const ForeignPrinter &printer) {
    return printer.text + "\n*AdjustDuplexPositionSupport: \"true\"\n";
  }

  /// The option that turns two-sided printing on; none if the printer lacks it.
  static Words turningTwoSidedOn(const std::string &path) {
    Words words;
    ppd_file_t *const ppd = ppdOpenFile(path.c_str());
    ppd_option_t *const duplex = ppd != nullptr ? ppdFindOption(ppd, "Duplex") : nullptr;
    for (int i = 0; duplex != nullptr && i < duplex->num_choices && words.empty(); i++)
      if (duplex->choices[i].choice != std::string("None"))
        words = {"-o", std::string("Duplex=") + duplex->choices[i].choice};
    if (ppd != nullptr)
      ppdClose(ppd);
    return words;
  }

  /// Runs two at a time. Calls `check` with each result, in order.
  template <typename Check>
  void batchOnEach(const std::vector<BatchOnPrinter> &runs, Check &&check) const {
    std::deque<std::unique_ptr<Process>> running;
    std::size_t next = 0;
    for (const BatchOnPrinter &run : runs) {
      for (; next < runs.size() && running.size() < 2; next++) {
        Words words{PRINT_DIALOG, "--batch", "--ppd",
                    folder.write(std::to_string(next) + ".ppd", runs[next].ppd)};
        words.insert(words.end(), runs[next].words.begin(), runs[next].words.end());
        running.push_back(std::make_unique<Process>(words));
      }
      SCOPED_TRACE(run.name);
      check(running.front()->wait());
      running.pop_front();
    }
  }

  static std::vector<ForeignPrinter> printers;
};

std::vector<ForeignPrinter> ForeignPrinters::printers;

TEST_F(ForeignPrinters, WithoutTheAttributeThereIsNoPanel) {
  std::vector<BatchOnPrinter> runs;
  for (const ForeignPrinter &printer : printers) {
    ASSERT_THAT(printer.text, testing::Not(HasSubstr("AdjustDuplexPositionSupport")));
    runs.push_back({printer.name, printer.text, {"--summary"}});
  }
  batchOnEach(runs, [](const ProcessResult &result) {
    EXPECT_EQ(result.status, kNoPanel) << testing::PrintToString(result);
    EXPECT_THAT(result.errors, HasSubstr("No plug-in has a panel for"));
    EXPECT_THAT(result.output, IsEmpty());
  });
}

TEST_F(ForeignPrinters, WithTheAttributeTheValuesReachTheJob) {
  std::vector<BatchOnPrinter> runs;
  for (const ForeignPrinter &printer : printers) {
    Words words{"--set", "FrontLRM=-3", "--set", "BackTBM=12", "--back", "on"};
    const std::string path = folder.write("printer.ppd", supporting(printer));
    for (const std::string &word : turningTwoSidedOn(path))
      words.push_back(word);
    runs.push_back({printer.name, supporting(printer), words});
  }
  batchOnEach(runs, [](const ProcessResult &result) {
    EXPECT_EQ(result.status, kDone) << testing::PrintToString(result);
    auto settings = settingsIn(result.output);
    settings.erase("Duplex");
    EXPECT_EQ(settings, offsets("-3", "0", "0", "12", "True"));
    // Some have no duplex unit installed.
    EXPECT_THAT(result.errors, AnyOf(IsEmpty(), HasSubstr("The printer cannot combine")));
  });
}

/// A job's settings, and CUPS's view of them on a printer.
struct DrawnJob {
  std::vector<std::string> words;
  std::set<std::string> lines; ///< One for each option and choice.
  bool conflicts = false;
};

/// The form of a custom value.
std::string enteredForm(ppd_coption_t &option) {
  if (option.keyword == std::string("PageSize"))
    return "Custom.WIDTHxHEIGHT";
  std::multimap<int, std::string> parts; // by their order in the driver's code
  for (ppd_cparam_t *part = ppdFirstCustomParam(&option); part; part = ppdNextCustomParam(&option))
    parts.emplace(part->order, part->name);
  if (parts.size() < 2)
    return "Custom.VALUE";
  std::string form;
  for (const auto &[order, name] : parts)
    form += " " + name + "=VALUE";
  return "{" + form.substr(1) + "}";
}

/// A random choice of each option, and both sides of a constraint if there is one. Reproducible.
DrawnJob drawJob(const std::string &path, std::mt19937 &random) {
  DrawnJob job;
  ppd_file_t *const ppd = ppdOpenFile(path.c_str());
  ppdMarkDefaults(ppd);
  std::map<std::string, std::string> drawn;
  for (ppd_option_t *option = ppdFirstOption(ppd); option != nullptr; option = ppdNextOption(ppd)) {
    job.lines.insert(option->keyword);
    for (int i = 0; i < option->num_choices; i++) {
      const std::string choice = option->choices[i].choice;
      ppd_coption_t *const custom =
          choice == "Custom" ? ppdFindCustomOption(ppd, option->keyword) : nullptr;
      job.lines.insert(option->keyword + (" " + (custom ? enteredForm(*custom) : choice)));
      if (choice != "Custom" && random() % (i + 1) == 0)
        drawn[option->keyword] = choice;
    }
  }
  if (ppd->num_consts > 0) {
    const ppd_const_t &constraint = ppd->consts[random() % ppd->num_consts];
    if (*constraint.choice1 != '\0')
      drawn[constraint.option1] = constraint.choice1;
    if (*constraint.choice2 != '\0')
      drawn[constraint.option2] = constraint.choice2;
  }
  cups_option_t *options = nullptr;
  int count = 0;
  for (const auto &[keyword, choice] : drawn) {
    count = cupsAddOption(keyword.c_str(), choice.c_str(), count, &options);
    job.words.insert(job.words.end(), {"-o", keyword + "=" + choice});
  }
  cupsMarkOptions(ppd, count, options);
  job.conflicts = ppdConflicts(ppd) != 0;
  cupsFreeOptions(count, options);
  ppdClose(ppd);
  return job;
}

/// "option" and "option choice" for each line of a list.
std::set<std::string> namedIn(const std::string &list) {
  std::istringstream lines(list);
  std::set<std::string> named;
  std::string option;
  for (std::string line; std::getline(lines, line);) {
    const bool isChoice = line.compare(0, 4, "    ") == 0 || line.compare(0, 4, "  * ") == 0;
    const std::size_t begin = isChoice ? 4 : 2;
    const std::string keyword = line.substr(begin, line.find(": ") - begin);
    if (isChoice)
      named.insert(option + " " + keyword);
    else if (line.compare(0, 2, "  ") == 0)
      named.insert(option = keyword);
  }
  return named;
}

TEST_F(ForeignPrinters, EveryOptionAndChoiceIsListedAndConflictsAreThoseOfCups) {
  std::mt19937 random(20);
  std::vector<BatchOnPrinter> runs;
  std::deque<DrawnJob> jobs;
  for (const ForeignPrinter &printer : printers) {
    jobs.push_back(drawJob(folder.write("printer.ppd", printer.text), random));
    Words words{"--list-options"};
    words.insert(words.end(), jobs.back().words.begin(), jobs.back().words.end());
    runs.push_back({printer.name, printer.text, words});
  }
  const auto conflicting = [](const DrawnJob &job) { return job.conflicts; };
  EXPECT_GE(std::count_if(jobs.begin(), jobs.end(), conflicting), 5);
  batchOnEach(runs, [&](const ProcessResult &result) {
    EXPECT_EQ(result.status, kDone) << testing::PrintToString(result);
    const std::set<std::string> named = namedIn(result.output);
    std::vector<std::string> differing;
    std::set_symmetric_difference(named.begin(), named.end(), jobs.front().lines.begin(),
                                  jobs.front().lines.end(), std::back_inserter(differing));
    EXPECT_THAT(differing, IsEmpty());
    EXPECT_EQ(result.errors.find("cannot combine") != std::string::npos ||
                  result.errors.find("cannot do") != std::string::npos,
              jobs.front().conflicts)
        << result.errors;
    jobs.pop_front();
  });
}

TEST_F(ForeignPrinters, WithTwoSidedPrintingOffThePanelSaysSo) {
  std::vector<BatchOnPrinter> runs;
  for (const ForeignPrinter &printer : printers) {
    const std::string path = folder.write("printer.ppd", supporting(printer));
    if (!turningTwoSidedOn(path).empty() && printer.text.find("*Duplex None") != std::string::npos)
      runs.push_back(
          {printer.name, supporting(printer), {"-o", "Duplex=None", "--set", "FrontLRM=-3"}});
  }
  EXPECT_GE(runs.size(), 50U);
  batchOnEach(runs, [](const ProcessResult &result) {
    EXPECT_EQ(result.status, kValue) << testing::PrintToString(result);
  });
}

} // namespace
