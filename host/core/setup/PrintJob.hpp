/// The print job being set up: its printer, settings and documents.
#ifndef IMAGEPOSITION_CORE_SETUP_PRINTJOB_HPP
#define IMAGEPOSITION_CORE_SETUP_PRINTJOB_HPP

#include "Alignments.hpp"
#include "CommandLine.hpp"
#include "Destinations.hpp"
#include "History.hpp"
#include "JobSubmission.hpp"
#include "OpenedPrinter.hpp"
#include "Presets.hpp"
#include "PrinterDescription.hpp"
#include "Ticket.hpp"

#include <iosfwd>
#include <memory>
#include <optional>
#include <string>
#include <sys/types.h>
#include <vector>

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
  const std::string &queue() const noexcept { return queue_; }
  PrinterDescription &printer() noexcept { return *printer_; }
  const PrinterDescription &printer() const noexcept { return *printer_; }
  PrintSettingsStore &settings() noexcept { return ticket_.settings; }

  /// The preset of the job's printer with which the job begins: the queue's, or the one that the
  /// history names; empty for none.
  const std::string &presetName() const noexcept { return presetName_; }
  /// Makes new jobs on this printer begin with the preset; with an empty name, with the last job's
  /// settings. Returns false, with a message to standard error, if that cannot be stored.
  bool makeDefault(const std::string &preset);
  /// The preset with which new jobs on this printer begin; may be empty.
  std::string defaultPreset() const;
  /// Stores the printer, its settings and the window's size for the next job. Leaves out settings
  /// that apply to one document or job, such as its layout, secrets, and what the command line
  /// gave.
  void remember(const std::optional<WindowSize> &window) const;

  /// Where the job's offsets come from: "The offsets were measured on ...". Empty unless they are
  /// those that were measured, and move the image.
  std::string alignmentNote();
  /// Call after the paper, the tray or the turning may have changed: takes the offsets that were
  /// measured for them. Offsets that the user has entered stay unless others were measured for the
  /// new settings. Returns whether the offsets have changed.
  bool followAlignment();

  /// Takes offsets that were measured just now with the job's paper, tray and turning, whatever the
  /// user or the command line has given. `followAlignment` knows them from then on.
  void takeAlignment(const MeasuredAlignment &alignment);

  /// One sentence for each setting of the first queue's preset that was changed or dropped because
  /// the printer does not accept it. The constructor writes them to standard error.
  const std::vector<std::string> &misfits() const noexcept { return preset_.misfits; }

  /// Throws a `Failure` with `ExitCode::Value` if the command line gives one of these options a
  /// value that is not a number, or one that is out of the printer's range.
  void requireNumbers(const std::vector<std::string> &keywords) const;

  /// Whether the job began with settings of the last job that are not the printer's defaults.
  bool isFromLastJob() const noexcept { return isFromLastJob_; }
  /// The last job's printer, if the job should have begun with it and did not; otherwise empty.
  const std::string &missingPrinter() const noexcept { return missingPrinter_; }

  /// The settings with which the job began, without those of the first queue's preset.
  const PrintSettingsStore &settingsWithoutPreset() const noexcept { return withoutPreset_; }
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
  const std::string &sentName() const noexcept { return sentName_; }
  /// A sentence that names the written files; empty until they are written.
  const std::string &done() const noexcept { return done_; }

private:
  JobTarget firstTarget() const;
  PrintSettingsStore given() const;
  Ticket firstTicket(const PrintSettingsStore &preset) const;
  LoadedPreset startOf(const PrinterDescription &printer);
  void keepWhatFits(const PrinterDescription &before);
  bool takeHistory();
  void takeFlagOfQueue();
  bool areOffsetsGiven() const;
  bool hasMeasuredOffsets() const;
  std::optional<FoundAlignment> alignmentHere();
  bool takeAlignment();
  PrintSettingsStore settingsToRemember() const;
  JobRequest requestFor(const PrintedContent &content, const DestinationList &destinations,
                        bool withDefaults) const;
  ShiftDecision shiftDecision(const JobRequest &request, const PrintSettingsStore &settings);
  std::unique_ptr<ShiftedJob> shiftedJob(const JobRequest &request, const ShiftPlan &plan);
  std::unique_ptr<JobSubmission> startPdf(const JobRequest &request, const std::string &path,
                                          JobSubmission::Changed changed);
  std::unique_ptr<JobSubmission> submit(const PrintedContent &content, const JobRequest &request,
                                        JobSubmission::Changed changed);
  void writeTicketTo(const std::string &path);
  void writePrepared(const JobRequest &request, OwnShift ownShift);
  std::vector<std::string> documentsToSend() const;
  bool isBackIgnored(const PrintSettingsStore &settings) const;
  static void warnOfPasswords(const JobDocuments &documents);

  const Arguments &arguments_;
  std::string queue_;
  std::unique_ptr<PrinterDescription> printer_;
  History history_;
  std::string presetName_;
  bool isFromLastJob_ = false;
  LoadedPreset preset_; // of the first queue
  Ticket ticket_;
  PrintSettingsStore atStart_;
  Alignments alignments_;
  std::optional<FoundAlignment> alignment_; // whose offsets the job has taken
  bool isMeasuredNow_ = false;              // with this printer, for this job
  PrintSettingsStore withoutPreset_;
  std::vector<std::string> documents_; // to print; empty if standard input is implied
  const off_t inputStart_;             // of standard input; -1 if it is a pipe
  JobTarget target_;
  bool isTargetChosen_ = false;
  std::string missingPrinter_;
  std::string origin_; // of measured offsets, in words
  std::string losses_; // of the job that is submitted
  std::size_t sentFiles_ = 0;
  std::string sentName_;
  std::string pdfNote_;
  std::string done_;
};

} // namespace imageposition

#endif
