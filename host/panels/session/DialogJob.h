/// What a dialog is about: a printer, its panels and the job's settings.
#ifndef IMAGEPOSITION_HOST_DIALOGJOB_H
#define IMAGEPOSITION_HOST_DIALOGJOB_H

#include "CommandLine.hpp"
#import "PanelSession.h"
#include "Presets.hpp"
#include "PrinterDescription.hpp"
#include "Ticket.hpp"

#include <iosfwd>
#include <memory>
#include <string>
#include <vector>

namespace imageposition {

struct JobRequest;
struct SubmittedJob;

class DialogJob {
public:
  /// Opens the printer, the ticket and the plug-ins that the command line names. Throws a
  /// `Failure`. `arguments` outlives this.
  explicit DialogJob(const Arguments &arguments);

  /// Whether CUPS gets the job; otherwise its settings are written.
  bool isSubmitted() const noexcept { return isSubmitted_; }
  /// Without effect where there is no queue to submit to.
  void setSubmitted(bool submitted) noexcept { isSubmitted_ = submitted && !queue_.empty(); }

  /// "queue" or "queue/instance"; empty for a description file.
  const std::string &queue() const noexcept { return queue_; }
  /// Takes another queue, with its panels and those of the job's settings that it can have. Throws
  /// a `Failure`, and then everything is as it was.
  void chooseQueue(const std::string &queue);

  const Arguments &arguments() const noexcept { return arguments_; }
  PrinterDescription &printer() noexcept { return *printer_; }
  PrintSettingsStore &settings() noexcept { return ticket_.settings; }
  /// Another one after each `chooseQueue`. There is none before `loadPanels`.
  PanelSession &panels() noexcept { return *panels_; }
  /// Needs the application.
  void loadPanels();
  const std::vector<std::string> &plugins() const noexcept { return plugins_; }

  /// Sentences about settings of the queue's preset that the printer does not take as they are.
  /// Standard error has them already.
  const std::vector<std::string> &misfits() const noexcept { return preset_.misfits; }

  /// As they were named, here or in the ticket; none for standard input that nobody named.
  const std::vector<std::string> &documents() const noexcept { return ticket_.documents; }
  /// Paths; "-" for standard input.
  std::vector<std::string> documentsToSend() const;
  /// Whether there is something to print: a document, or, for a window, what comes in.
  bool hasDocument() const;
  /// As CUPS is asked, but for the destination's defaults.
  JobRequest request() const;

  /// What there is to say when CUPS has taken it: lp's line for `output`, what is special for
  /// `notes`; nothing in silence.
  void report(const SubmittedJob &sent, std::ostream &output, std::ostream &notes);
  /// What CUPS calls the job that it has taken, "office-12"; empty before `report`.
  const std::string &sentName() const noexcept { return sentName_; }

  /// Writes the ticket, or the settings to standard output: as they are for a program that reads
  /// them there, `visible` on a terminal. Throws a `Failure`.
  void writeSettings();
  /// Writes a ticket of that path. Throws a `Failure`.
  void writeSettings(const std::string &path);

  /// A sentence that names the files that `writeSettings` has written; empty before.
  const std::string &done() const noexcept { return done_; }

private:
  void keepWhatFits(const PrinterDescription &before);

  const Arguments &arguments_;
  std::string queue_;
  std::unique_ptr<PrinterDescription> printer_;
  LoadedPreset preset_; // of the queue that was named first
  Ticket ticket_;
  std::vector<std::string> plugins_;
  std::unique_ptr<PanelSession> panels_; // refers to the printer and the ticket
  bool isSubmitted_;
  std::string sentName_;
  std::string done_;
};

} // namespace imageposition

#endif
