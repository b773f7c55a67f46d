#include "Aligner.hpp"

#include "AlignerTexts.hpp"
#include "AlignmentTexts.hpp"
#include "Availability.hpp"
#include "ChildProgram.hpp"
#include "ExitCode.hpp"
#include "JobSettings.hpp"
#include "JobSplit.hpp"
#include "LengthUnit.hpp"
#include "MeasureTexts.hpp"
#include "Phrases.hpp"
#include "ProgramFolder.hpp"
#include "ShiftTexts.hpp"
#include "TemporaryData.hpp"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <system_error>
#include <unistd.h>

namespace imageposition {

namespace {

constexpr std::chrono::seconds kPatience{30}; // when fontconfig makes its cache

/// Runs the program that draws; returns whether it has succeeded.
bool run(const std::string &program, const Descriptor &input, const Descriptor &output) try {
  const pid_t process =
      startProgram({{program}, std::nullopt, {input.get(), output.get(), STDERR_FILENO}});
  return waitForProgram(process, kPatience);
} catch (const std::system_error &) {
  return false;
}

std::string choiceText(ppd_file_t *ppd, const char *option) {
  const ppd_choice_t *const choice = ppdFindMarkedChoice(ppd, option);
  return choice == nullptr ? "" : choice->text[0] != '\0' ? choice->text : choice->choice;
}

template <typename Texts> std::vector<std::string> translated(const Texts &texts) {
  return {texts.begin(), texts.end()};
}

/// Tenths of a millimetre, to the hundredth.
std::string lengthInWords(double tenths) {
  constexpr int kDecimals = 2;
  return messages::inMillimetres(numberInWords(plainNumber(tenths / 10, kDecimals)));
}

/// Empty for none.
std::string directionsOf(double right, double down) {
  std::vector<std::string> parts;
  if (right != 0)
    parts.push_back(
        (right > 0 ? messages::toTheRight : messages::toTheLeft)(lengthInWords(std::abs(right))));
  if (down != 0)
    parts.push_back(
        (down > 0 ? messages::downwards : messages::upwards)(lengthInWords(std::abs(down))));
  return messages::inWords(parts);
}

/// Not more than the file of measured offsets can have. `ppd` has the options.
TenthMillimetre largestOffsetOf(ppd_file_t *ppd) {
  TenthMillimetre most = kLargestOffset;
  for (const std::string &name : offsetOptions()) {
    ppd_coption_t *const option = ppdFindCustomOption(ppd, name.c_str());
    const ppd_cparam_t *const number = option != nullptr ? ppdFirstCustomParam(option) : nullptr;
    if (number == nullptr || number->type != PPD_CUSTOM_INT)
      continue;
    const std::int64_t least = number->minimum.custom_int, largest = number->maximum.custom_int;
    most.count = std::clamp<std::int64_t>(std::min(-least, largest), 0, most.count);
  }
  return most;
}

std::string numberOf(double number, int decimals) {
  return numberInWords(plainNumber(number, decimals));
}

} // namespace

std::optional<AlignmentObstacle> obstacleToAlignment(PrintJob &job) {
  ppd_file_t *const ppd = job.printer().ppd();
  job.printer().mark(job.settings());
  const PreviewRequest request = readPreviewRequest(job.settings(), ppd);
  if (!request.availability.isAvailable())
    return AlignmentObstacle{reasonText(request.availability), adviceText(request.availability)};
  if (!layOutSheet(request.page, request.turning))
    return AlignmentObstacle{messages::paperTooSmall(choiceText(ppd, "PageSize")),
                             messages::kChooseLargerPaper};
  return std::nullopt;
}

Aligner::Aligner(PrintJob &job) : job_(job) {
  if (const auto obstacle = obstacleToAlignment(job))
    throw Failure(ExitCode::Value, messages::sentences({obstacle->reason, obstacle->advice}));
  ppd_file_t *const ppd = job_.printer().ppd();
  key_ = alignmentKeyOf(job_.queue(), ppd);
  page_ = readPreviewRequest(job_.settings(), ppd).page;
  layout_ = *layOutSheet(page_, key_.turning);
  if (!job_.arguments().isUnshifted)
    present_ = sideOffsetsIn(job_.settings());
}

std::string Aligner::settingsInWords() const { return keyInWords(key_, job_.printer().ppd()); }

SheetTask Aligner::task() const {
  ppd_file_t *const ppd = job_.printer().ppd();
  std::vector<std::string> facts{messages::sheetPrinter(job_.printer().name()),
                                 messages::sheetPaper(choiceText(ppd, "PageSize"))};
  if (const std::string tray = choiceText(ppd, "InputSlot"); !tray.empty())
    facts.push_back(messages::sheetTray(tray));
  facts.push_back(messages::sheetTurning(key_.turning));
  facts.push_back(messages::sheetDate(today()));
  const auto side = [&](const std::string &name, int sheet, const Offset &offset,
                        std::vector<std::string> advice) {
    SideWords words{name, messages::sheetNumber(sheet, kSheets), facts, std::move(advice)};
    words.facts.push_back(messages::sheetOffsets(offset));
    return words;
  };
  std::vector<std::string> frontAdvice = translated(messages::kFrontAdvice);
  if (!layout_.middle) // there are no rulers for the crease
    frontAdvice.pop_back();
  SheetTask task;
  task.page = page_;
  task.turning = key_.turning;
  task.title = messages::kSheetTitle;
  task.example = messages::sheetExample();
  for (int sheet = 1; sheet <= kSheets; sheet++)
    task.sheets.push_back(
        {side(messages::kFrontOfSheet, sheet, present_.front, frontAdvice),
         side(messages::kBackOfSheet, sheet, present_.back, translated(messages::kBackAdvice))});
  return task;
}

Descriptor drawSheets(const SheetTask &task) try {
  const std::string program = installedProgram(IMAGEPOSITION_SHEET);
  if (program.empty())
    throw Failure(ExitCode::Fault, messages::sheetProgramMissing(IMAGEPOSITION_SHEET));
  const Descriptor input = temporaryFile(textOf(task));
  Descriptor output = temporaryFile();
  if (!run(program, input, output))
    throw Failure(ExitCode::Fault, messages::kSheetsNotDrawn);
  lseek(output.get(), 0, SEEK_SET);
  return output;
} catch (const std::system_error &error) {
  throw Failure(ExitCode::Fault, messages::sheetsNotKept(error.code().message()));
}

std::unique_ptr<JobSubmission> Aligner::print(const Descriptor &sheets,
                                              const DestinationList &destinations,
                                              JobSubmission::Changed changed) const {
  PrintedContent content{job_.settings(), {pathOf(sheets)}, messages::kSheetTitle};
  const Arguments &arguments = job_.arguments();
  if (!arguments.isAligning) // the title is the document's
    content.settings.remove(kTitleSetting);
  else if (!arguments.title.empty())
    content.title = arguments.title;
  neutralizeLayout(content.settings, job_.printer().queueDefaults());
  content.settings.set("copies", "1");
  content.settings.set("job-sheets", "none");
  content.settings.set("OutputOrder", "Normal"); // reversed, a front would be printed as its back
  if (!arguments.isUnshifted)
    setSideOffsets(content.settings, present_);
  return job_.printOther(content, destinations, std::move(changed));
}

bool Aligner::rememberPrinted(std::ostream &errors) const {
  return changeAlignments([this](Alignments &alignments) { alignments.setPrinted(key_, present_); },
                          errors);
}

AlignmentResult Aligner::result(const std::vector<SheetReading> &readings,
                                const std::optional<Offset> &crease,
                                const std::optional<SideOffsets> &printed) const {
  AlignmentResult result;
  result.measurement = measure(layout_, readings);
  result.most = largestOffsetOf(job_.printer().ppd());
  result.corrected = withBackMoved(printed.value_or(present_), result.measurement, result.most);
  if (crease) {
    const bool isLimited = result.corrected.isLimited;
    result.corrected = withBothMoved(result.corrected.offsets, *crease, layout_, result.most);
    result.corrected.isLimited = result.corrected.isLimited || isLimited;
  }
  return result;
}

MeasuredAlignment Aligner::measured(const AlignmentResult &result) const {
  const auto tenths = [](double length) -> TenthMillimetre { return {std::llround(length)}; };
  const Measurement &measurement = result.measurement;
  return {key_,
          result.corrected.offsets,
          {tenths(measurement.spreadRight), tenths(measurement.spreadDown)},
          measurement.sheets,
          today()};
}

bool storeAlignment(const MeasuredAlignment &alignment, std::ostream &errors) {
  return changeAlignments([&](Alignments &alignments) { alignments.store(alignment); }, errors);
}

std::vector<std::string> AlignmentResult::sentences() const {
  const Measurement &m = measurement;
  const std::string directions = directionsOf(m.right, m.down);
  std::vector<std::string> all{directions.empty() ? messages::kNotDisplaced.str()
                                                  : messages::displacement(directions)};
  if (m.doubtful != 0)
    all.insert(all.begin(), messages::readAgain(m.doubtful));
  if (m.sheets > 1 && !(m.spreadRight == 0 && m.spreadDown == 0))
    all.push_back(
        messages::spread(m.sheets, lengthInWords(m.spreadRight), lengthInWords(m.spreadDown)));
  else if (m.sheets == 1)
    all.push_back(messages::kOneSheetOnly);
  all.push_back(messages::newOffsets(messages::offsetsInWords(corrected.offsets)));
  if (m.areCornersApart())
    all.push_back(messages::cornersApart(numberOf(std::abs(m.angle), 2),
                                         numberOf(std::abs(m.stretch), 2), m.stretch < 0,
                                         lengthInWords(m.left)));
  if (corrected.isLimited)
    all.push_back(messages::outOfRange(lengthText(most)));
  return all;
}

} // namespace imageposition
