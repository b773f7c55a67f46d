/// The print job that the user sets up, with its panels: what the window shows, and what is printed
/// without a window.
#ifndef IMAGEPOSITION_PANELS_SESSION_PRINTSESSION_H
#define IMAGEPOSITION_PANELS_SESSION_PRINTSESSION_H

#include "Destinations.hpp"
#include "DocumentExaminer.hpp"
#import "PanelSession.h"
#include "PanelValues.hpp"
#include "PrintJob.hpp"

#include <map>
#include <memory>
#include <string>
#include <vector>

namespace imageposition {

/// Main thread only.
class PrintSession {
public:
  /// Borrows both. The examiner may be examining the job's document already.
  PrintSession(PrintJob &job, DocumentExaminer &examiner) : job_(job), examiner_(examiner) {}

  PrintJob &job() noexcept { return job_; }
  /// Used by the window only.
  DocumentExaminer &examiner() noexcept { return examiner_; }
  /// Loads the plug-ins and their panels. Needs the application.
  void loadPanels();
  /// Another session after each `takePrinter`. Not before `loadPanels`.
  PanelSession &panels() noexcept { return *panels_; }
  /// The paths of the plug-ins that the printer and the command line name.
  const std::vector<std::string> &plugins() const noexcept { return plugins_; }

  /// Takes another printer, with its panels and those of the job's settings that it accepts. The
  /// panels' numbers are kept unless they are the defaults of the printer before. Let the panels
  /// save first.
  NumbersNow takePrinter(OpenedPrinter opened);

  /// Has the panels read offsets that the job has taken from a measurement. Returns what to say:
  /// where they come from, and which panels failed.
  std::string readMeasuredOffsets();

  /// The printers in CUPS's last response.
  Destinations &destinations() noexcept { return destinations_; }

private:
  struct PanelSettings {
    std::vector<std::string> optionKeys;
    PrintSettingsStore values;
  };

  PrintJob &job_;
  DocumentExaminer &examiner_;
  std::map<std::string, PanelSettings> left_; // by queue, of printers that were chosen before
  Destinations destinations_;
  LoadedPlugins loaded_; // also those that only earlier printers named
  std::vector<std::string> plugins_;
  std::unique_ptr<PanelSession> panels_; // refers to the job's printer and settings
};

} // namespace imageposition

#endif
