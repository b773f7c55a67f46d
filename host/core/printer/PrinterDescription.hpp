/// What a printer can do, from its PPD.
#ifndef IMAGEPOSITION_HOST_PRINTERDESCRIPTION_HPP
#define IMAGEPOSITION_HOST_PRINTERDESCRIPTION_HPP

#include "CupsHandles.hpp"
#include "OptionConstraints.hpp"
#include "PrintSettingsStore.hpp"

#include <map>
#include <optional>
#include <string>
#include <vector>

namespace imageposition {

/// Options and choices have their texts in the locale's language, as far as the PPD has it, or else
/// CUPS, where it has the queue; see `MissingTexts.hpp`.
class PrinterDescription {
public:
  /// Reads a PPD file, compressed or not. Throws a `Failure` that names file, line and reason; also
  /// for one that libcups would take too long to read, see `PpdSize.hpp`.
  static PrinterDescription fromFile(const std::string &path);

  /// Asks CUPS for the PPD of a queue, or of "queue/instance", and for the options that the queue's
  /// users have made its defaults. Throws a `Failure`.
  static PrinterDescription ofQueue(const std::string &queue);

  /// Never null; this object's.
  ppd_file_t *ppd() const noexcept { return ppd_.get(); }

  /// The queue's name, or the name that the PPD gives the printer.
  const std::string &name() const noexcept { return name_; }

  /// Marks the choices that hold for a job: the printer's defaults, the queue's, then the job's. Of
  /// an option that takes several choices at once the job's list holds instead of the default.
  void mark(const PrintSettingsStore &job);

  /// What the queue's users, or an administrator, chose for all jobs. Empty for a file.
  const PrintSettingsStore &queueDefaults() const noexcept { return queueDefaults_; }

  /// What a job without settings has marked, by keyword; of an option that takes several choices a
  /// list. Found at the first call, which marks the PPD.
  const std::map<std::string, std::string> &defaultChoices();

  /// Read at the first call.
  const std::vector<OptionConstraint> &constraints();

  /// The values of all attributes with that keyword, in the file's order; those without a value are
  /// left out.
  std::vector<std::string> attributeValues(const std::string &keyword) const;

private:
  PrinterDescription(PpdFile ppd, std::string name);

  /// `queue` is empty for a file.
  void localize(const std::string &path, const std::string &queue);
  void markLists(const PrintSettingsStore &job);

  static PpdFile open(const std::string &path, const std::string &shownPath);

  PpdFile ppd_;
  std::string name_;
  PrintSettingsStore queueDefaults_;
  std::vector<ppd_option_t *> lists_; ///< The options that take several choices; the PPD's.
  std::optional<std::map<std::string, std::string>> defaultChoices_;
  std::optional<std::vector<OptionConstraint>> constraints_;
};

} // namespace imageposition

#endif
