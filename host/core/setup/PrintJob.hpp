/// The print job that is being set up: its printer, settings and documents.
#ifndef IMAGEPOSITION_CORE_SETUP_PRINTJOB_HPP
#define IMAGEPOSITION_CORE_SETUP_PRINTJOB_HPP

#include "CommandLine.hpp"
#include "Destinations.hpp"
#include "JobSubmission.hpp"
#include "PrinterDescription.hpp"
#include "Ticket.hpp"

#include <iosfwd>
#include <memory>
#include <string>
#include <vector>

namespace imageposition {

/// Main thread only.
class PrintJob {
public:
  /// Opens the printer and the ticket that the command line names. Throws a `Failure`. `arguments`
  /// outlives this.
  explicit PrintJob(const Arguments &arguments);
  PrintJob(const PrintJob &) = delete;
  PrintJob &operator=(const PrintJob &) = delete;

  const Arguments &arguments() const noexcept { return arguments_; }
  /// "queue" or "queue/instance"; empty for a description file.
  const std::string &queue() const noexcept { return queue_; }
  PrinterDescription &printer() noexcept { return *printer_; }
  const PrinterDescription &printer() const noexcept { return *printer_; }
  PrintSettingsStore &settings() noexcept { return ticket_.settings; }

  /// Whether CUPS gets the job; otherwise its settings are written.
  bool isSubmitted() const noexcept { return isSubmitted_; }
  /// Without effect where there is no queue to submit to.
  void setSubmitted(bool submitted) noexcept { isSubmitted_ = submitted && !queue_.empty(); }

  /// Opens the printer of another queue. Throws a `Failure`.
  std::unique_ptr<PrinterDescription> openPrinter(const std::string &queue) const;
  /// Takes another queue and its printer, with those of the job's settings that the printer can
  /// have. Nothing may refer to the printer that the job had before.
  void takePrinter(const std::string &queue, std::unique_ptr<PrinterDescription> printer);

  /// As the command line or the ticket names them; none for standard input that nobody named.
  const std::vector<std::string> &documents() const noexcept { return ticket_.documents; }
  /// Whether there is something to print: a document, or, for a window, what comes in.
  bool hasDocument() const;

  /// What CUPS is asked for: the destination's defaults, where the list has it, and the job's
  /// settings.
  JobRequest request(const DestinationList &destinations) const;

  /// What Print does: writes a ticket of that path (the settings to standard output, if the path is
  /// empty), writes the request of a dry run to standard output, or starts to submit the job, which
  /// the caller awaits and reports. Null for the first two. Throws a `Failure`.
  std::unique_ptr<JobSubmission> print(const DestinationList &destinations,
                                       const std::string &ticketPath,
                                       JobSubmission::Changed changed = {});

  /// Says that CUPS has the job: lp's line on `output`, what is special on `notes`; nothing when
  /// the command line asks for silence.
  void report(const SubmittedJob &sent, std::ostream &output, std::ostream &notes);
  /// CUPS's name of the submitted job, "office-12"; empty before `report`.
  const std::string &sentName() const noexcept { return sentName_; }
  /// A sentence that names the written files; empty before they are written.
  const std::string &done() const noexcept { return done_; }

private:
  void keepWhatFits(const PrinterDescription &before);
  void writeTicketTo(const std::string &path);
  std::vector<std::string> documentsToSend() const;

  const Arguments &arguments_;
  std::string queue_;
  std::unique_ptr<PrinterDescription> printer_;
  Ticket ticket_;
  bool isSubmitted_;
  std::string sentName_;
  std::string done_;
};

} // namespace imageposition

#endif
