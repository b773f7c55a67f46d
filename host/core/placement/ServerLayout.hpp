/// How another CUPS lays out what a queue passes on to it.
#ifndef IMAGEPOSITION_CORE_PLACEMENT_SERVERLAYOUT_HPP
#define IMAGEPOSITION_CORE_PLACEMENT_SERVERLAYOUT_HPP

#include <functional>
#include <string>
#include <string_view>

namespace imageposition {

/// Whether CUPS on this computer passes PDF documents on without laying them out: it has described
/// the queue of another CUPS. `description` is the text of a PPD.
bool isLaidOutByServer(std::string_view description);

/// Returns `description` with the direction in which `server` turns wide pages. Both are texts of
/// PPDs. Returns `description` as it is if either has none to give or to take.
std::string withLandscapeOf(std::string_view server, const std::string &description);

/// If another CUPS lays out what the queue gets, asks it which way it turns wide pages, and returns
/// `description` with it: CUPS leaves that out of the descriptions that it generates.
/// `description` is the text of the queue's PPD, `device` its device URI. Returns `description` as
/// it is if the server does not say so within a few seconds, or if `keepWaiting` returns false.
std::string withServerLayout(const std::string &description, const std::string &device,
                             const std::function<bool()> &keepWaiting);

} // namespace imageposition

#endif
