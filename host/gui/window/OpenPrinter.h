/// Opens printers while the window stays usable.
#ifndef IMAGEPOSITION_GUI_WINDOW_OPENPRINTER_H
#define IMAGEPOSITION_GUI_WINDOW_OPENPRINTER_H

#include "BackgroundCall.hpp"
#include "Destinations.hpp"
#include "ExitCode.hpp"
#include "PrintJob.hpp"
#import "WaitPanel.h"

#import <AppKit/AppKit.h>

#include <iosfwd>
#include <memory>
#include <optional>
#include <string>
#include <variant>

namespace imageposition {

/// Opens a printer on a background thread. Main thread.
class PrinterOpening {
public:
  /// Starts to open the printer of a queue; if the name is empty, of the default queue.
  /// If `mayBeGone`, a queue that CUPS does not have is replaced by the default queue.
  PrinterOpening(const std::string &queue, MissingShift shift, bool mayBeGone = false);

  /// Waits, and after a moment shows a window in the middle of `parent`, which may be null. Returns
  /// none if the user cancelled. Throws a `Failure`. Call it once.
  std::optional<OpenedPrinter> await(NSWindow *parent);
  /// CUPS's printers, for the user to choose another one after a failure; may be empty.
  const DestinationList &printers() const noexcept { return printers_; }

private:
  struct Outcome;

  static Outcome open(const std::string &queue, MissingShift shift, bool mayBeGone);

  WaitPanel panel_;
  BackgroundCall<Outcome> call_;
  DestinationList printers_;
};

/// Awaits the first printer. If it cannot be opened, writes the reason to `errors`, and asks the
/// user for another one until there is one. Returns the exit code if the user gives up.
std::variant<OpenedPrinter, ExitCode> awaitFirstPrinter(std::unique_ptr<PrinterOpening> opening,
                                                        const std::string &queue,
                                                        MissingShift shift, std::ostream &errors);

} // namespace imageposition

#endif
