/// What is printed, its request to CUPS, and its move.
#ifndef IMAGEPOSITION_CORE_SETUP_PRINTEDCONTENT_HPP
#define IMAGEPOSITION_CORE_SETUP_PRINTEDCONTENT_HPP

#include "Destinations.hpp"
#include "JobRequest.hpp"
#include "JobSubmission.hpp"
#include "OpenedPrinter.hpp"

#include <memory>
#include <string>

namespace imageposition {

class ShiftedJob;
struct ShiftDecision;
struct ShiftPlan;

/// What is printed with a job's printer and queue.
struct PrintedContent {
  PrintSettingsStore settings;
  JobDocuments documents;
  std::string title;
};

/// What becomes of offsets that the dialog would apply itself.
enum class OwnShift {
  Apply,
  Skip, ///< As with --no-shift.
};

/// The request to send to CUPS, with the destination's defaults unless `destination` is null. The
/// setting "job-name" is stronger than the content's title.
JobRequest requestFor(const PrintedContent &content, const OpenedPrinter &printer,
                      const Destination *destination);

/// Who moves the image of a job with these settings, whose choices it marks. Throws what
/// `optionsToSend` throws.
ShiftDecision shiftOf(const JobRequest &request, const PrintSettingsStore &settings,
                      PrinterDescription &printer);

/// The job that the dialog lays out and moves. The printer must have the job's choices marked.
/// Throws as the constructor of `ShiftedJob`.
std::unique_ptr<ShiftedJob> shiftedJob(const JobRequest &request, const ShiftPlan &plan,
                                       const PrinterDescription &printer);

} // namespace imageposition

#endif
