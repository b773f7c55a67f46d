/// The command line of print-dialog.
#ifndef IMAGEPOSITION_CORE_COMMAND_COMMANDLINE_HPP
#define IMAGEPOSITION_CORE_COMMAND_COMMANDLINE_HPP

#include "BatchRequest.hpp"

#include <string>
#include <variant>
#include <vector>

namespace imageposition {

/// What to do with the file of measurements, instead of printing.
struct AlignmentFile {
  bool isListed = false;
  std::string exported; ///< The file to write.
  std::string imported; ///< The file to read.
  std::string deleted;  ///< The queue.

  bool isWanted() const noexcept {
    return isListed || !exported.empty() || !imported.empty() || !deleted.empty();
  }
};

/// The parsed command line. An empty string means that the option was not given.
struct Arguments {
  std::string ppd;    ///< A PPD file; excludes `queue`.
  std::string queue;  ///< A CUPS queue, or "queue/instance". If `ppd` is empty, too: the default.
  std::string server; ///< The CUPS server, as "host", "host:port" or the path of a socket.
  std::string user;   ///< The owner of the job.
  bool isEncrypted = false; ///< The connection to CUPS must be encrypted.
  /// Each is "name=value", or several separated by blanks, in the order of the command line.
  /// Includes -n, -q, -P and -H, because the last one wins, as with lp.
  std::vector<std::string> options;
  std::vector<std::string> plugins;
  std::string ticket;
  std::string pdf; ///< Write the pages to this file; excludes `ticket` and a dry run.
  /// Write the job to this file in place of printing it; for `prepared`. Its documents do not exist
  /// yet.
  std::string prepare;
  std::string prepared; ///< A file that `prepare` wrote: the printer and the settings.
  /// The window that the dialog belongs to, for `readParent`.
  std::string parent;
  std::vector<std::string> documents; ///< "-" is standard input, at most once.
  std::string title;
  std::string appearance;        ///< "light" or "dark".
  std::string textScale;         ///< A number above 0.
  bool isMailWanted = false;     ///< Send mail when the job is done.
  bool isSilent = false;         ///< Report only errors.
  bool isListingOptions = false; ///< List the printer's options instead of printing.
  bool isDryRun = false;
  bool isUnshifted = false;          ///< Print without moving the image.
  bool isUnaligned = false;          ///< Ignore the measured offsets.
  bool isAligning = false;           ///< Print alignment sheets, or use their readings.
  std::vector<std::string> readings; ///< Of alignment sheets, one each.
  std::string crease;                ///< The reading of an alignment sheet's rulers.
  std::string sheetFile;             ///< Write the alignment sheets to this file.
  AlignmentFile alignments;
  bool isBatch = false;
  BatchRequest batch;
};

/// Output for --help or --version, after which the program ends.
struct Answer {
  std::string text;
};

/// Parses the arguments, without the program's name. Throws a `Failure` with `ExitCode::Usage` for
/// a mistake, and for an option before "--" that is also the name of an existing file.
std::variant<Arguments, Answer> readCommandLine(std::vector<std::string> words);

} // namespace imageposition

#endif
