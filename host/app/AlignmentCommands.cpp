#include "AlignmentCommands.hpp"

#include "Aligner.hpp"
#include "AlignerTexts.hpp"
#include "AlignmentTexts.hpp"
#include "Destinations.hpp"
#include "FileContent.hpp"
#include "FileReplacement.hpp"
#include "JobSubmission.hpp"
#include "JobTexts.hpp"
#include "Phrases.hpp"
#include "ProgramTexts.hpp"
#include "StandardOutput.hpp"
#include "Strings.hpp"

#include <cerrno>
#include <iostream>
#include <list>
#include <optional>
#include <sstream>
#include <vector>

namespace imageposition {

namespace {

/// A change of the file that failed has said why.
void require(bool isDone, const std::ostringstream &errors) {
  std::string message = errors.str();
  if (!isDone)
    throw Failure(ExitCode::Ticket, message.substr(0, message.find('\n')));
}

std::vector<SheetReading> readingsIn(const Arguments &arguments) {
  std::vector<SheetReading> readings;
  for (const std::string &word : arguments.readings) {
    const auto reading = readSheetReading(word);
    if (!reading)
      throw Failure(ExitCode::Usage, messages::badReading(word));
    readings.push_back(*reading);
  }
  return readings;
}

std::optional<Offset> creaseIn(const Arguments &arguments) {
  if (arguments.crease.empty())
    return std::nullopt;
  const auto crease = readCreaseReading(arguments.crease);
  if (!crease)
    throw Failure(ExitCode::Usage, messages::badCrease(arguments.crease));
  if (arguments.readings.empty())
    throw Failure(ExitCode::Usage, messages::kCreaseNeedsReading);
  return crease;
}

ExitCode takeReadings(const Aligner &aligner, const std::vector<SheetReading> &readings,
                      const std::optional<Offset> &crease) {
  const auto printed = Alignments::read(std::cerr).printed(aligner.key());
  const AlignmentResult result = aligner.result(readings, crease, printed);
  if (result.measurement.doubtful != 0) // the measurement before it stays
    throw Failure(ExitCode::Value, messages::readAgain(result.measurement.doubtful));
  for (const std::string &sentence : result.sentences())
    std::cout << sentence << '\n';
  if (!aligner.key().queue.empty()) {
    std::ostringstream errors;
    require(storeAlignment(aligner.measured(result), errors), errors);
    std::cout << messages::alignmentStored(aligner.settingsInWords()) << '\n';
  }
  requireOutput();
  return ExitCode::Done;
}

void writeSheets(const Descriptor &sheets, const std::string &path) try {
  FileReplacement(path, contentOfFile(sheets)).commit();
} catch (const FileTrouble &trouble) {
  throw Failure(ExitCode::Ticket, messages::fileUnwritable(path, trouble.what()));
}

/// How the readings are given once the sheets are there.
std::string nextCommand(const Arguments &arguments, const PrintJob &job) {
  std::string command = "print-dialog --align -d " + shellWord(job.queue());
  for (const std::string &option : arguments.options)
    command += " -o " + shellWord(option);
  for (int sheet = 1; sheet <= Aligner::kSheets; sheet++)
    command += " --reading AX,AY,BX,BY";
  return command;
}

void sayHowToGoOn(const Arguments &arguments, const PrintJob &job, const Aligner &aligner) {
  std::cerr << messages::readTheSheets(Aligner::kSheets, nextCommand(arguments, job)) << '\n';
  if (aligner.layout().middle) // there are rulers for the crease
    std::cerr << messages::addCrease("--crease X,Y") << '\n';
}

ExitCode printSheets(const Arguments &arguments, PrintJob &job, Aligner &aligner) {
  const Descriptor sheets = drawSheets(aligner.task());
  if (!arguments.sheetFile.empty()) {
    writeSheets(sheets, arguments.sheetFile);
  } else {
    if (job.queue().empty())
      throw Failure(ExitCode::Usage, messages::kAlignNeedsQueue);
    if (const auto submission = aligner.print(sheets, readDestinations()))
      job.report(submission->result(), std::cout, std::cerr);
  }
  if (!arguments.isDryRun && !job.queue().empty()) {
    aligner.rememberPrinted(std::cerr);
    if (!arguments.isSilent)
      sayHowToGoOn(arguments, job, aligner);
  }
  requireOutput();
  return ExitCode::Done;
}

/// Those of a queue together.
void listAlignments(const Alignments &alignments) {
  std::list<MeasuredAlignment> left(alignments.all().begin(), alignments.all().end());
  while (!left.empty()) {
    const std::string queue = left.front().key.queue;
    left.remove_if([&](const MeasuredAlignment &alignment) {
      const bool isListed = isSame(alignment.key.queue, queue);
      if (isListed)
        std::cout << alignmentLine(alignment) << '\n';
      return isListed;
    });
  }
  if (alignments.all().empty())
    std::cerr << messages::kNothingMeasured.view() << '\n';
}

Alignments alignmentsOf(const std::string &path) try {
  const auto content = contentOfFile(path);
  if (!content)
    throw FileTrouble(ENOENT);
  const auto alignments = Alignments::fromText(*content);
  if (!alignments)
    throw FileTrouble(messages::kNotAlignments);
  return *alignments;
} catch (const FileTrouble &trouble) {
  throw Failure(ExitCode::Ticket, messages::alignmentsNotImported(path, trouble.what()));
}

void importAlignments(const std::string &path) {
  const Alignments imported = alignmentsOf(path);
  std::ostringstream errors;
  require(changeAlignments(
              [&](Alignments &alignments) {
                for (const MeasuredAlignment &alignment : imported.all())
                  alignments.store(alignment);
              },
              errors),
          errors);
  std::cerr << messages::alignmentsImported(static_cast<int>(imported.all().size())) << '\n';
}

void exportAlignments(const Alignments &alignments, const std::string &path) try {
  FileReplacement(path, alignments.text()).commit();
} catch (const FileTrouble &trouble) {
  throw Failure(ExitCode::Ticket, messages::fileUnwritable(path, trouble.what()));
}

void deleteAlignments(const std::string &queue) {
  std::size_t count = 0;
  std::ostringstream errors;
  require(changeAlignments([&](Alignments &alignments) { count = alignments.removeQueue(queue); },
                           errors),
          errors);
  std::cerr << messages::alignmentsDeleted(static_cast<int>(count), queue) << '\n';
}

} // namespace

ExitCode align(const Arguments &arguments) {
  const auto readings = readingsIn(arguments);
  const auto crease = creaseIn(arguments);
  Arguments ofSheets = arguments;
  ofSheets.isBatch = true;
  PrintJob job(ofSheets, openPrinter(ofSheets));
  Aligner aligner(job);
  return readings.empty() ? printSheets(ofSheets, job, aligner)
                          : takeReadings(aligner, readings, crease);
}

ExitCode manageAlignments(const AlignmentFile &request) {
  const auto stored = [] { return Alignments::read(std::cerr); };
  if (request.isListed)
    listAlignments(stored());
  if (!request.exported.empty())
    exportAlignments(stored(), request.exported);
  if (!request.imported.empty())
    importAlignments(request.imported);
  if (!request.deleted.empty())
    deleteAlignments(request.deleted);
  requireOutput();
  return ExitCode::Done;
}

} // namespace imageposition
