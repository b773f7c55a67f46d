/// The command line of print-dialog.
#ifndef IMAGEPOSITION_HOST_COMMANDLINE_HPP
#define IMAGEPOSITION_HOST_COMMANDLINE_HPP

#include "host/BatchRequest.hpp"

#include <string>
#include <variant>
#include <vector>

namespace imageposition {

/// What was asked for. Empty texts stand for what was not given.
struct Arguments {
  std::string ppd;    ///< A printer description file; never given together with `queue`.
  std::string queue;  ///< A CUPS queue, perhaps with "/instance"; without both, the default one.
  std::string server; ///< The CUPS server, as "host", "host:port" or the path of a socket.
  std::vector<std::string> options; ///< Each "name=value", or several separated by blanks.
  std::vector<std::string> plugins;
  std::string ticket;
  std::string document; ///< "-" stands for standard input.
  std::string title;
  std::string pages; ///< As "1-3,7"; not yet checked.
  int copies = 0;    ///< From 1; 0 when not given.
  int priority = 0;  ///< From 1 to 100; 0 when not given.
  bool isDryRun = false;
  bool isBatch = false;
  BatchRequest batch;
};

/// Text for standard output, after which there is nothing left to do.
struct Answer {
  std::string text;
};

/// Throws a `Failure` with `ExitCode::Usage`. `words` are the arguments without the program's name.
std::variant<Arguments, Answer> readCommandLine(std::vector<std::string> words);

/// Takes out "-NSName value" and "-GSName value": defaults of the platform, which reads them
/// itself.
std::vector<std::string> withoutPlatformDefaults(const std::vector<std::string> &words);

} // namespace imageposition

#endif
