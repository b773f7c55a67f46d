#include "ShiftedJob.hpp"

#include "CustomValue.hpp"
#include "DocumentNames.hpp"
#include "DocumentStream.hpp"
#include "ImageShiftText.hpp"
#include "JobTexts.hpp"
#include "PanelValues.hpp"
#include "Phrases.hpp"
#include "PlacementTexts.hpp"
#include "PreviewGeometry.hpp"
#include "PrinterOptions.hpp"
#include "ServerLayout.hpp"
#include "SharedKeys.h"
#include "Strings.hpp"
#include "TemporaryData.hpp"

#include <cups/cups.h>

#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <functional>
#include <memory>
#include <sys/stat.h>
#include <system_error>
#include <utility>
#include <vector>

namespace imageposition {

namespace {

const char *attribute(ppd_file_t *ppd, const char *name, const char *specifier = nullptr) {
  const ppd_attr_t *const found = ppdFindAttr(ppd, name, specifier);
  return found != nullptr ? found->value : nullptr;
}

bool isOneSided(ppd_file_t *ppd, const ppd_option_t &option) {
  const ppd_choice_t *const marked = ppdFindMarkedChoice(ppd, option.keyword);
  static const std::vector<std::string> kOff{"None", "Off", "False"};
  return marked != nullptr && contains(kOff, marked->choice);
}

/// None if nothing moves.
PrintedSides sidesOf(const PrintSettingsStore &options, ppd_file_t *ppd) {
  if (twoSidedOption(ppd) != nullptr)
    return PrintedSides::Both;
  const char *const set = options.get("page-set");
  return set != nullptr && isSame(set, "even") ? PrintedSides::BacksOnly : PrintedSides::FrontsOnly;
}

bool isReverse(const char *value) {
  return isSame(value, "Reverse") || isSame(value, "reverse-order");
}

/// The offsets and their flag as a panel would write them.
PrintSettingsStore panelSettings(const PrintSettingsStore &options, ppd_file_t *ppd) {
  PrintSettingsStore settings;
  for (const char *const name : {IPA_KEY_FRONT_LEFT_RIGHT, IPA_KEY_FRONT_TOP_BOTTOM,
                                 IPA_KEY_BACK_LEFT_RIGHT, IPA_KEY_BACK_TOP_BOTTOM}) {
    const char *const value = options.get(name);
    settings.set(name, value != nullptr ? withoutCustomPrefix(value) : "0");
  }
  if (const char *const flag = options.get(IPA_KEY_ENABLE))
    settings.set(IPA_KEY_ENABLE, flag);
  makePanelValues(ppd, {}, settings);
  return settings;
}

std::string lossesOf(const ShiftPlan &plan, ppd_file_t *ppd) {
  PreviewRequest request = readPreviewRequest({}, ppd);
  request.front = plan.front;
  request.back = plan.back;
  return messages::sentences(describeLosses(makePreview(request)));
}

[[noreturn]] void failCancelled() {
  throw SubmissionFailure(JobProblem::Cancelled, ExitCode::Cancelled, messages::kCancelled);
}

/// A copy of what can be read only once.
Descriptor copyOf(const std::string &path, const std::function<bool()> &keepWaiting) {
  DocumentStream stream(path);
  Descriptor file = temporaryFile();
  for (;;) {
    const auto chunk = stream.next(keepWaiting);
    if (!chunk)
      failCancelled();
    if (chunk->empty())
      break;
    append(file, *chunk);
  }
  lseek(file.get(), 0, SEEK_SET);
  return file;
}

/// The document, or a copy of standard input or of a pipe.
Descriptor opened(const std::string &path, const std::function<bool()> &keepWaiting) try {
  struct stat status {};
  if (path != "-" && stat(path.c_str(), &status) == 0 && S_ISREG(status.st_mode)) {
    Descriptor file(open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NOCTTY));
    if (file.isOpen())
      return file;
  }
  return copyOf(path, keepWaiting);
} catch (const std::system_error &error) {
  throw SubmissionFailure(
      JobProblem::Document, ExitCode::Usage,
      messages::documentNotRead(path == "-" ? messages::kStandardInput.str() : path,
                                error.code().message()));
}

/// For the document's type. Empty for what has no path that others can open.
std::string pathForType(const std::string &path) {
  std::error_code failed;
  const bool isFile = path != "-" && std::filesystem::is_regular_file(path, failed);
  const auto absolute = isFile ? std::filesystem::absolute(path, failed) : std::filesystem::path();
  return failed ? "" : absolute.string();
}

} // namespace

bool isReversed(const PrintSettingsStore &options, ppd_file_t *ppd) {
  for (const char *const name : {"OutputOrder", "output-order", "page-delivery"})
    if (const char *const value = options.get(name))
      return isReverse(value);
  if (const ppd_choice_t *const order = ppdFindMarkedChoice(ppd, "OutputOrder"))
    return isReverse(order->choice);
  if (const ppd_choice_t *const bin = ppdFindMarkedChoice(ppd, "OutputBin"))
    if (const char *const order = attribute(ppd, "PageStackOrder", bin->choice))
      return isReverse(order);
  const char *const order = attribute(ppd, "DefaultOutputOrder");
  return order != nullptr && isReverse(order);
}

