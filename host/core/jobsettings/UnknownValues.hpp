/// Finds settings whose values neither the printer nor CUPS knows.
#ifndef IMAGEPOSITION_CORE_JOBSETTINGS_UNKNOWNVALUES_HPP
#define IMAGEPOSITION_CORE_JOBSETTINGS_UNKNOWNVALUES_HPP

#include "PrinterDescription.hpp"

#include <string>
#include <vector>

namespace imageposition {

/// One sentence for each setting of the job that has no effect because of its value, with a few
/// values that have one. Such a job is printed all the same, as lp does. Leaves out
/// `panelKeywords`, whose values the panels check, and settings for which any value may be right.
/// Hides secrets.
std::vector<std::string> unknownValues(const PrinterDescription &printer,
                                       const PrintSettingsStore &job,
                                       const std::vector<std::string> &panelKeywords);

} // namespace imageposition

#endif
