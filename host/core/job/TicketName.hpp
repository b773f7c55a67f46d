/// How the file of a ticket is called.
#ifndef IMAGEPOSITION_HOST_TICKETNAME_HPP
#define IMAGEPOSITION_HOST_TICKETNAME_HPP

#include <string>
#include <vector>

namespace imageposition {

/// For a job of these documents: "report.json" for "/home/ann/report.pdf"; "job.json" for none.
std::string suggestedTicket(const std::vector<std::string> &documents);

/// The path that a person means: blanks around it are dropped, "~/" is `home`, and a name without
/// an ending gets ".json". Empty for nothing.
std::string ticketPath(const std::string &typed, const std::string &home);

} // namespace imageposition

#endif
