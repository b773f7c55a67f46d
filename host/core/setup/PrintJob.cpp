#include "PrintJob.hpp"

#include "AlignmentTexts.hpp"
#include "Availability.hpp"
#include "CustomValue.hpp"
#include "DocumentExaminer.hpp"
#include "DocumentNames.hpp"
#include "ExitCode.hpp"
#include "JobSettings.hpp"
#include "JobSplit.hpp"
#include "JobSubmission.hpp"
#include "OptionText.hpp"
#include "PanelValues.hpp"
#include "PdfFile.hpp"
#include "Phrases.hpp"
#include "PreparedJob.hpp"
#include "QueueName.hpp"
#include "SetupTexts.hpp"
#include "SharedKeys.h"
#include "ShiftedJob.hpp"
#include "Strings.hpp"
#include "ValueCheck.hpp"

#include <cups/cups.h>

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <iostream>
#include <optional>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace imageposition {

namespace {

/// Where lp has CUPS send notifications about a job.
std::string mailAddress() {
  char host[HTTP_MAX_HOST];
  return std::string(cupsUser()) + "@" + httpGetHostname(nullptr, host, sizeof host);
}

void applyLpOptions(const Arguments &arguments, PrintSettingsStore &settings) {
  for (const std::string &option : arguments.options)
    readOptionArgument(option, settings);
  if (arguments.isMailWanted)
    readOptionArgument("notify-recipient-uri=mailto:" + mailAddress(), settings);
}

/// Settings that apply to one job only, in addition to those of one document, which no preset has.
bool isOfOneJob(const std::string &name) {
  static const std::vector<std::string> kNames{"copies", "job-hold-until", "job-priority",
                                               "notify-recipient-uri"};
  return contains(kNames, name);
}

/// The settings that the printer accepts, without complaint: the user did not enter them here.
PrintSettingsStore fitted(const PrintSettingsStore &settings, ppd_file_t *ppd) {
  PrintSettingsStore fitting;
  for (int i = 0; i < settings.optionCount(); i++) {
    const cups_option_t &option = settings.options()[i];
    if (const auto value = fitSetting(ppd, option.name, option.value, true).value)
      fitting.set(option.name, *value);
  }
  return fitting;
}

bool isSameIn(const PrintSettingsStore &left, const PrintSettingsStore &right, const char *name) {
  const char *const one = left.get(name);
  const char *const other = right.get(name);
  return one == nullptr || other == nullptr ? one == other : std::strcmp(one, other) == 0;
}

/// True for a pipe or a file; false for a terminal and for /dev/null, which desktops pass.
bool isInputGiven() {
  struct stat status {};
  return fstat(STDIN_FILENO, &status) == 0 && !S_ISCHR(status.st_mode);
}

void writeToOutput(const std::string &settings) {
  if (isatty(STDOUT_FILENO) != 0) {
    std::cout << settings;
    return;
  }
  // Bypass `std::cout`, which escapes control characters.
  std::cout.flush();
  if (std::fwrite(settings.data(), 1, settings.size(), stdout) != settings.size() ||
      std::fflush(stdout) != 0)
    throw Failure(ExitCode::Ticket, messages::outputUnwritable({}));
}

/// The value of a setting after switching from the printer `before`; none if the new printer lacks
/// the option or rejects the value.
std::optional<std::string> valueHere(ppd_file_t *ppd, ppd_file_t *before,
                                     const cups_option_t &setting) {
  if (ppdFindOption(before, setting.name) == nullptr)
    return setting.value;
  if (ppdFindOption(ppd, setting.name) == nullptr)
    return std::nullopt;
  return fitSetting(ppd, setting.name, setting.value, true).value;
}

bool isSame(const std::optional<FoundAlignment> &one, const std::optional<FoundAlignment> &other) {
  return one && other && one->offsets == other->offsets && one->date == other->date &&
         one->isOfOtherTurning == other->isOfOtherTurning;
}

bool isOff(const char *value) {
  return std::strcmp(value, "0") == 0 || std::strcmp(value, "False") == 0;
}

/// Whether a setting is not the printer's default. Panels add settings that are off or zero.
bool hasUnusual(const PrintSettingsStore &settings, PrinterDescription &printer) {
  const auto &defaults = printer.defaultChoices();
  for (int i = 0; i < settings.optionCount(); i++) {
    const cups_option_t &option = settings.options()[i];
    const auto usual = defaults.find(option.name);
    if (usual != defaults.end() ? usual->second != option.value : !isOff(option.value))
      return true;
  }
  return false;
}

/// Whether the setting is as it was at the start. Panels add settings that are off or zero.
bool isUntouched(const PrintSettingsStore &start, const PrintSettingsStore &now, const char *name) {
  const char *const value = now.get(name);
  const bool isAdded = start.get(name) == nullptr && value != nullptr;
  return isSameIn(start, now, name) || (isAdded && isOff(value));
}

/// Marks the settings' choices when it is destroyed.
class MarkedAgain {
public:
  MarkedAgain(PrinterDescription &printer, const PrintSettingsStore &settings)
      : printer_(printer), settings_(settings) {}
  ~MarkedAgain() { printer_.mark(settings_); }
  MarkedAgain(const MarkedAgain &) = delete;
  MarkedAgain &operator=(const MarkedAgain &) = delete;

private:
  PrinterDescription &printer_;
  const PrintSettingsStore &settings_;
};

} // namespace

