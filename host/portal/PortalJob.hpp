/// The settings of an application's print job, in the portal's terms and in print-dialog's.
#ifndef IMAGEPOSITION_PORTAL_PORTALJOB_HPP
#define IMAGEPOSITION_PORTAL_PORTALJOB_HPP

#include "Ticket.hpp"

#include <map>
#include <string>
#include <vector>

namespace imageposition {

/// GTK's print settings, which the portal passes: strings by name.
using PortalSettings = std::map<std::string, std::string>;

/// GTK's page setup. Lengths are in millimetres, with the sheet upright.
struct PortalPage {
  std::string name;        ///< "iso_a4".
  std::string ppdName;     ///< "A4".
  std::string displayName; ///< For users.
  double width = 0;        ///< 0 if unknown, as are those below.
  double height = 0;
  double top = 0; ///< The margins.
  double bottom = 0;
  double left = 0;
  double right = 0;
  std::string orientation; ///< "portrait", "landscape", "reverse_portrait", "reverse_landscape".
};

struct PortalJob {
  PortalSettings settings;
  PortalPage page;
};

/// The arguments of print-dialog that propose these settings, without defaults and settings that no
/// control shows.
std::vector<std::string> wordsFor(const PortalJob &job);

/// What an application gets in return for `asked`. It lays its document out for the paper and the
/// orientation in `prepared`, and for nothing else: the job has the other settings, and whatever
/// the application applied as well would be applied twice. Never returns a setting that the
/// application did not know unless GTK defines it, because it may be a password.
PortalJob replyTo(const PortalJob &asked, const Ticket &prepared);

/// The job to print once the application has laid its document out: without the orientation.
Ticket ticketToPrint(Ticket prepared);

} // namespace imageposition

#endif
