/// The print job being set up: its printer, settings and documents.
#ifndef IMAGEPOSITION_CORE_SETUP_PRINTJOB_HPP
#define IMAGEPOSITION_CORE_SETUP_PRINTJOB_HPP

#include "CommandLine.hpp"
#include "Destinations.hpp"
#include "History.hpp"
#include "JobAlignment.hpp"
#include "JobFiles.hpp"
#include "JobSender.hpp"
#include "JobStart.hpp"
#include "JobSubmission.hpp"
#include "OpenedPrinter.hpp"
#include "PrintedContent.hpp"
#include "PrinterDescription.hpp"
#include "StandardInput.hpp"
#include "Ticket.hpp"

#include <iosfwd>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace imageposition {

/// What `PrintJob::print` does.
enum class JobTarget {
  Printer,  ///< Submits the job to CUPS.
  Ticket,   ///< Writes its settings.
  PdfFile,  ///< Writes its document, laid out and moved.
  Prepared, ///< Writes its printer and its settings for --prepared.
};

/// Main thread only.
class PrintJob {
public:
  /// Opens the ticket or the prepared job that the command line names. Throws a `Failure`.
  /// `arguments` is borrowed and must outlive this object. A printer whose queue names no preset
  /// begins with the settings that the history has for it; offsets that were measured for the
  /// paper, tray and turning replace those of the history, and of a preset that has none; the
  /// ticket and the command line override them.
  PrintJob(const Arguments &arguments, OpenedPrinter &&first, History history = {});
  PrintJob(const PrintJob &) = delete;
  PrintJob &operator=(const PrintJob &) = delete;

  const Arguments &arguments() const noexcept { return arguments_; }
  /// "queue" or "queue/instance"; empty for a description file.
  const std::string &queue() const noexcept { return chosen_.queue; }
  PrinterDescription &printer() noexcept { return *chosen_.printer; }
  const PrinterDescription &printer() const noexcept { return *chosen_.printer; }
  PrintSettingsStore &settings() noexcept { return ticket_.settings; }

  /// With which settings and preset the job began, and the next ones begin.
  JobStart &start() noexcept { return start_; }
  const JobStart &start() const noexcept { return start_; }
  /// The job's measured offsets.
  JobAlignment &alignment() noexcept { return alignment_; }

  /// Stores the printer, its settings and the window's size for the next job, as
  /// `JobStart::remember`. Leaves out measured offsets, which the next job takes anyway.
  void remember(const std::optional<WindowSize> &window) const;
  /// Leaves the preset that the queue names, so that CUPS no longer adds its settings: the queue is
  /// then the printer. Keeps the job's settings.
  void leavePreset();

  JobTarget target() const noexcept { return target_; }
  /// Whether the job is set up for a document that does not exist yet. It has a printer, and no
  /// other target.
  bool isPreparing() const noexcept { return !arguments_.prepare.empty(); }
  /// Without a queue, a ticket takes the place of the printer.
  void setTarget(JobTarget target) noexcept;

  /// Switches to another printer, and keeps the settings that it accepts. What the history has for
  /// it replaces settings that are as they were at the start; returns whether there are any.
  /// Destroys the previous printer.
  bool takePrinter(OpenedPrinter opened);

  /// Removes the panels' settings, which belong to the printer, and returns them: those of the
  /// options that the panels handle, and those with a dot in their names, which only panels have.
  PrintSettingsStore removePanelSettings(const std::vector<std::string> &optionKeys);

  /// As named on the command line or in the ticket; empty if standard input is implied.
  const std::vector<std::string> &documents() const noexcept { return ticket_.documents; }
  /// Takes other documents, at least one. `print` then submits them, unless another target was
  /// chosen.
  void setDocuments(const std::vector<std::string> &paths);
  /// Whether there is something to print: a document, or redirected input.
  bool hasDocument() const;

  /// The job's title unless its setting "job-name" gives another: the command line's, or the first
  /// document's name.
  std::string title() const;

  /// The request to send to CUPS: the job's settings and, if `destinations` has the queue, its
  /// defaults.
  JobRequest request(const DestinationList &destinations) const;

  /// Does what the target says: writes a ticket to `path` (or the settings to standard output, if
  /// the path is empty), writes a prepared job, starts to write a PDF file to `path`, writes the
  /// request of a dry run to standard output, or starts to submit the job. If the printer's driver
  /// does not apply the offsets, the submission first moves the documents. Returns the submission,
  /// or the writing of a PDF file, which the caller awaits and reports; null in the other cases.
  /// Throws a `Failure`, which is a `ShiftFailure` if the dialog cannot move the image.
  std::unique_ptr<JobSubmission> print(const DestinationList &destinations, const std::string &path,
                                       JobSubmission::Changed changed = {},
                                       OwnShift ownShift = OwnShift::Apply);
  /// Starts to submit other documents, which are named like their job, with other settings. Leaves
  /// the job as it is. Returns null after a dry run. Throws as `print`.
  std::unique_ptr<JobSubmission> printOther(const PrintedContent &content,
                                            const DestinationList &destinations,
                                            JobSubmission::Changed changed = {});

  /// Reports a PDF file to `notes`, or the job that was submitted last: lp's line to `output`,
  /// remarks to `notes`. In batch mode, one of these is what the dialog's move of the image pushes
  /// out of the printable area. Writes nothing if the command line has -s or -m.
  void report(const SubmittedJob &sent, std::ostream &output, std::ostream &notes);
  /// CUPS's name of the submitted job, "office-12"; empty before `report`.
  const std::string &sentName() const noexcept { return sender_.sentName(); }
  /// A sentence that names the written files; empty until they are written.
  const std::string &done() const noexcept { return files_.done(); }

private:
  JobTarget firstTarget() const;
  void takeFlagOfQueue();
  JobRequest requestFor(const PrintedContent &content, const Destination *destination) const;
  PrintedContent content() const;
  std::vector<std::string> documentsToSend() const;

  const Arguments &arguments_;
  OpenedPrinter chosen_; // before the parts, which refer to it
  JobStart start_;
  Ticket ticket_;
  JobAlignment alignment_;
  std::vector<std::string> documents_; // to print; empty if standard input is implied
  StandardInput input_;
  JobTarget target_;
  bool isTargetChosen_ = false;
  JobSender sender_;
  JobFiles files_;
};

} // namespace imageposition

#endif
