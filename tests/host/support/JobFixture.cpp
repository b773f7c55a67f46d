#include "JobFixture.hpp"

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <thread>

namespace imageposition::test {

namespace {

/// Writes everything to disk immediately, so a killed server loses nothing. "asking" requires a
/// password.
constexpr char kPolicies[] =
    "LogLevel warn\nDirtyCleanInterval 0\nLimitRequestBody 202m\n"
    "<Policy asking>\n<Limit Create-Job>\nAuthType Basic\nRequire user somebody\n</Limit>\n"
    "<Limit All>\nOrder allow,deny\nAllow all\n</Limit>\n</Policy>\n";

/// The server, and the folder of its filter and the filter's output. The filter runs as another
/// user.
struct Printers {
  TemporaryFolder folder;
  PrivateCups cups{kPolicies};

  Printers() {
    namespace fs = std::filesystem;
    fs::create_directory(folder.path("printed"));
    fs::permissions(folder.path(), fs::perms(0711));
    fs::permissions(folder.path("printed"), fs::perms(0777));
    const std::string records = folder.path("printed");
    const std::string filter =
        folder.write("bin/record", "#!/bin/sh\n"
                                   "record=" +
                                       records +
                                       "/$1.1\n"
                                       "number=1\n"
                                       "while [ -e \"$record\" ]; do\n"
                                       "  number=$((number + 1))\n"
                                       "  record=${record%.*}.$number\n"
                                       "done\n"
                                       "mkdir \"$record.part\"\n"
                                       "cat ${6:+\"$6\"} | wc -c "
                                       ">\"$record.part/bytes\"\n"
                                       "env -0 >\"$record.part/environment\"\n"
                                       "printf '%s\\0' \"$@\" "
                                       ">\"$record.part/arguments\"\n"
                                       "mv \"$record.part\" \"$record\"\n");
    fs::permissions(filter, fs::perms(0755));
    for (const fs::directory_entry &sample : fs::directory_iterator(IMAGEPOSITION_SAMPLES))
      if (sample.path().extension() == ".ppd")
        writeRecordingPpd(sample.path(), filter);
    setenv("CUPS_SERVER", cups.socket().c_str(), 1);
    setenv("CUPS_SERVERROOT", cups.root().c_str(), 1);
    setenv("HOME", cups.home().c_str(), 1);
  }

  void writeRecordingPpd(const std::filesystem::path &sample, const std::string &filter) const {
    std::string ppd = contentOf(sample.string());
    const std::string original = "application/vnd.cups-postscript 0 -";
    ppd.replace(ppd.find(original), original.size(), "application/pdf 0 " + filter);
    folder.write(sample.filename().string(), ppd);
  }
};

std::unique_ptr<Printers> printers; // destroyed by the test environment, before the program ends

class PrintersEnvironment : public testing::Environment {
  void TearDown() override { printers.reset(); }
};

const auto *const kEnvironment = testing::AddGlobalTestEnvironment(new PrintersEnvironment);

std::vector<std::string> splitAtNuls(const std::string &text) {
  std::vector<std::string> parts;
  for (std::size_t start = 0; start < text.size();) {
    const std::size_t end = text.find('\0', start);
    parts.push_back(text.substr(start, end - start));
    start = end + 1;
  }
  return parts;
}

std::map<std::string, std::string> parsedOptions(const std::string &text) {
  cups_option_t *options = nullptr;
  const int count = cupsParseOptions(text.c_str(), 0, &options);
  std::map<std::string, std::string> parsed;
  for (int i = 0; i < count; i++)
    parsed[options[i].name] = options[i].value;
  cupsFreeOptions(count, options);
  return parsed;
}

std::string recordOf(int job, int document) {
  return printers->folder.path("printed/" + std::to_string(job) + "." + std::to_string(document));
}

} // namespace

bool comesTrue(const std::function<bool()> &condition) {
  const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(60);
  while (!condition()) {
    if (std::chrono::steady_clock::now() > deadline)
      return false;
    std::this_thread::sleep_for(std::chrono::milliseconds(10));
  }
  return true;
}

void JobFixture::SetUpTestSuite() {
  if (!printers)
    printers = std::make_unique<Printers>();
}

void JobFixture::SetUp() {
  for (const auto &record : std::filesystem::directory_iterator(printers->folder.path("printed")))
    std::filesystem::remove_all(record);
  ASSERT_TRUE(cups().isRunning()) << cups().log();
  addQueue("office");
}

void JobFixture::TearDown() {
  if (!cups().isRunning())
    cups().start();
  cups().run({"cancel", "-a", "-x"});
  cups().run({"lpadmin", "-x", "office"});
}

PrivateCups &JobFixture::cups() { return printers->cups; }

std::string JobFixture::command(const std::vector<std::string> &words) {
  const ProcessResult result = cups().run(words);
  EXPECT_EQ(result.status, 0) << testing::PrintToString(words) << testing::PrintToString(result);
  return result.output;
}

void JobFixture::addQueue(const std::string &name, const std::string &sample) {
  command(
      {"lpadmin", "-p", name, "-E", "-v", "file:///dev/null", "-P", printers->folder.path(sample)});
}

JobRequest JobFixture::requestFor(const std::string &queue) {
  JobRequest request;
  request.printer = queue;
  request.title = "letter";
  return request;
}

std::string JobFixture::document(std::size_t size) const {
  const std::string path = folder.write("document.pdf", "%PDF-1.4\n");
  std::filesystem::resize_file(path, size); // uses no disk space
  return path;
}

int JobFixture::printedCount() {
  int count = 0;
  for (const auto &record : std::filesystem::directory_iterator(printers->folder.path("printed")))
    count += record.path().extension() != ".part" ? 1 : 0;
  return count;
}

bool JobFixture::hasPrinted(int job, int document) {
  return std::filesystem::exists(recordOf(job, document));
}

PrintedJob JobFixture::printed(int job, int document) {
  PrintedJob result;
  EXPECT_TRUE(comesTrue([=] { return hasPrinted(job, document); })) << cups().log();
  const std::string record = recordOf(job, document);
  result.arguments = splitAtNuls(contentOf(record + "/arguments"));
  if (result.arguments.size() < 5)
    return result;
  result.optionText = result.arguments[4];
  result.options = parsedOptions(result.optionText);
  for (const std::string &entry : splitAtNuls(contentOf(record + "/environment")))
    if (const std::size_t equals = entry.find('='); equals != std::string::npos)
      result.environment[entry.substr(0, equals)] = entry.substr(equals + 1);
  result.bytes = std::stoul(contentOf(record + "/bytes"));
  return result;
}

SubmissionFailure JobFixture::refusal(const JobRequest &request, const std::string &path,
                                      const ProgressCallback &progress) {
  try {
    const SubmittedJob job = submitJob(request, {path}, progress);
    ADD_FAILURE() << "job " << job.id << " was taken";
  } catch (const SubmissionFailure &failure) {
    return failure;
  }
  return {JobProblem::Other, ExitCode::Done, ""};
}

} // namespace imageposition::test