SideOrder sideOrder(const PrintSettingsStore &options, ppd_file_t *ppd) {
  const ppd_option_t *const twoSided = twoSidedOption(ppd);
  const bool isOff = twoSided != nullptr && isOneSided(ppd, *twoSided);
  return {isOff ? PrintedSides::FrontsOnly : sidesOf(options, ppd), isReversed(options, ppd)};
}

ShiftDecision decideShift(const PrintSettingsStore &options, ppd_file_t *ppd) {
  ShiftDecision decision;
  const char *const support = attribute(ppd, IPA_ATTRIBUTE_SUPPORT);
  const bool isDriverMoving =
      support != nullptr && std::strcmp(support, "true") == 0 && !isImageShiftAdded(ppd);
  if (isDriverMoving)
    decision.by = ShiftedBy::Printer;
  const PreviewRequest request = readPreviewRequest(panelSettings(options, ppd), ppd);
  const ppd_option_t *const twoSided = twoSidedOption(ppd);
  if (!request.availability.isAvailable() || (twoSided != nullptr && isOneSided(ppd, *twoSided)))
    return decision;
  ShiftPlan &plan = decision.plan;
  plan.order = {sidesOf(options, ppd), isReversed(options, ppd)};
  if (plan.order.sides != PrintedSides::BacksOnly)
    plan.front = request.front;
  if (plan.order.sides != PrintedSides::FrontsOnly)
    plan.back = request.back;
  if (!isDriverMoving && plan.isMoving())
    decision.by = ShiftedBy::Dialog;
  return decision;
}

ShiftedJob::ShiftedJob(const JobRequest &job, const ShiftPlan &plan, ppd_file_t *ppd,
                       std::string description, std::string device)
    : split_(splitJob(job, ppd, shiftNote(plan))), plan_(plan), losses_(lossesOf(plan, ppd)),
      ppd_(std::move(description)), device_(std::move(device)) {
  const char *const format = split_.layout.get("document-format");
  if (isRaw(split_.layout))
    throw ShiftFailure(MoveProblem::NoConversion, messages::kRawNotMoved);
  const auto programs = layoutPrograms();
  if (!programs)
    throw ShiftFailure(MoveProblem::NoConversion, messages::kNoFilters);
  task_.format = format != nullptr ? format : "";
  split_.layout.remove("document-format");
  split_.printing.settings.remove("document-format"); // the result is PDF
  task_.filters = programs->filters;
  task_.chooser = programs->chooser;
  task_.verdict = verdictFile();
  task_.options = filterOptions(split_.layout);
  task_.title = job.title;
  task_.user = cupsUser();
}

std::string ShiftedJob::description() const {
  return messages::movedHere(messages::sentences(describeOffsets(plan_.front, plan_.back)));
}

PreparedJob ShiftedJob::move(const JobDocuments &documents,
                             const ProgressCallback &progress) const {
  totalSize(documents); // refuses unusable documents before the first is moved
  PreparedJob prepared{split_.printing, {}, {}};
  prepared.request.documentNames.clear();
  const auto files = std::make_shared<std::vector<Descriptor>>();
  prepared.files = files;
  JobProgress state;
  const std::string ppd =
      withServerLayout(ppd_, device_, [&] { return !progress || progress(state); });
  for (std::size_t i = 0; i < documents.size(); i++) {
    const auto report = [&](int percent) {
      const auto done = (i * 100 + static_cast<std::size_t>(percent)) / documents.size();
      state.preparedPercent = static_cast<int>(done);
      return !progress || progress(state);
    };
    MoverTask task = task_;
    task.plan = plan_;
    task.plan.isPadded = plan_.order.sides == PrintedSides::Both && i + 1 < documents.size();
    task.path = pathForType(documents[i]);
    const std::string name = nameToSend(split_.printing, i, documents[i]);
    const Descriptor document = opened(documents[i], [&] { return report(0); });
    auto moved = moveDocument(task, document, name, ppd, report);
    if (!moved)
      failCancelled();
    prepared.request.documentNames.push_back(name);
    prepared.documents.push_back(pathOf(moved->file));
    files->push_back(std::move(moved->file));
  }
  return prepared;
}

std::optional<MovedDocument> ShiftedJob::layOut(const std::string &document,
                                                const std::string &pages,
                                                const std::function<bool()> &keepWaiting) const {
  MoverTask task = task_;
  task.plan = plan_;
  task.pages = pages;
  task.path = pathForType(document);
  return moveDocument(task, opened(document, keepWaiting), documentName(document),
                      withServerLayout(ppd_, device_, keepWaiting),
                      [&](int) { return keepWaiting(); });
}

} // namespace imageposition
