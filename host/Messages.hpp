/// Every text of print-dialog that a person sees.
///
/// One place, so that the texts can be translated, and read as one voice: what happened, then what
/// to do about it.
#ifndef IMAGEPOSITION_HOST_MESSAGES_HPP
#define IMAGEPOSITION_HOST_MESSAGES_HPP

#include "host/PluginTrust.hpp"
#include "host/Text.hpp"

#include <string>
#include <vector>

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
extern const char *const kHelpDryRun;
extern const char *const kHelpListOptions;
extern const char *const kHelpPlugin;
extern const char *const kHelpTicket;
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

// The window.
extern const Text kNothingToSummarize;
std::string summaryLine(const std::string &title, const std::string &value);
extern const Text kNoPanelHere;

/// A library's reason, to follow a clause in parentheses: with the space before them, and without
/// its own full stop. Nothing for nothing.
std::string because(std::string reason);

// Before a message that ends the program.
extern const char *const kProgram;

// Mistakes on the command line.
std::string usage(const std::string &mistake);
extern const Text kTwoPrintersNamed;
extern const Text kOnlyInBatch;
extern const Text kInputNamedTwice;
std::string jobsAreNotChanged(const std::string &job);
extern const Text kJobsAreNotRestarted;
std::string badHoldTime(const std::string &when);
std::string badAppearance(const std::string &appearance);
std::string badTextScale(const std::string &scale);
std::string argumentNotText(const std::string &argument);
std::string fileLikeOption(const std::string &argument);
std::string emptyText(const std::string &option);
std::string badEntry(const std::string &argument);
std::string badSwitch(const std::string &argument);
std::string badOption(const std::string &argument);
std::string optionLocked(const std::string &name);
std::string ticketNamesOptions(const std::string &path);
std::string documentUnreadable(const std::string &path, const std::string &reason);

// Printers.
std::string ppdUnreadable(const std::string &path, const std::string &reason);
std::string ppdTooLarge(const std::string &path);
std::string ppdMalformed(const std::string &path, int line, const std::string &reason);
std::string ppdOfQueue(const std::string &queue);
extern const Text kNoDefaultPrinter;
std::string cupsUnreachable(const std::string &server, const std::string &queue);
std::string queueWithoutPpd(const std::string &queue, const std::string &reason);

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

// Why a file cannot be read or written, after its name.
extern const Text kNotAnOrdinaryFile;
extern const Text kLinkOfAnotherUser;
extern const Text kNotWrittenByPrintDialog;

// The display.
/// `reason`: what Xvfb said; may be empty.
std::string noDisplay(const std::string &reason);
std::string displayUnreachable(const std::string &name);

// Plug-ins.
std::string pluginMissing(const std::string &path);
std::string pluginNotBundle(const std::string &path);
/// `part` is the bundle, something in it, or a folder on the way.
std::string pluginWritable(const std::string &path, const std::string &part);
std::string pluginOwnedByOthers(const std::string &path, const std::string &part);
/// `part` is also a library's place that `pluginLoadsCode` is about.
std::string pluginUnexamined(const std::string &path, const std::string &part,
                             const std::string &reason);
/// `library` is the file that has the loader look in `place`, which other users may change.
std::string pluginLoadsCode(const std::string &path, const std::string &library,
                            const std::string &place);
/// As before; the place depends on the current folder.
std::string pluginLoadsCodeAnywhere(const std::string &path, const std::string &library,
                                    const std::string &place);
/// The one of these three that is about `part`.
std::string pluginUntrusted(const std::string &path, const UntrustedPart &part);
/// GNUstep's configuration, as the environment names it, is not used because of `part`.
std::string configurationUntrusted(const std::string &part);
extern const Text kCodeCutShort;
std::string pluginNotLoadable(const std::string &path, const std::string &reason);
std::string pluginWithoutClass(const std::string &path, const std::string &className);
std::string pluginClassTaken(const std::string &path, const std::string &className);
std::string pluginWithoutOperation(const std::string &path, const std::string &operation);
std::string pluginRefused(const std::string &path);
std::string pluginRaised(const std::string &path, const std::string &operation,
                         const std::string &what);
std::string panelNotBuilt(const std::string &path);
std::string panelWithoutOperation(const std::string &path, const std::string &operation);
std::string panelWithoutView(const std::string &path);
std::string noPanel(const std::string &printer, const std::vector<std::string> &plugins);
std::string panelRefusedJob(const std::string &panel);

// Copy and paste.
extern const Text kCopyAndPaste;
std::string pasteboardFolderOfOthers(const std::string &path);
std::string pasteboardFolderUnusable(const std::string &path);
std::string pasteboardUnreachable(const std::string &reason);

// Values.
std::string noSuchField(const std::string &name, const std::vector<std::string> &known);
std::string ambiguousField(const std::string &name, const std::vector<std::string> &matches);
/// `reason`: what stands in the way, in sentences with what to do; may be empty.
std::string fieldUnavailable(const std::string &name, const std::string &reason);
extern const Text kNoSwitch;
std::string switchUnavailable(const std::string &reason);
extern const Text kChooseTwoSided;
extern const Text kSwitchBannerPagesOff;
std::string valueAdjusted(const std::string &name, const std::string &typed,
                          const std::string &shown);

// What came out.
std::string ticketWritten(const std::string &path, const std::string &optionPath);
std::string jobSentUnsaid(const std::string &job);
/// `done`: in sentences, what cannot be taken back; may be empty.
std::string outputUnwritable(const std::string &done);
extern const Text kCancelled;

} // namespace imageposition::messages

#endif
