// A hostile CUPS: sends its responses (see AnsweringServer.hpp) to the code that lists printers,
// reads a queue's description and submits a job. Each must return a result or an error message.
#include "AnsweringServer.hpp"
#include "CheckText.hpp"
#include "Destinations.hpp"
#include "JobSubmission.hpp"
#include "MemoryFile.hpp"
#include "PrinterDescription.hpp"

#include <chrono>
#include <cstdlib>
#include <thread>

using namespace imageposition;
using namespace imageposition::fuzz;
using imageposition::test::Answer;
using imageposition::test::AnsweringServer;

// libcups leaks printers that a response has twice. The tests with sanitizers find the dialog's own
// leaks.
extern "C" const char *__lsan_default_suppressions() { return "leak:libcups.so\n"; }

// libcups retries a busy server ten times, with growing delays.
extern "C" unsigned int sleep(unsigned int) { return 0; }

namespace {

using Clock = std::chrono::steady_clock;

AnsweringServer &server() {
  static AnsweringServer known;
  return known;
}

void checkDestination(const Destination &printer, const DestinationList &list) {
  check(!printer.name.empty(), "a printer has a name");
  checkLine(printer.fullName(), "a printer's name");
  check(list.find(printer.fullName()) != nullptr, "a printer is found by its name");
  checkLine(printer.description, "a description");
  checkLine(printer.location, "a location");
  checkWords(printer.stateText, "a printer's state");
  for (int i = 0; i < printer.defaults.optionCount(); ++i)
    check(std::string(printer.defaults.options()[i].name).compare(0, 7, "marker-") != 0,
          "a job's defaults have no printer attributes");
}

void checkPrinters() {
  const DestinationList list = readDestinations(std::chrono::milliseconds(500));
  check(list.destinations.empty() != list.reason.empty(), "there are printers or a reason");
  checkLine(list.reason, "why there are no printers");
  for (const Destination &printer : list.destinations)
    checkDestination(printer, list);
}

void checkDescription() {
  try {
    const PrinterDescription printer = PrinterDescription::ofQueue("office");
    checkWords(printer.name(), "a printer's name");
  } catch (const Failure &failure) {
    check(failure.code() == ExitCode::Printer, "the error code blames the printer");
    checkWords(failure.what(), "why there is no description");
  }
}

JobRequest requestOf(bool hasCompound) {
  JobRequest request;
  request.printer = "office";
  request.title = "A document";
  request.settings.set("Duplex", "DuplexTumble");
  request.settings.set("Secret", "{Name=me Code=1234}");
  if (hasCompound)
    request.compounds = {"Secret"};
  return request;
}

void checkJob(bool hasCompound) {
  const MemoryFile document("%!PS\nshowpage\n");
  const Clock::time_point deadline = Clock::now() + std::chrono::milliseconds(500);
  int passwords = 0;
  try {
    const SubmittedJob job = submitJob(
        requestOf(hasCompound), {document.path()},
        [=](const JobProgress &) { return Clock::now() < deadline; },
        [&](const PasswordRequest &) {
          return ++passwords > 2 ? std::nullopt : std::optional(Credentials{"me", "word"});
        });
    check(job.id > 0, "a job has an ID");
    checkLine(job.note, "why a job waits");
  } catch (const SubmissionFailure &failure) {
    checkWords(failure.what(), "why a job was not sent");
  }
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int *, char ***) {
  setenv("CUPS_SERVER", server().socket().c_str(), 1);
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size) {
  const std::string lines(reinterpret_cast<const char *>(data), size);
  const std::vector<Answer> answers = imageposition::test::readAnswers(lines);
  const auto run = [&](void (*part)(bool), bool choice) {
    server().setAnswers(answers);
    std::thread(part, choice).join(); // libcups has one connection per thread
  };
  run([](bool) { checkPrinters(); }, false);
  run([](bool) { checkDescription(); }, false);
  run(checkJob, lines.find("\ncompound\n") != std::string::npos);
  return 0;
}
