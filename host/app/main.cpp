#include "AlignmentCommands.hpp"
#include "CommandLine.hpp"
#include "Destinations.hpp"
#include "DocumentExaminer.hpp"
#include "FailureReport.hpp"
#include "GnustepModule.hpp"
#include "JobSubmission.hpp"
#include "Language.hpp"
#include "OptionConflicts.hpp"
#include "OptionList.hpp"
#include "PasswordQuestion.hpp"
#include "Phrases.hpp"
#include "PrintJob.hpp"
#include "ProgramTexts.hpp"
#include "StandardDescriptors.hpp"
#include "StandardOutput.hpp"
#include "StartTexts.hpp"
#include "VisibleText.hpp"

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <unistd.h>
#include <utility>

namespace imageposition {

namespace {

void checkDocument(const std::string &path) {
  std::error_code ignored;
  const bool isFolder = std::filesystem::is_directory(path, ignored);
  if (isFolder || access(path.c_str(), R_OK) != 0)
    throw Failure(ExitCode::Usage,
                  messages::documentUnreadable(path, systemReason(isFolder ? EISDIR : errno)));
}

/// The window opens nevertheless, and says what is wrong with the document.
bool isWindowWanted(const Arguments &arguments) {
  const char *const display = std::getenv("DISPLAY");
  return !arguments.isBatch && !arguments.isListingOptions && display != nullptr &&
         *display != '\0';
}

/// Uses environment variables because libcups's setters affect only the calling thread.
void setEnvironment(const Arguments &arguments) {
  const std::pair<const char *, std::string> variables[] = {
      {"CUPS_SERVER", arguments.server},
      {"CUPS_USER", arguments.user},
      {"CUPS_ENCRYPTION", arguments.isEncrypted ? "Required" : ""},
      {"PRINT_DIALOG_APPEARANCE", arguments.appearance},
      {"PRINT_DIALOG_TEXT_SCALE", arguments.textScale}};
  for (const auto &[name, value] : variables)
    if (!value.empty())
      setenv(name, value.c_str(), 1);
}

ExitCode listOptions(const Arguments &arguments) {
  PrintJob job(arguments, openPrinter(arguments));
  std::cout << writeOptionList(PrinterOptions(job.printer(), job.settings()).all());
  constexpr std::size_t kMostConflicts = 20;
  OptionConflicts conflicts(job.printer(), job.settings());
  for (const std::string &sentence : conflicts.sentences(kMostConflicts))
    std::cerr << messages::kProgram << sentence << '\n';
  requireOutput();
  return ExitCode::Done;
}

/// As the module does for its jobs.
template <typename Print> ExitCode runPlainly(const Arguments &arguments, Print &&print) {
  std::signal(SIGPIPE, SIG_IGN); // a closed pipe must not kill the program during a job
  const ExitCode code = exitCodeOf([&] { return print(arguments); }, std::cerr);
  endSubmissions();
  endIfCallsAreRunning(code);
  return code;
}

/// The panels saved their values when the job was prepared.
ExitCode printPrepared(const Arguments &arguments) {
  PrintJob job(arguments, openPrinter(arguments));
  if (const auto submission = job.print(readDestinations(), ""))
    job.report(submission->result(), std::cout, std::cerr);
  requireOutputUnlessSent(job);
  return ExitCode::Done;
}

bool isPreparedAlready(const Arguments &arguments) {
  return arguments.isBatch && !arguments.prepared.empty() && !arguments.batch.needsPanel();
}

/// Cleans the environment before GNUstep is loaded and reads it.
ExitCode runOnGnustep(const Arguments &arguments) {
  removeVariablesThatAreNotUtf8();
  removeForgottenDefaultsLock();
  if (const auto part = removeGnustepVariables())
    std::cerr << messages::kProgram << messages::configurationUntrusted(part->path) << '\n';
  DocumentExaminer examiner;
  if (isWindowWanted(arguments) && arguments.documents.size() == 1 && arguments.documents[0] != "-")
    examiner.examine(arguments.documents[0]); // a long document takes as long as loading GNUstep
  return loadGnustepModule()(arguments, examiner);
}

ExitCode run(const std::vector<std::string> &words) {
  const auto request = readCommandLine(words);
  if (const auto *answer = std::get_if<Answer>(&request)) {
    std::cout << answer->text;
    requireOutput();
    return ExitCode::Done;
  }
  const Arguments &arguments = std::get<Arguments>(request);
  requireUtf8Arguments(words, arguments.documents);
  setEnvironment(arguments);
  const TerminalWarning warning(std::cerr);
  if (!isWindowWanted(arguments))
    for (const std::string &path : arguments.documents)
      if (path != "-")
        checkDocument(path);
  if (arguments.alignments.isWanted())
    return manageAlignments(arguments.alignments);
  if (arguments.isAligning)
    return runPlainly(arguments, align);
  if (isPreparedAlready(arguments))
    return runPlainly(arguments, printPrepared);
  return arguments.isListingOptions ? listOptions(arguments) : runOnGnustep(arguments);
}

ExitCode runProgram(int argc, char **argv) {
  const std::string catalogues = catalogueFolder();
  speak(chosenLanguage(wantedLanguages(std::getenv), catalogues), catalogues);
  const std::vector<std::string> words(argv + 1, argv + argc);
  hideArgumentsThatAreNotUtf8(argv);
  return run(words);
}

} // namespace

} // namespace imageposition

int main(int argc, char **argv) {
  imageposition::keepStandardDescriptors();
  const imageposition::VisibleStream output(std::cout), errors(std::cerr);
  // A write beyond the file-size limit then fails instead of killing the program. Child processes
  // do not inherit the handler.
  std::signal(SIGXFSZ, [](int) {});
  return static_cast<int>(
      imageposition::exitCodeOf([=] { return imageposition::runProgram(argc, argv); }, std::cerr));
}
