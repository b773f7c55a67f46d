#include "PlacementTexts.hpp"

namespace imageposition::messages {

namespace {

std::string withReason(const Text &plain, const Text &reasoned, const std::string &document,
                       const std::string &reason) {
  return reason.empty() ? plain.with(document) : reasoned.with(document, reason);
}

} // namespace

std::string notMoved(const std::string &document, MoveProblem problem, const std::string &detail) {
  switch (problem) {
  case MoveProblem::NoConversion:
    return text("The image of \"{1}\" cannot be moved: CUPS on this computer does not read this "
                "type of document. Convert it to PDF.")
        .with(document);
  case MoveProblem::Encrypted:
    return text("The image of \"{1}\" cannot be moved: the document is protected by a password. "
                "Save a copy without it, and print that.")
        .with(document);
  case MoveProblem::Forbidden:
    return text("The image of \"{1}\" cannot be moved: the document's owner does not allow "
                "printing, and CUPS would print nothing. Ask for a copy that can be printed.")
        .with(document);
  case MoveProblem::Damaged:
    return withReason(text("The image of \"{1}\" cannot be moved: the document is damaged. Create "
                           "it again, and print that."),
                      text("The image of \"{1}\" cannot be moved: the document is damaged ({2}). "
                           "Create it again, and print that."),
                      document, detail);
  case MoveProblem::OtherLayout:
    return text("The image of \"{1}\" cannot be moved reliably: the version of cups-filters on "
                "this computer lays pages out differently than expected.")
        .with(document);
  case MoveProblem::MovedBefore:
    return text("The image of \"{1}\" was moved before. Print the original document, or set all "
                "offsets to 0.")
        .with(document);
  case MoveProblem::NoRoom:
    return withReason(
        text(
            "The image of \"{1}\" cannot be moved: there is no room for it. Free some disk space."),
        text("The image of \"{1}\" cannot be moved: {2}. Free some disk space."), document, detail);
  case MoveProblem::Layout:
    return withReason(text("The image of \"{1}\" cannot be moved: cups-filters cannot lay the "
                           "document out."),
                      text("The image of \"{1}\" cannot be moved: cups-filters cannot lay the "
                           "document out ({2})."),
                      document, detail);
  default:
    return text("The image of \"{1}\" cannot be moved: the program that moves it has failed.")
        .with(document);
  }
}

const Text kNoFilters = text("The image cannot be moved: the package cups-filters is not installed "
                             "on this computer. Install it.");
const Text kRawNotMoved = text("The image of a raw job cannot be moved. Print without -o raw.");
const Text kNoFileWritten = text("No file was written.");
const Text kPrintUnmoved = text("To print without moving the image, use --no-shift.");

std::string moverMissing(const std::string &program) {
  return text("The image cannot be moved: the program {1} is missing. Reinstall print-dialog.")
      .with(program);
}
std::string movedHere(const std::string &directions) {
  return text("The image is moved here, before the job is sent. {1}").with(directions);
}

} // namespace imageposition::messages
