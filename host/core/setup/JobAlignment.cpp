#include "JobAlignment.hpp"

#include "AlignmentTexts.hpp"
#include "Availability.hpp"
#include "JobSplit.hpp"
#include "SharedKeys.h"

#include <iostream>

namespace imageposition {

namespace {

bool isSame(const std::optional<FoundAlignment> &one, const std::optional<FoundAlignment> &other) {
  return one && other && one->offsets == other->offsets && one->date == other->date &&
         one->isOfOtherTurning == other->isOfOtherTurning;
}

} // namespace

JobAlignment::JobAlignment(const Arguments &arguments, const JobStart &start,
                           const OpenedPrinter &printer, PrintSettingsStore &settings)
    : start_(start), printer_(printer), settings_(settings) {
  if (!arguments.isUnaligned && !printer.queue.empty() && arguments.prepared.empty())
    all_ = Alignments::read(std::cerr);
}

std::optional<SideOffsets> JobAlignment::begin() {
  taken_.reset();
  isMeasuredNow_ = false;
  return takeHere() ? std::optional(taken_->offsets) : std::nullopt;
}

/// What was measured for the marked choices, if this printer's image can be moved.
std::optional<FoundAlignment> JobAlignment::here() const {
  ppd_file_t *const ppd = printer_.printer->ppd();
  if (ppdFindOption(ppd, offsetOptions().front().c_str()) == nullptr)
    return std::nullopt;
  return all_.find(alignmentKeyOf(printer_.queue, ppd));
}

bool JobAlignment::takeHere() {
  if (all_.all().empty() || (!isMeasuredNow_ && start_.hasOffsets()))
    return false;
  taken_ = here();
  if (taken_)
    setSideOffsets(settings_, taken_->offsets);
  return taken_.has_value();
}

bool JobAlignment::isInEffect() const {
  return taken_ && sideOffsetsIn(settings_) == taken_->offsets;
}

bool JobAlignment::follow() {
  if (all_.all().empty())
    return false;
  const SideOffsets before = sideOffsetsIn(settings_);
  printer_.printer->mark(settings_);
  if (availabilityOf(printer_.printer->ppd()).oneSided) // nothing moves
    return false;
  const auto here = this->here();
  const bool isTheUsers = taken_ ? !isInEffect() : !(before == SideOffsets());
  if (isTheUsers && (!here || isSame(here, taken_)))
    return false;
  const bool isLeft = taken_.has_value();
  if (!takeHere() && isLeft) {
    setSideOffsets(settings_, {});
    settings_.set(IPA_KEY_ENABLE, IPA_VALUE_FALSE);
  }
  return !(sideOffsetsIn(settings_) == before);
}

void JobAlignment::take(const MeasuredAlignment &alignment) {
  all_.store(alignment);
  taken_ = all_.find(alignment.key);
  isMeasuredNow_ = true;
  setSideOffsets(settings_, alignment.offsets);
}

std::string JobAlignment::note() {
  printer_.printer->mark(settings_);
  ppd_file_t *const ppd = printer_.printer->ppd();
  if (!isInEffect() || availabilityOf(ppd).oneSided)
    return "";
  return messages::measuredOn(taken_->date, keyInWords(alignmentKeyOf(printer_.queue, ppd), ppd),
                              taken_->isOfOtherTurning);
}

} // namespace imageposition
