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

/// Returns `description`, the text of a queue's PPD, with which pages laid out here are the other
/// way up nowhere: if another CUPS lays the queue's documents out, asks it which way it turns wide
/// pages, which the queue's own description does not say. `device` is the queue's device URI.
/// Returns `description` as it is if the server does not say so within a few seconds, or if
/// `keepWaiting` returns false.
std::string withServerLayout(const std::string &description, const std::string &device,
                             const std::function<bool()> &keepWaiting);

} // namespace imageposition

#endif
