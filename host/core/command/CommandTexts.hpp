/// The command line's help and error messages.
#ifndef IMAGEPOSITION_CORE_COMMAND_COMMANDTEXTS_HPP
#define IMAGEPOSITION_CORE_COMMAND_COMMANDTEXTS_HPP

#include "Text.hpp"

#include <string>

namespace imageposition::messages {

// The command line's help.
extern const char *const kVersion;
extern const char *const kHelpIntroduction;
extern const char *const kHelpPpd;
extern const char *const kHelpQueue;
extern const char *const kHelpOption;
extern const char *const kHelpServer;
extern const char *const kHelpEncryption;
extern const char *const kHelpUser;
extern const char *const kHelpCopies;
extern const char *const kHelpPages;
extern const char *const kHelpTitle;
extern const char *const kHelpPriority;
extern const char *const kHelpHold;
extern const char *const kHelpMail;
extern const char *const kHelpSilent;
extern const char *const kHelpCopy;
extern const char *const kHelpListOptions;
extern const char *const kHelpDryRun;
extern const char *const kHelpNoShift;
extern const char *const kHelpAlign;
extern const char *const kHelpReading;
extern const char *const kHelpCrease;
extern const char *const kHelpSheet;
extern const char *const kHelpNoAlignment;
extern const char *const kHelpListAlignments;
extern const char *const kHelpExportAlignments;
extern const char *const kHelpImportAlignments;
extern const char *const kHelpDeleteAlignments;
extern const char *const kHelpPlugin;
extern const char *const kHelpTicket;
extern const char *const kHelpPdf;
extern const char *const kHelpPrepare;
extern const char *const kHelpPrepared;
extern const char *const kHelpParent;
extern const char *const kHelpDocument;
extern const char *const kHelpAppearance;
extern const char *const kHelpTextScale;
extern const char *const kHelpBatch;
extern const char *const kHelpSet;
extern const char *const kHelpBack;
extern const char *const kHelpSummary;
extern const char *const kHelpVersion;
extern const char *const kHelpHelp;
extern const char *const kHelpFooter;

// Mistakes on the command line.
extern const Text kTwoPrintersNamed;
extern const Text kOnlyInBatch;
extern const Text kOnlyWithAlign;
extern const Text kAlignPrintsSheets;
extern const Text kPdfAlone;
extern const Text kPrepareAlone;
extern const Text kPreparedHasPrinter;
extern const Text kStandardInputRepeated;
std::string jobsAreNotChanged(const std::string &job);
extern const Text kJobsAreNotRestarted;
std::string badHoldTime(const std::string &when);
std::string badAppearance(const std::string &appearance);
std::string badParent(const std::string &parent);
std::string badTextScale(const std::string &scale);
std::string argumentNotUtf8(const std::string &argument);
std::string fileLikeOption(const std::string &argument);
std::string emptyValue(const std::string &option);
std::string badEntry(const std::string &argument);
std::string badSwitch(const std::string &argument);
std::string ticketNamesOptions(const std::string &path);

} // namespace imageposition::messages

#endif
