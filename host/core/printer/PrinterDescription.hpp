/// A printer's capabilities, from its PPD.
#ifndef IMAGEPOSITION_CORE_PRINTER_PRINTERDESCRIPTION_HPP
#define IMAGEPOSITION_CORE_PRINTER_PRINTERDESCRIPTION_HPP

#include "CupsHandles.hpp"
#include "OptionConstraints.hpp"
#include "PrintSettingsStore.hpp"

#include <map>
#include <optional>
#include <string>
#include <vector>

namespace imageposition {

/// For a printer whose driver does not move the image.
enum class MissingShift {
  Leave, ///< The description stays as it is: no panel, no offsets.
  Add,   ///< The description gets what the panel looks for; see `withImageShift`.
};

/// Names of options and choices are in the locale's language if the PPD, or else CUPS, has it; see
/// `MissingTexts.hpp`.
class PrinterDescription {
public:
  /// Reads a PPD file, which may be compressed. Throws a `Failure` that names file, line and
  /// reason, also if libcups would take too long to read it (see `PpdSize.hpp`).
  static PrinterDescription fromFile(const std::string &path);

  /// Requests from CUPS the PPD of a queue, or of "queue/instance", and the defaults that its users
  /// have set. Gives up when CUPS is silent for ten seconds. Throws a `Failure`. Can be called on
  /// any thread.
  static PrinterDescription ofQueue(const std::string &queue,
                                    MissingShift shift = MissingShift::Leave);

  /// Never null; owned by this object.
  ppd_file_t *ppd() const noexcept { return ppd_.get(); }

  /// The PPD as the printer has it, uncompressed, without what `MissingShift::Add` adds. Empty if
  /// it was read from a pipe.
  const std::string &text() const noexcept { return text_; }

  /// The queue's name, or the name that the PPD gives the printer.
  const std::string &name() const noexcept { return name_; }

  /// Marks the printer's defaults, then the queue's, then the job's choices. If an option accepts
  /// several choices, the job's list replaces the default.
  void mark(const PrintSettingsStore &job);

  /// Defaults for all jobs, set by the queue's users or an administrator. Empty for a file.
  const PrintSettingsStore &queueDefaults() const noexcept { return queueDefaults_; }

  /// Takes the defaults of the queue's printer in place of those of its instance, and its name.
  /// Does nothing for a queue without an instance.
  void leaveInstance();

  /// The choices that are marked for a job without settings, by keyword; a list for an option that
  /// accepts several. Computed at the first call, which marks the PPD.
  const std::map<std::string, std::string> &defaultChoices();

  /// Read at the first call.
  const std::vector<OptionConstraint> &constraints();

  /// The values of all attributes with that keyword, in the file's order. Omits attributes without
  /// a value.
  std::vector<std::string> attributeValues(const std::string &keyword) const;

private:
  PrinterDescription(PpdFile ppd, std::string name);

  /// `queue` is empty for a file.
  void localize(const std::string &path, const std::string &queue);
  void markLists(const PrintSettingsStore &job);

  static PpdFile open(const std::string &path, const std::string &shownPath);

  PpdFile ppd_;
  std::string text_;
  std::string name_;
  PrintSettingsStore queueDefaults_;
  PrintSettingsStore printerDefaults_; ///< Those without the instance; empty if there is none.
  std::vector<ppd_option_t *> lists_;  ///< Options that accept several choices; owned by the PPD.
  std::optional<std::map<std::string, std::string>> defaultChoices_;
  std::optional<std::vector<OptionConstraint>> constraints_;
};

} // namespace imageposition

#endif
