#include "PrintJob.hpp"

#include "CupsTexts.hpp"
#include "DocumentNames.hpp"
#include "ExitCode.hpp"
#include "JobSplit.hpp"
#include "QueueName.hpp"
#include "SetupTexts.hpp"
#include "SharedKeys.h"
#include "Strings.hpp"
#include "ValueCheck.hpp"

#include <cups/ppd.h>

#include <cstring>
#include <iostream>
#include <optional>
#include <utility>

namespace imageposition {

namespace {

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

/// Removes settings that the printer does not accept, and fits others to it, after switching from
/// the printer `before`.
void keepWhatFits(PrintSettingsStore &settings, ppd_file_t *ppd, ppd_file_t *before) {
  const PrintSettingsStore all = settings;
  for (int i = 0; i < all.optionCount(); i++) {
    const cups_option_t &setting = all.options()[i];
    const auto value = valueHere(ppd, before, setting);
    if (!value)
      settings.remove(setting.name);
    else if (*value != setting.value)
      settings.set(setting.name, *value);
  }
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
    : arguments_(arguments), chosen_(std::move(first)),
      start_(arguments, chosen_, std::move(history)), ticket_(start_.openTicket()),
      alignment_(arguments, start_, chosen_, ticket_.settings), documents_(arguments.documents),
      target_(firstTarget()), sender_(arguments, chosen_, alignment_), files_(arguments, chosen_) {
  ticket_.printer = printer().name();
  takeFlagOfQueue();
  printer().mark(ticket_.settings);
  const std::optional<SideOffsets> measured = alignment_.begin();
  start_.begin(ticket_.settings, measured);
}

JobTarget PrintJob::firstTarget() const {
  if (isPreparing())
    return JobTarget::Prepared;
  if (!arguments_.pdf.empty())
    return JobTarget::PdfFile;
  const bool isPrintable = hasDocument() || !arguments_.isBatch; // the window has Open
  return !chosen_.queue.empty() && arguments_.ticket.empty() && isPrintable ? JobTarget::Printer
                                                                            : JobTarget::Ticket;
}

void PrintJob::setTarget(JobTarget target) noexcept {
  if (isPreparing())
    return;
  isTargetChosen_ = target != JobTarget::Printer;
  target_ = target == JobTarget::Printer && chosen_.queue.empty() ? JobTarget::Ticket : target;
}

bool PrintJob::takePrinter(OpenedPrinter opened) {
  const OpenedPrinter before = std::exchange(chosen_, std::move(opened));
  ticket_.printer = printer().name();
  keepWhatFits(settings(), printer().ppd(), before.printer->ppd());
  const bool isHistoryTaken = start_.takeHistory(settings());
  takeFlagOfQueue();
  printer().mark(ticket_.settings);
  return alignment_.begin().has_value() || isHistoryTaken;
}

/// The flag is not an option of the PPD: marking the queue's defaults does not set it.
void PrintJob::takeFlagOfQueue() {
  const char *const flag = printer().queueDefaults().get(IPA_KEY_ENABLE);
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
    start_.forget(option.name);
  }
  return removed;
}

void PrintJob::remember(const std::optional<WindowSize> &window) const {
  static const std::vector<std::string> kNone;
  start_.remember(ticket_.settings, alignment_.isInEffect() ? offsetOptions() : kNone, window);
}

void PrintJob::leavePreset() {
  if (chosen_.queue.empty())
    return;
  chosen_.queue = QueueName::parse(chosen_.queue).printer;
  printer().leaveInstance();
  ticket_.printer = printer().name();
}

bool PrintJob::hasDocument() const { return !documents_.empty() || StandardInput::isGiven(); }

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

PrintedContent PrintJob::content() const { return {ticket_.settings, documentsToSend(), title()}; }

JobRequest PrintJob::request(const DestinationList &destinations) const {
  // A ticket does not include the destination's defaults.
  return requestFor(content(),
                    target_ != JobTarget::Ticket ? destinations.find(chosen_.queue) : nullptr);
}

JobRequest PrintJob::requestFor(const PrintedContent &content,
                                const Destination *destination) const {
  JobRequest request = imageposition::requestFor(content, chosen_, destination);
  if (arguments_.isUnshifted)
    removeOffsets(request);
  return request;
}

std::unique_ptr<JobSubmission> PrintJob::print(const DestinationList &destinations,
                                               const std::string &path,
                                               JobSubmission::Changed changed, OwnShift ownShift) {
  if (target_ == JobTarget::Ticket) {
    files_.writeTicket(ticket_, path);
    return nullptr;
  }
  input_.rewind(); // an earlier attempt may have read from it
  JobRequest request = this->request(destinations);
  if (target_ == JobTarget::Prepared) {
    files_.writePrepared(ticket_, request, ownShift);
    return nullptr;
  }
  if (target_ == JobTarget::PdfFile) {
    if (!hasDocument())
      throw Failure(ExitCode::Usage, messages::kNoDocumentForPdf);
    return files_.startPdf(content(), request, path, std::move(changed));
  }
  if (ownShift == OwnShift::Skip)
    removeOffsets(request);
  const Destination *const printer = destinations.find(chosen_.queue);
  const bool wouldPrint =
      printer == nullptr || (printer->acceptsJobs && printer->state != DestinationState::Stopped);
  if (arguments_.isDryRun && !wouldPrint)
    std::cerr << messages::wouldNotPrint(chosen_.queue,
                                         messages::besides({printer->stateText, printer->remarks}))
              << '\n';
  return sender_.submit(content(), request, std::move(changed));
}

std::unique_ptr<JobSubmission> PrintJob::printOther(const PrintedContent &content,
                                                    const DestinationList &destinations,
                                                    JobSubmission::Changed changed) {
  const MarkedAgain job(printer(), ticket_.settings);
  JobRequest request = requestFor(content, destinations.find(chosen_.queue));
  request.documentNames.assign(content.documents.size(), request.title);
  return sender_.submit(content, request, std::move(changed));
}

void PrintJob::report(const SubmittedJob &sent, std::ostream &output, std::ostream &notes) {
  if (target_ == JobTarget::PdfFile)
    files_.reportPdf(notes);
  else
    sender_.report(sent, output, notes);
}

} // namespace imageposition
