/// The failure to open a printer.
#ifndef IMAGEPOSITION_CORE_PRINTER_PRINTERFAILURE_HPP
#define IMAGEPOSITION_CORE_PRINTER_PRINTERFAILURE_HPP

#include "ExitCode.hpp"

#include <string>

namespace imageposition {

/// Has `ExitCode::Printer`. The message says what to do on the command line; `problem` leaves that
/// out, for a window in which the user can choose another printer.
class PrinterFailure : public Failure {
public:
  PrinterFailure(const std::string &problem, const std::string &advice)
      : Failure(ExitCode::Printer, problem + " " + advice), problem_(problem) {}
  const std::string &problem() const noexcept { return problem_; }

private:
  std::string problem_;
};

} // namespace imageposition

#endif
