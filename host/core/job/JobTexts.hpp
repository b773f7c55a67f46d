/// Messages about a job, its documents, its pages and its ticket.
#ifndef IMAGEPOSITION_CORE_JOB_JOBTEXTS_HPP
#define IMAGEPOSITION_CORE_JOB_JOBTEXTS_HPP

#include "Text.hpp"

#include <string>

namespace imageposition::messages {

// A panel in the summary.
extern const Text kNothingToSummarize;

// Tickets.
std::string ticketUnreadable(const std::string &path, const std::string &reason);
std::string ticketMalformed(const std::string &source, const std::string &reason);
std::string ticketNotJson(const std::string &reason);
std::string ticketMemberNotText(const std::string &name);
std::string ticketValueNotText(const std::string &name);
std::string ticketEntryUnusable(const std::string &name);
std::string ticketNameRepeated(const std::string &name);
std::string ticketMemberNotList(const std::string &name);
extern const Text kTicketWithoutSettings;
std::string fileUnwritable(const std::string &path, const std::string &reason);
std::string fileWrittenAlready(const std::string &path);

std::string unusableOption(const std::string &name);

// The request's text.
std::string filtersRead(const std::string &word);

// Submission.
std::string queueGone(const std::string &queue);
std::string queueRefuses(const std::string &queue);
std::string notAllowed(const std::string &queue, const std::string &reason);
std::string optionRefused(const std::string &queue, const std::string &reason);
std::string documentEmpty(const std::string &name);
extern const Text kInputEmpty;
std::string documentShrank(const std::string &name);
std::string documentNotRead(const std::string &name, const std::string &reason);
std::string formatRefused(const std::string &name, const std::string &reason);
std::string spoolRefuses(const std::string &reason);
extern const Text kDocumentBrokenOff;
std::string connectionLost(const std::string &server, const std::string &reason);
/// `jobTakenBack` or `jobLeftBehind` adds what became of the job.
std::string noAnswerToJob(const std::string &server);
std::string jobNotTaken(const std::string &queue, const std::string &reason);
std::string noRoomToSend(const std::string &reason);
std::string jobLeftBehind(const std::string &message, const std::string &queue, int job);
std::string jobTakenBack(const std::string &message, const std::string &queue, int job);
/// For a job that CUPS received completely and may have started to print.
std::string jobCancelled(const std::string &queue, int job);
/// A waiting job that the user cancelled, or could not.
std::string waitingJobCancelled(const std::string &queue, int job);
std::string jobNotCancelled(const std::string &queue, int job, const std::string &reason);
extern const Text kStandardInput;
std::string waitsForPrinter(const std::string &queue, const std::string &state);
/// `until` is "indefinite", one of CUPS's names, or a local time.
std::string waitsForRelease(const std::string &queue, int job, const std::string &until);
std::string localTime(const std::string &time);

// Pages.
std::string copiesNotUnderstood();
extern const Text kNoPages;
std::string pagesNotUnderstood(const std::string &part);
extern const Text kPagesWithoutNumber;
extern const Text kPageZero;
std::string pageTooLarge(const std::string &number);
std::string pagesBackwards(int first, int last);

// The summary.
extern const Text kPrinterTitle;
extern const Text kDocumentTitle;
extern const Text kCopiesTitle;
extern const Text kPagesTitle;
extern const Text kAllPages;
extern const Text kOddPages;
extern const Text kEvenPages;
extern const Text kOptionsPane;
extern const Text kJobSection;
extern const Text kOtherSection; ///< Heads the options that only CUPS has a name for.

/// A value in the summary that differs from the printer's default, `usual`.
std::string differingValue(const std::string &value, const std::string &usual);
std::string andMore(const std::string &document, std::size_t others);

} // namespace imageposition::messages

#endif