PrintJob::PrintJob(const Arguments &arguments, OpenedPrinter &&first, History history)
    : arguments_(arguments), queue_(std::move(first.queue)), printer_(std::move(first.printer)),
      history_(std::move(history)), preset_(startOf(*printer_)),
      ticket_(firstTicket(preset_.settings)),
      withoutPreset_(preset_.settings.optionCount() == 0 ? ticket_.settings
                                                         : firstTicket({}).settings),
      documents_(arguments.documents), inputStart_(lseek(STDIN_FILENO, 0, SEEK_CUR)),
      target_(firstTarget()) {
  ticket_.printer = printer_->name();
  takeFlagOfQueue();
  printer_->mark(ticket_.settings);
  if (!arguments.isUnaligned && !queue_.empty() && arguments.prepared.empty())
    alignments_ = Alignments::read(std::cerr);
  if (takeAlignment())
    setSideOffsets(withoutPreset_, alignment_->offsets);
  atStart_ = ticket_.settings;
  const std::string remembered = rememberedQueue(arguments, history_);
  if (remembered != QueueName::parse(queue_).printer)
    missingPrinter_ = remembered;
}

/// What the command line gives.
PrintSettingsStore PrintJob::given() const {
  PrintSettingsStore settings;
  applyLpOptions(arguments_, settings);
  return isPreparing() ? acceptable(settings, printer_->ppd()) : settings;
}

/// The existing ticket, or else the queue's preset, overridden by the command line's options.
Ticket PrintJob::firstTicket(const PrintSettingsStore &preset) const {
  Ticket ticket;
  ticket.settings = preset;
  if (!arguments_.prepared.empty())
    ticket.settings = readPrepared(arguments_.prepared).settings;
  else if (!arguments_.ticket.empty())
    if (auto stored = readTicket(arguments_.ticket))
      ticket = *stored;
  if (!arguments_.documents.empty())
    ticket.documents = arguments_.documents;
  if (!isPreparing()) {
    applyLpOptions(arguments_, ticket.settings);
    return ticket;
  }
  const PrintSettingsStore proposals = given();
  for (int i = 0; i < proposals.optionCount(); i++)
    ticket.settings.set(proposals.options()[i].name, proposals.options()[i].value);
  return ticket;
}

JobTarget PrintJob::firstTarget() const {
  if (isPreparing())
    return JobTarget::Prepared;
  if (!arguments_.pdf.empty())
    return JobTarget::PdfFile;
  const bool isPrintable = hasDocument() || !arguments_.isBatch; // the window has Open
  return !queue_.empty() && arguments_.ticket.empty() && isPrintable ? JobTarget::Printer
                                                                     : JobTarget::Ticket;
}

void PrintJob::setTarget(JobTarget target) noexcept {
  if (isPreparing())
    return;
  isTargetChosen_ = target != JobTarget::Printer;
  target_ = target == JobTarget::Printer && queue_.empty() ? JobTarget::Ticket : target;
}

