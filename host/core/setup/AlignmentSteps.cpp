#include "AlignmentSteps.hpp"

#include "AlignerTexts.hpp"
#include "AlignmentTexts.hpp"

namespace imageposition {

AlignmentSteps::AlignmentSteps(PrintJob &job, std::ostream &errors)
    : job_(job), errors_(errors), form_(0, false) {
  begin();
}

void AlignmentSteps::begin() {
  aligner_.emplace(job_);
  printed_ = Alignments::read(errors_).printed(aligner_->key());
  form_ = emptyForm();
  step_ = Step::Print;
}

ReadingForm AlignmentSteps::emptyForm() const {
  return {Aligner::kSheets, aligner_->layout().middle.has_value()};
}

std::vector<std::string> AlignmentSteps::explanation() const {
  const std::string settings = aligner_->settingsInWords();
  switch (step_) {
  case Step::Print: {
    std::vector<std::string> paragraphs{
        messages::printsSheets(Aligner::kSheets, job_.printer().name()),
        messages::sheetSettings(settings),
        messages::presentOffsets(messages::offsetsInWords(aligner_->present()))};
    if (printed_)
      paragraphs.push_back(messages::printedBefore(messages::offsetsInWords(*printed_)));
    return paragraphs;
  }
  case Step::Read:
    return {messages::kHowToRead};
  case Step::Check:
    break;
  }
  return {messages::alignmentStored(settings)};
}

void AlignmentSteps::sheetsPrinted() {
  aligner_->rememberPrinted(errors_);
  printed_ = aligner_->present();
  form_ = emptyForm();
  step_ = Step::Read;
}

void AlignmentSteps::read() { step_ = Step::Read; }

void AlignmentSteps::goBack() { step_ = Step::Print; }

void AlignmentSteps::printAgain() { begin(); }

AlignmentResult AlignmentSteps::result() const {
  return aligner_->result(form_.readings(), form_.crease(), printed_);
}

std::vector<std::string> AlignmentSteps::findings() const {
  return form_.readings().empty() ? std::vector<std::string>() : result().sentences();
}

bool AlignmentSteps::takeOffsets() {
  const MeasuredAlignment measured = aligner_->measured(result());
  const bool isStored = storeAlignment(measured, errors_);
  job_.alignment().take(measured);
  step_ = Step::Check;
  return isStored;
}

} // namespace imageposition
