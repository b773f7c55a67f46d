/// The steps that lead from alignment sheets to offsets.
#ifndef IMAGEPOSITION_CORE_SETUP_ALIGNMENTSTEPS_HPP
#define IMAGEPOSITION_CORE_SETUP_ALIGNMENTSTEPS_HPP

#include "Aligner.hpp"
#include "ReadingForm.hpp"

#include <optional>
#include <ostream>
#include <string>
#include <vector>

namespace imageposition {

/// Print the sheets, read them, and check the offsets with new sheets. Main thread only.
class AlignmentSteps {
public:
  enum class Step { Print, Read, Check };

  /// Borrows the job, and `errors` for messages about the file of measurements. Throws a
  /// `Failure` if the job's settings allow no sheets.
  AlignmentSteps(PrintJob &job, std::ostream &errors);

  Step step() const noexcept { return step_; }
  /// What the step does, a paragraph each.
  std::vector<std::string> explanation() const;

  /// Of the job's offsets as they were when the step began.
  Aligner &aligner() noexcept { return *aligner_; }
  /// New sheets were printed, with the aligner: they can be read.
  void sheetsPrinted();
  /// Reads sheets that were printed earlier.
  void read();
  /// Returns to the step before; keeps what was read.
  void goBack();
  /// Begins again after `takeOffsets`, with the new offsets. Throws a `Failure` as the constructor.
  void printAgain();

  ReadingForm &form() noexcept { return form_; }
  /// What the complete sheets show, a sentence each; empty without any.
  std::vector<std::string> findings() const;
  /// Sets the job's offsets to what the sheets show, and keeps them for the next jobs. Only if
  /// `form` has no problem. Returns false, with a message to `errors`, if they cannot be kept.
  bool takeOffsets();

private:
  ReadingForm emptyForm() const;
  AlignmentResult result() const;
  void begin();

  PrintJob &job_;
  std::ostream &errors_;
  Step step_ = Step::Print;
  std::optional<Aligner> aligner_; // always there; a new one each time it begins
  std::optional<SideOffsets> printed_;
  ReadingForm form_;
};

} // namespace imageposition

#endif
