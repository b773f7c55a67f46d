/// What is said about printers and the jobs that go to them.
///
/// In one voice with the other texts: what happened, then what to do about it.
#ifndef IMAGEPOSITION_HOST_JOBMESSAGES_HPP
#define IMAGEPOSITION_HOST_JOBMESSAGES_HPP

#include "host/Text.hpp"

#include <string>

namespace imageposition::messages {

// Printers.
extern const Text kPrinterIdle;
extern const Text kPrinterPrinting;
extern const Text kPrinterStopped;
std::string stateBecause(const std::string &state, const std::string &reasons);
std::string refusesJobs(const std::string &state);
extern const Text kNoPrinters;
std::string noCups(const std::string &server, const std::string &reason);
extern const Text kNoAnswer;
std::string printersNotListed(const std::string &reason);

// Fields that no job can have.
std::string badCopies(int copies);
std::string badPriority(int priority);
std::string badNumberUp(int pages);
extern const Text kBadHold;
std::string unusableOption(const std::string &name);

// The request's text.
std::string filtersRead(const std::string &word);

// Submission.
std::string queueGone(const std::string &queue);
std::string queueRefuses(const std::string &queue);
std::string notAllowed(const std::string &queue, const std::string &reason);
std::string optionRefused(const std::string &queue, const std::string &reason);
std::string documentEmpty(const std::string &name);
std::string documentShrank(const std::string &name);
std::string documentNotRead(const std::string &name, const std::string &reason);
std::string formatRefused(const std::string &name, const std::string &reason);
std::string spoolRefuses(const std::string &reason);
extern const Text kDocumentBrokenOff;
std::string connectionLost(const std::string &server, const std::string &reason);
/// Follows with what became of the job: `jobTakenBack` or `jobLeftBehind`.
std::string noAnswerToJob(const std::string &server);
std::string jobNotTaken(const std::string &queue, const std::string &reason);
/// Before a password is entered.
std::string passwordExposed(const std::string &server);
std::string noRoomToSend(const std::string &reason);
std::string jobLeftBehind(const std::string &message, const std::string &queue, int job);
std::string jobTakenBack(const std::string &message, const std::string &queue, int job);
/// When CUPS had all of the job, and may have begun to print it.
std::string jobCancelled(const std::string &queue, int job);
extern const Text kSubmissionCancelled;
extern const Text kStandardInput;
std::string waitsForPrinter(const std::string &queue, const std::string &state);
std::string waitsForRelease(const std::string &queue, int job, const std::string &until);

} // namespace imageposition::messages

#endif
