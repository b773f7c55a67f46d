/// What the command line gives a job: options and a ticket.
#ifndef IMAGEPOSITION_CORE_SETUP_GIVENSETTINGS_HPP
#define IMAGEPOSITION_CORE_SETUP_GIVENSETTINGS_HPP

#include "CommandLine.hpp"
#include "PrintSettingsStore.hpp"
#include "Ticket.hpp"

#include <cups/ppd.h>

#include <string>
#include <vector>

namespace imageposition {

/// The settings of the command line's options. Of an application's proposals, which --prepare
/// passes, only what the printer accepts.
PrintSettingsStore givenSettings(const Arguments &arguments, ppd_file_t *ppd);

/// The prepared job or the existing ticket that the command line names, or else the settings of a
/// preset; overridden by the command line's options. Throws a `Failure` if a file cannot be read.
Ticket givenTicket(const Arguments &arguments, ppd_file_t *ppd, const PrintSettingsStore &preset);

/// Throws a `Failure` with `ExitCode::Value` if the command line gives one of these options a value
/// that is not a number, or one that is out of the printer's range.
void requireNumbers(const Arguments &arguments, ppd_file_t *ppd,
                    const std::vector<std::string> &keywords);

/// Whether the command line has offsets for the back, which follows the front with these settings.
bool isBackIgnored(const Arguments &arguments, ppd_file_t *ppd, const PrintSettingsStore &settings);

/// Whether it is the value of a number or a flag that does nothing, as panels add them.
bool isOff(const char *value);

} // namespace imageposition

#endif