/// Of the preset that the queue or the history names, or of the last job. A preset is an instance
/// of the queue. Its settings join the job's, where panels see them.
LoadedPreset PrintJob::startOf(const PrinterDescription &printer) {
  const QueueName name = QueueName::parse(queue_);
  const Presets presets(name.printer);
  presetName_ = name.instance;
  if (queue_.empty() || !arguments_.prepared.empty())
    return {};
  if (presetName_.empty()) {
    const std::string usual = history_.preset(name.printer);
    if (usual.empty() || !contains(presets.names(), usual)) {
      LoadedPreset last{fitted(history_.settings(name.printer), printer.ppd()), {}};
      isFromLastJob_ = hasUnusual(last.settings, *printer_);
      return last;
    }
    presetName_ = usual;
  }
  LoadedPreset preset = presets.load(presetName_, printer);
  for (const std::string &misfit : preset.misfits)
    std::cerr << misfit << '\n';
  return preset;
}

/// Whether the user has set offsets elsewhere that are stronger than what was measured. A preset
/// has offsets of 0 when it was saved without any.
bool PrintJob::areOffsetsGiven() const {
  if (isMeasuredNow_)
    return false;
  const PrintSettingsStore given = firstTicket({}).settings;
  const std::vector<std::string> &names = offsetOptions();
  return std::any_of(names.begin(), names.end(),
                     [&](const std::string &name) { return given.get(name) != nullptr; }) ||
         (!presetName_.empty() && !(sideOffsetsIn(preset_.settings) == SideOffsets()));
}

/// What was measured for the marked choices, if this printer's image can be moved.
std::optional<FoundAlignment> PrintJob::alignmentHere() {
  if (ppdFindOption(printer_->ppd(), offsetOptions().front().c_str()) == nullptr)
    return std::nullopt;
  return alignments_.find(alignmentKeyOf(queue_, printer_->ppd()));
}

bool PrintJob::takeAlignment() {
  if (alignments_.all().empty() || areOffsetsGiven())
    return false;
  alignment_ = alignmentHere();
  if (alignment_)
    setSideOffsets(settings(), alignment_->offsets);
  return alignment_.has_value();
}

bool PrintJob::hasMeasuredOffsets() const {
  return alignment_ && sideOffsetsIn(ticket_.settings) == alignment_->offsets;
}

bool PrintJob::followAlignment() {
  if (alignments_.all().empty())
    return false;
  const SideOffsets before = sideOffsetsIn(settings());
  printer_->mark(settings());
  if (availabilityOf(printer_->ppd()).oneSided) // nothing moves
    return false;
  const auto here = alignmentHere();
  const bool isTheUsers = alignment_ ? !hasMeasuredOffsets() : !(before == SideOffsets());
  if (isTheUsers && (!here || isSame(here, alignment_)))
    return false;
  const bool isLeft = alignment_.has_value();
  if (!takeAlignment() && isLeft) {
    setSideOffsets(settings(), {});
    settings().set(IPA_KEY_ENABLE, IPA_VALUE_FALSE);
  }
  return !(sideOffsetsIn(settings()) == before);
}

void PrintJob::takeAlignment(const MeasuredAlignment &alignment) {
  alignments_.store(alignment);
  alignment_ = alignments_.find(alignment.key);
  isMeasuredNow_ = true;
  setSideOffsets(settings(), alignment.offsets);
}

std::string PrintJob::alignmentNote() {
  printer_->mark(settings());
  if (!hasMeasuredOffsets() || availabilityOf(printer_->ppd()).oneSided)
    return "";
  return messages::measuredOn(alignment_->date,
                              keyInWords(alignmentKeyOf(queue_, printer_->ppd()), printer_->ppd()),
                              alignment_->isOfOtherTurning);
}

PrintSettingsStore PrintJob::settingsToRemember() const {
  const PrintSettingsStore given = this->given();
  PrintSettingsStore kept;
  const PrintSettingsStore settings = Presets::withDocumentOf({}, ticket_.settings);
  for (int i = 0; i < settings.optionCount(); i++) {
    const cups_option_t &option = settings.options()[i];
    const bool isGiven =
        given.get(option.name) != nullptr && isSameIn(given, settings, option.name);
    const bool isMeasured = hasMeasuredOffsets() && contains(offsetOptions(), option.name);
    if (!isGiven && !isMeasured && !isOfOneJob(option.name) &&
        !isLayoutSetting(*printer_, option.name) &&
        !isHiddenValue(printer_->ppd(), option.name, option.value))
      kept.set(option.name, option.value);
  }
  return kept;
}

