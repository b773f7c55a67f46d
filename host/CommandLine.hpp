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
  std::string ppd;   ///< A printer description file; exactly one of this and `queue` is given.
  std::string queue; ///< A CUPS queue, perhaps with "/instance".
  std::vector<std::string> options; ///< Each "name=value", or several separated by blanks.
  std::vector<std::string> plugins;
  std::string ticket;
  std::string document;
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
