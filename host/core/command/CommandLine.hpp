/// The command line of print-dialog.
#ifndef IMAGEPOSITION_HOST_COMMANDLINE_HPP
#define IMAGEPOSITION_HOST_COMMANDLINE_HPP

#include "BatchRequest.hpp"

#include <string>
#include <variant>
#include <vector>

namespace imageposition {

/// What was asked for. Empty texts stand for what was not given.
struct Arguments {
  std::string ppd;    ///< A printer description file; never given together with `queue`.
  std::string queue;  ///< A CUPS queue, perhaps with "/instance"; without both, the default one.
  std::string server; ///< The CUPS server, as "host", "host:port" or the path of a socket.
  std::string user;   ///< Whom the job belongs to.
  bool isEncrypted = false; ///< The connection to CUPS has to be.
  /// Each "name=value", or several separated by blanks, in the order of the command line; what -n,
  /// -q, -P and -H say stands among them, so that the last one counts as it does for lp.
  std::vector<std::string> options;
  std::vector<std::string> plugins;
  std::string ticket;
  std::vector<std::string> documents; ///< "-" stands for standard input, at most once.
  std::string title;
  std::string appearance;        ///< "light" or "dark".
  std::string textScale;         ///< A number above 0.
  bool isMailWanted = false;     ///< When the job is done.
  bool isSilent = false;         ///< Nothing is said of what went well.
  bool isListingOptions = false; ///< Of the printer, with their choices; nothing is printed.
  bool isDryRun = false;
  bool isBatch = false;
  BatchRequest batch;
};

/// Text for standard output, after which there is nothing left to do.
struct Answer {
  std::string text;
};

/// Throws a `Failure` with `ExitCode::Usage`; also for an option, before "--", that is at the same
/// time the name of an existing file. `words` are the arguments without the program's name.
std::variant<Arguments, Answer> readCommandLine(std::vector<std::string> words);

} // namespace imageposition

#endif