void PrintJob::requireNumbers(const std::vector<std::string> &keywords) const {
  const PrintSettingsStore given = this->given();
  for (const std::string &keyword : keywords) {
    const char *const value = given.get(keyword);
    const std::string problem =
        value != nullptr ? wholeNumberProblem(printer_->ppd(), keyword, value) : "";
    if (!problem.empty())
      throw Failure(ExitCode::Value, problem);
  }
}

void PrintJob::keepWhatFits(const PrinterDescription &before) {
  const PrintSettingsStore all = settings();
  for (int i = 0; i < all.optionCount(); i++) {
    const cups_option_t &setting = all.options()[i];
    const auto value = valueHere(printer_->ppd(), before.ppd(), setting);
    if (!value)
      settings().remove(setting.name);
    else if (*value != setting.value)
      settings().set(setting.name, *value);
  }
}

bool PrintJob::takePrinter(OpenedPrinter opened) {
  const auto before = std::exchange(printer_, std::move(opened.printer));
  queue_ = std::move(opened.queue);
  ticket_.printer = printer_->name();
  keepWhatFits(*before);
  const bool isHistoryTaken = takeHistory();
  takeFlagOfQueue();
  printer_->mark(ticket_.settings);
  alignment_.reset();
  isMeasuredNow_ = false;
  return takeAlignment() || isHistoryTaken;
}

/// The flag is not an option of the PPD: marking the queue's defaults does not set it.
void PrintJob::takeFlagOfQueue() {
  const char *const flag = printer_->queueDefaults().get(IPA_KEY_ENABLE);
  if (flag != nullptr && settings().get(IPA_KEY_ENABLE) == nullptr)
    settings().set(IPA_KEY_ENABLE, flag);
}

PrintSettingsStore PrintJob::removePanelSettings(const std::vector<std::string> &optionKeys) {
  PrintSettingsStore removed;
  const PrintSettingsStore all = settings();
  for (int i = 0; i < all.optionCount(); i++) {
    const cups_option_t &option = all.options()[i];
    if (!contains(optionKeys, option.name) && std::strchr(option.name, '.') == nullptr)
      continue;
    removed.set(option.name, option.value);
    settings().remove(option.name);
    atStart_.remove(option.name);
  }
  return removed;
}

bool PrintJob::takeHistory() {
  bool isTaken = false;
  PrintSettingsStore remembered;
  try {
    remembered = startOf(*printer_).settings;
  } catch (const Failure &failure) { // the presets cannot be read, as their pop-up says, too
    std::cerr << failure.what() << '\n';
  }
  for (int i = 0; i < remembered.optionCount(); i++) {
    const cups_option_t &option = remembered.options()[i];
    if (!isUntouched(atStart_, settings(), option.name))
      continue;
    isTaken = isTaken || !isSameIn(settings(), remembered, option.name);
    settings().set(option.name, option.value);
    atStart_.set(option.name, option.value);
  }
  return isTaken;
}

bool PrintJob::makeDefault(const std::string &preset) {
  const std::string printer = QueueName::parse(queue_).printer;
  const auto change = [&](History &history) { history.setPreset(printer, preset); };
  if (!changeHistory(change, std::cerr))
    return false;
  change(history_);
  return true;
}

std::string PrintJob::defaultPreset() const {
  return history_.preset(QueueName::parse(queue_).printer);
}

void PrintJob::remember(const std::optional<WindowSize> &window) const {
  const std::string printer = QueueName::parse(queue_).printer;
  const auto change = [&](History &history) {
    history.setPrinter(printer);
    history.setSettings(printer, settingsToRemember());
    if (window)
      history.setWindow(*window);
  };
  changeHistory(change, std::cerr);
}

void PrintJob::leavePreset() {
  if (queue_.empty())
    return;
  queue_ = QueueName::parse(queue_).printer;
  printer_->leaveInstance();
  ticket_.printer = printer_->name();
}

bool PrintJob::hasDocument() const { return !documents_.empty() || isInputGiven(); }

void PrintJob::setDocuments(const std::vector<std::string> &paths) {
  documents_ = ticket_.documents = paths;
  if (!isTargetChosen_ && arguments_.ticket.empty() && arguments_.pdf.empty())
    setTarget(JobTarget::Printer);
}

std::vector<std::string> PrintJob::documentsToSend() const {
  return documents_.empty() ? std::vector<std::string>{"-"} : documents_;
}

std::string PrintJob::title() const {
  return arguments_.title.empty() ? documentName(documentsToSend().front()) : arguments_.title;
}

