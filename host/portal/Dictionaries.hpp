/// The portal's dictionaries on the bus.
#ifndef IMAGEPOSITION_PORTAL_DICTIONARIES_HPP
#define IMAGEPOSITION_PORTAL_DICTIONARIES_HPP

#include "PortalJob.hpp"

#include <gio/gio.h>

namespace imageposition {

/// Entries of another type than GTK's are left out. Borrows both, which are of type a{sv}.
PortalJob readJob(GVariant *settings, GVariant *pageSetup);

/// New and floating, of type a{sv}.
GVariant *settingsVariant(const PortalSettings &settings);
GVariant *pageVariant(const PortalPage &page);

} // namespace imageposition

#endif