JobRequest PrintJob::request(const DestinationList &destinations) const {
  // A ticket does not include the destination's defaults.
  return requestFor({ticket_.settings, documentsToSend(), title()}, destinations,
                    target_ != JobTarget::Ticket);
}

JobRequest PrintJob::requestFor(const PrintedContent &content, const DestinationList &destinations,
                                bool withDefaults) const {
  JobRequest request;
  request.printer = QueueName::parse(queue_).printer;
  request.settings = content.settings;
  request.title = content.title;
  if (const char *const title = content.settings.get(kTitleSetting);
      title != nullptr && *title != '\0')
    request.title = title;
  request.settings.remove(kTitleSetting);
  request.compounds = compoundOptions(printer_->ppd());
  for (const PrintSettingsStore *settings : {&printer_->queueDefaults(), &content.settings})
    for (std::string &name : hiddenSettings(printer_->ppd(), *settings))
      request.secrets.push_back(std::move(name));
  const Destination *const destination = destinations.find(queue_);
  if (destination != nullptr && withDefaults) {
    request.defaults = destination->defaults;
    request.printerUri = destination->uri;
  }
  if (arguments_.isUnshifted)
    removeOffsets(request);
  return request;
}

/// Whether the command line has offsets for the back, which follows the front.
bool PrintJob::isBackIgnored(const PrintSettingsStore &settings) const {
  const PrintSettingsStore given = this->given();
  const char *const flag = settings.get(IPA_KEY_ENABLE);
  if (flag != nullptr && readBoolean(flag).value_or(false))
    return false;
  const char *const right = given.get(IPA_KEY_BACK_LEFT_RIGHT);
  const char *const down = given.get(IPA_KEY_BACK_TOP_BOTTOM);
  return (right != nullptr && !isOff(right)) || (down != nullptr && !isOff(down));
}

ShiftDecision PrintJob::shiftDecision(const JobRequest &request,
                                      const PrintSettingsStore &settings) {
  printer_->mark(settings);
  return decideShift(optionsToSend(request), printer_->ppd());
}

std::unique_ptr<ShiftedJob> PrintJob::shiftedJob(const JobRequest &request, const ShiftPlan &plan) {
  const char *const device = printer_->queueDefaults().get("device-uri");
  return std::make_unique<ShiftedJob>(request, plan, printer_->ppd(), printer_->text(),
                                      device != nullptr ? device : "");
}

std::unique_ptr<JobSubmission> PrintJob::startPdf(const JobRequest &request,
                                                  const std::string &path,
                                                  JobSubmission::Changed changed) {
  if (!hasDocument())
    throw Failure(ExitCode::Usage, messages::kNoDocumentForPdf);
  const JobDocuments documents = documentsToSend();
  if (documents.size() > 1)
    throw Failure(ExitCode::Usage, messages::kOneDocumentForPdf);
  const ShiftPlan plan = shiftDecision(request, ticket_.settings).plan;
  const std::shared_ptr<const ShiftedJob> laidOut = shiftedJob(request, plan);
  pdfNote_ = messages::pdfWritten(path);
  if (plan.isMoving())
    pdfNote_ = messages::sentences({pdfNote_, messages::kPdfIsMoved});
  const auto work = [=](const ProgressCallback &progress, const PasswordCallback &) {
    writePdf(*laidOut, documents.front(), path, progress);
    return SubmittedJob();
  };
  return std::make_unique<JobSubmission>(request.printer, work, std::move(changed));
}

std::unique_ptr<JobSubmission> PrintJob::print(const DestinationList &destinations,
                                               const std::string &path,
                                               JobSubmission::Changed changed, OwnShift ownShift) {
  if (target_ == JobTarget::Ticket) {
    if (path.empty())
      writeToOutput(writeOptionText(ticket_.settings));
    else
      writeTicketTo(path);
    return nullptr;
  }
  if (inputStart_ >= 0) // an earlier attempt may have read from it
    lseek(STDIN_FILENO, inputStart_, SEEK_SET);
  JobRequest request = this->request(destinations);
  if (target_ == JobTarget::Prepared) {
    writePrepared(request, ownShift);
    return nullptr;
  }
  if (target_ == JobTarget::PdfFile)
    return startPdf(request, path, std::move(changed));
  if (ownShift == OwnShift::Skip)
    removeOffsets(request);
  return submit({ticket_.settings, documentsToSend(), title()}, request, std::move(changed));
}

std::unique_ptr<JobSubmission> PrintJob::printOther(const PrintedContent &content,
                                                    const DestinationList &destinations,
                                                    JobSubmission::Changed changed) {
  const MarkedAgain job(*printer_, ticket_.settings);
  JobRequest request = requestFor(content, destinations, true);
  request.documentNames.assign(content.documents.size(), request.title);
  return submit(content, request, std::move(changed));
}

std::unique_ptr<JobSubmission> PrintJob::submit(const PrintedContent &content,
                                                const JobRequest &request,
                                                JobSubmission::Changed changed) {
  const JobDocuments &documents = content.documents;
  const ShiftDecision decision = shiftDecision(request, content.settings);
  std::shared_ptr<const ShiftedJob> shifted;
  if (decision.by == ShiftedBy::Dialog)
    shifted = shiftedJob(request, decision.plan);
  losses_ = shifted ? shifted->losses() : "";
  origin_ = alignmentNote();
  sentFiles_ = documents.size() -
               static_cast<std::size_t>(std::count(documents.begin(), documents.end(), "-"));
  if (arguments_.isBatch && isBackIgnored(content.settings))
    std::cerr << messages::kBackIgnored.view() << '\n';
  if (arguments_.isBatch && !arguments_.isSilent && !shifted)
    warnOfPasswords(documents);
  if (arguments_.isDryRun) {
    totalSize(documents); // fails where a submission would; so does the next
    if (shifted && arguments_.isBatch && !contains(documents, "-"))
      shifted->move(documents, [](const JobProgress &) { return true; });
    if (!origin_.empty())
      std::cerr << origin_ << '\n';
    if (shifted)
      std::cerr << messages::sentences({shifted->description(), losses_}) << '\n';
    std::cout << writeRequestText(shifted ? shifted->request() : request, documents);
    return nullptr;
  }
  JobPreparation prepare;
  if (shifted)
    prepare = [shifted](const JobDocuments &sent, const ProgressCallback &progress) {
      return shifted->move(sent, progress);
    };
  return std::make_unique<JobSubmission>(request, documents, std::move(changed),
                                         std::move(prepare));
}

/// CUPS accepts documents that only a password opens, and prints nothing.
void PrintJob::warnOfPasswords(const JobDocuments &documents) {
  for (const std::string &document : documents)
    if (document != "-" && needsPassword(document))
      std::cerr << messages::passwordNeeded(documentName(document)) << '\n';
}

void PrintJob::report(const SubmittedJob &sent, std::ostream &output, std::ostream &notes) {
  if (target_ == JobTarget::PdfFile) {
    done_ = pdfNote_;
    if (!arguments_.isSilent)
      notes << done_ << std::endl;
    return;
  }
  const std::string printer = QueueName::parse(queue_).printer;
  sentName_ = printer + "-" + std::to_string(sent.id);
  if (arguments_.isSilent || arguments_.isMailWanted)
    return;
  output << messages::jobSent(printer, sent.id, sentFiles_) << std::endl; // as lp counts them
  for (const std::string &note : {origin_, losses_})                      // the window shows both
    if (arguments_.isBatch && !note.empty())
      notes << note << std::endl;
  if (!sent.note.empty())
    notes << sent.note << std::endl;
}

void PrintJob::writePrepared(const JobRequest &request, OwnShift ownShift) {
  Ticket ticket = ticket_;
  if (ownShift == OwnShift::Skip || arguments_.isUnshifted)
    setSideOffsets(ticket.settings, {});
  else if (const ShiftDecision decision = shiftDecision(request, ticket_.settings);
           decision.by == ShiftedBy::Dialog)
    shiftedJob(request, decision.plan); // throws if the image of no document can be moved
  ticket.printer = queue_;
  ticket.documents.clear();
  ticket.paper = paperOf(*printer_, ticket.settings);
  writePreparedTicket(ticket, arguments_.prepare);
}

void PrintJob::writeTicketTo(const std::string &path) {
  const bool isSecret = !hiddenSettings(printer_->ppd(), ticket_.settings).empty();
  writeTicket(ticket_, path, isSecret ? Readers::OwnerAlone : Readers::Same);
  done_ = messages::ticketWritten(path, optionTextPath(path));
  if (!arguments_.isSilent)
    std::cerr << done_ << '\n';
}

} // namespace imageposition
