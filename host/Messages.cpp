#include "host/Messages.hpp"

#include "host/OptionMessages.hpp"
#include "host/PreviewTexts.hpp"

namespace imageposition::messages {

std::string because(std::string reason) {
  while (!reason.empty() && (reason.back() == '.' || reason.back() == ' '))
    reason.pop_back();
  return reason.empty() ? reason : text(" ({1})").with(reason);
}

namespace {

std::string join(const std::vector<std::string> &words) {
  std::string list;
  for (const std::string &word : words)
    list = list.empty() ? word : inOrder(list, word);
  return list;
}

/// Reasons of libraries come with and without a full stop.
std::string withoutStop(std::string reason) {
  while (!reason.empty() && reason.back() == '.')
    reason.pop_back();
  return reason;
}

} // namespace

const char *const kVersion = "print-dialog " IMAGEPOSITION_VERSION;
const char *const kHelpIntroduction =
    "Prints a document, set up with the panels of printer plug-ins.\n"
    "Opens a window; with --batch, sets and prints the same without one.";
const char *const kHelpPpd = "The printer, by its description: a PPD file";
const char *const kHelpQueue = "The printer, by its CUPS queue: NAME or NAME/INSTANCE;\n"
                               "without this and --ppd, the default queue";
const char *const kHelpOption = "A setting of the job, as lp takes it: NAME=VALUE, NAME\n"
                                "or noNAME; may be repeated";
const char *const kHelpServer = "The CUPS server: HOST, HOST:PORT or a socket's path";
const char *const kHelpEncryption = "Encrypt the connection to the CUPS server";
const char *const kHelpUser = "Print as this user";
const char *const kHelpCopies = "The number of copies";
const char *const kHelpPages = "The pages to print, as 1-3,7";
const char *const kHelpTitle = "The job's title; without it, the first document's name";
const char *const kHelpPriority = "The job's priority, from 1 to 100; 50 is usual";
const char *const kHelpHold = "When to print: hold (not before it is released),\n"
                              "immediate (before other jobs), a UTC time as HH:MM, or\n"
                              "day-time, evening, night, weekend, second-shift,\n"
                              "third-shift, indefinite, no-hold";
const char *const kHelpMail = "Have CUPS send a mail when the job is done; implies -s";
const char *const kHelpSilent = "Say nothing when CUPS has taken the job";
const char *const kHelpCopy = "Taken for lp's sake: CUPS always copies the document";
const char *const kHelpListOptions = "Print nothing: list the printer's options with their\n"
                                     "choices, a star before what the job has; what it\n"
                                     "cannot combine is told on standard error";
const char *const kHelpDryRun = "Print nothing: write what CUPS would be sent";
const char *const kHelpPlugin = "Use this plug-in and no other; may be repeated.\n"
                                "Without it: those with the file names that the printer's\n"
                                "description has (APDialogExtension), or else all; beside\n"
                                "this program, or in\n" IMAGEPOSITION_PLUGIN_FOLDER ".\n"
                                "What other users may change is not loaded";
const char *const kHelpTicket = "The job's settings, as JSON: read when FILE exists,\n"
                                "written by Print. The same as NAME=VALUE lines goes\n"
                                "beside it (job.options for job.json)";
const char *const kHelpDocument = "What to print, several as one job; \"-\" is standard input,\n"
                                  "which is also read when the window prints and no document\n"
                                  "is named. After \"--\" a name may begin with a dash";
const char *const kHelpAppearance = "How the window looks; without it, as the desktop does";
const char *const kHelpTextScale = "How much larger texts are than usual, such as 1.25";
const char *const kHelpBatch = "Show no window: set the panel, then write the job's\n"
                               "settings to the ticket, or print them without one.\n"
                               "Where there is no display, Xvfb is started";
const char *const kHelpSet = "Batch: type TEXT into the panel's entry field of that\n"
                             "name (or whose name begins so) and press Return; may\n"
                             "be repeated";
const char *const kHelpBack = "Batch: switch the panel's checkbox, offsets of its own\n"
                              "for the back side, before anything is typed";
const char *const kHelpSummary = "Batch: print the summary that the panels give";
const char *const kHelpVersion = "Print the version";
const char *const kHelpHelp = "Print this text";
const char *const kHelpFooter =
    "Examples:\n"
    "  print-dialog report.pdf\n"
    "      Opens the window on the default printer; Print prints.\n"
    "  print-dialog --ppd samples/duplex-shift.ppd --ticket job.json\n"
    "      Opens the window; Print writes job.json and job.options.\n"
    "  print-dialog -d office -o Duplex=DuplexNoTumble --ticket job.json report.pdf\n"
    "      The same for a CUPS queue, with two-sided printing chosen.\n"
    "  print-dialog --batch --ppd samples/duplex-shift.ppd --set FrontLRM=-3 --back on --summary\n"
    "      No window: sets the panel, prints the job's settings and the summary.\n"
    "  lp -d office -o \"$(cat job.options)\" report.pdf\n"
    "      Prints with the settings.\n"
    "\n"
    "Exit status:\n"
    "  0  done\n"
    "  1  cancelled, or a panel refused the job\n"
    "  2  the command line cannot be understood, or its document not be read\n"
    "  3  no usable printer description\n"
    "  4  a plug-in or its panel cannot be used\n"
    "  5  batch: no plug-in has a panel for this printer\n"
    "  6  the ticket or the output cannot be read or written\n"
    "  7  no display, and none could be started\n"
    "  8  batch: a value cannot be set on the panel\n"
    "  9  CUPS did not take the job\n"
    "  10 memory ran out, or there is a fault in print-dialog\n"
    "In batch, nothing is written unless the status is 0.";

const Text kNothingToSummarize = text("Not available with the present settings.");
std::string summaryLine(const std::string &title, const std::string &value) {
  return text("{1}: {2}").with(title, value);
}
const Text kNoPanelHere = text(
    "No plug-in has a panel for this printer. You can print with everything that is shown here. To "
    "move the image, choose a printer that supports it, or name a plug-in with --plugin BUNDLE.");

const char *const kProgram = "print-dialog: ";

std::string usage(const std::string &mistake) {
  const std::string sentence =
      mistake.empty() || mistake.back() == '.' ? mistake : text("{1}.").with(mistake);
  return text("{1} See print-dialog --help.").with(sentence);
}
const Text kTwoPrintersNamed =
    text("Name one printer: its description with --ppd FILE, or its queue with -d QUEUE.");
const Text kOnlyInBatch = text("--set, --back and --summary need --batch.");
const Text kInputNamedTwice = text("Standard input can be printed only once; name \"-\" one time.");
std::string jobsAreNotChanged(const std::string &job) {
  return text("Jobs that CUPS has already are not changed here. Change this one with lp -i {1}, or "
              "remove it with cancel {1} and print again.")
      .with(job);
}
const Text kJobsAreNotRestarted =
    text("Jobs that CUPS has already are not printed again from here. Use lp -i JOB -H restart.");
std::string badHoldTime(const std::string &when) {
  return text("-H takes hold, immediate, a UTC time such as 18:30, or a name such as night, and "
              "not \"{1}\".")
      .with(when);
}
std::string badAppearance(const std::string &appearance) {
  return text("--appearance takes \"light\" or \"dark\", and not \"{1}\".").with(appearance);
}
std::string badTextScale(const std::string &scale) {
  return text("--text-scale takes a number above 0, such as 1.25, and not \"{1}\".").with(scale);
}
std::string argumentNotText(const std::string &argument) {
  return text("The argument \"{1}\" is not UTF-8 text. Give the file another name, or name it by a "
              "link.")
      .with(argument);
}
std::string fileLikeOption(const std::string &argument) {
  return text("\"{1}\" could be an option, and it is also the name of a file here. Write \"--\" "
              "before the documents.")
      .with(argument);
}
std::string emptyText(const std::string &option) {
  return text("{1} was given an empty text.").with(option);
}
std::string badEntry(const std::string &argument) {
  return text("--set takes NAME=TEXT, for example --set FrontLRM=-3, and not \"{1}\".")
      .with(argument);
}
std::string badSwitch(const std::string &argument) {
  return text("--back takes \"on\" or \"off\", and not \"{1}\".").with(argument);
}
std::string badOption(const std::string &argument) {
  return text("\"{1}\" is no job option; write it as NAME=VALUE.").with(argument);
}
std::string optionLocked(const std::string &name) {
  return text("The ticket locks \"{1}\". Leave out -o {1}, or use another ticket.").with(name);
}
std::string ticketNamesOptions(const std::string &path) {
  return text("--ticket takes the JSON file; \"{1}\" is named like the file that is written beside "
              "it. Give it the ending .json.")
      .with(path);
}
std::string documentUnreadable(const std::string &path, const std::string &reason) {
  return text("The document \"{1}\" cannot be read: {2}. Check the name and its rights.")
      .with(path, reason);
}

std::string ppdUnreadable(const std::string &path, const std::string &reason) {
  return text("The printer description \"{1}\" cannot be read: {2}. Check the name and its rights.")
      .with(path, reason);
}
std::string ppdTooLarge(const std::string &path) {
  return text("\"{1}\" is larger than any printer's description: reading it would take too long. "
              "Use the one that comes with the printer's driver.")
      .with(path);
}
std::string ppdMalformed(const std::string &path, int line, const std::string &reason) {
  return text("\"{1}\" is not a usable printer description: line {2}: {3}. Name a PPD file; "
              "cupstestppd tells more about one.")
      .with(path, line, reason);
}
std::string ppdOfQueue(const std::string &queue) { return text("PPD of queue {1}").with(queue); }
const Text kNoDefaultPrinter = text("There is no default printer. Name one with -d QUEUE (lpstat "
                                    "-e lists the queues) or --ppd FILE.");
std::string cupsUnreachable(const std::string &server, const std::string &queue) {
  return text("CUPS, which knows the queue \"{1}\", cannot be reached at \"{2}\". Start it, or set "
              "CUPS_SERVER; --ppd names a description file instead.")
      .with(queue, server);
}
std::string queueWithoutPpd(const std::string &queue, const std::string &reason) {
  return text("CUPS has no printer description for the queue \"{1}\": {2}. lpstat -e lists the "
              "queues; --ppd names a description file instead.")
      .with(queue, withoutStop(reason));
}

std::string ticketUnreadable(const std::string &path, const std::string &reason) {
  return text("The ticket \"{1}\" cannot be read: {2}. Check the name and its rights.")
      .with(path, reason);
}
std::string ticketMalformed(const std::string &source, const std::string &reason) {
  return text("\"{1}\" is not a usable ticket: {2}. Correct it, or remove it to start from the "
              "printer's defaults.")
      .with(source, reason);
}
std::string ticketNotJson(const std::string &reason) {
  return text("it is not JSON ({1})").with(reason);
}
std::string ticketMemberNotText(const std::string &name) {
  return text("\"{1}\" is not a text").with(name);
}
std::string ticketValueNotText(const std::string &name) {
  return text("the setting \"{1}\" is neither a text nor a whole number").with(name);
}
std::string ticketEntryUnusable(const std::string &name) {
  return text("the setting \"{1}\" has a name or value that no print job can carry").with(name);
}
std::string ticketNameRepeated(const std::string &name) {
  return text("\"{1}\" is there twice").with(name);
}
std::string ticketMemberNotList(const std::string &name) {
  return text("\"{1}\" is not a list of names").with(name);
}
const Text kTicketWithoutSettings = text("it has no object \"settings\"");
std::string fileUnwritable(const std::string &path, const std::string &reason) {
  return text("\"{1}\" cannot be written: {2}. Choose another place.").with(path, reason);
}
std::string fileWrittenAlready(const std::string &path) {
  return text("\"{1}\" is written already.").with(path);
}

const Text kNotAnOrdinaryFile = text("it is not an ordinary file");
const Text kLinkOfAnotherUser = text("it is a link that belongs to another user");
const Text kNotWrittenByPrintDialog =
    text("what is there was not written by print-dialog for this user");

std::string noDisplay(const std::string &reason) {
  return text("There is no display, and no Xvfb could be started for the panel's view{1}. Set "
              "DISPLAY, or install Xvfb (Debian: xvfb).")
      .with(because(reason));
}
std::string displayUnreachable(const std::string &name) {
  return name.empty()
             ? text("There is no display to show the window on. Set DISPLAY, or use --batch.").str()
             : text("The display \"{1}\" cannot be reached. Set DISPLAY to one that can, or use "
                    "--batch with DISPLAY unset.")
                   .with(name);
}

std::string pluginMissing(const std::string &path) {
  return text("The plug-in \"{1}\" does not exist. Check the path.").with(path);
}
std::string pluginNotBundle(const std::string &path) {
  return text("\"{1}\" is not a plug-in: it is no bundle with code in it. Check the path, or "
              "install it again.")
      .with(path);
}
std::string pluginWritable(const std::string &path, const std::string &part) {
  return text(
             "The plug-in \"{1}\" was not loaded: other users may change \"{2}\", and with it what "
             "the plug-in does. Take that right from its group and from everybody (chmod go-w "
             "\"{2}\"), or use a copy of the plug-in in a folder of your own.")
      .with(path, part);
}
std::string pluginOwnedByOthers(const std::string &path, const std::string &part) {
  return text("The plug-in \"{1}\" was not loaded: \"{2}\" belongs to another user, who may change "
              "what the plug-in does. Have it installed by the system's administrator, or use a "
              "copy "
              "of it in a folder of your own.")
      .with(path, part);
}
std::string pluginUnexamined(const std::string &path, const std::string &part,
                             const std::string &reason) {
  return text("The plug-in \"{1}\" was not loaded: \"{2}\" cannot be examined ({3}), so that other "
              "users might have changed it. Correct its rights, or install the plug-in again.")
      .with(path, part, reason);
}
std::string pluginLoadsCode(const std::string &path, const std::string &library,
                            const std::string &place) {
  return text("The plug-in \"{1}\" was not loaded: \"{2}\" loads code from \"{3}\", which other "
              "users "
              "may change. Ask the system's administrator to take that right from them, or the "
              "plug-in's maker for another version.")
      .with(path, library, place);
}
std::string pluginLoadsCodeAnywhere(const std::string &path, const std::string &library,
                                    const std::string &place) {
  return text("The plug-in \"{1}\" was not loaded: \"{2}\" loads code from \"{3}\", which is a "
              "different place in each folder that the program is run in. Ask the plug-in's maker "
              "for another version.")
      .with(path, library, place);
}
std::string pluginUntrusted(const std::string &path, const UntrustedPart &part) {
  switch (part.reason) {
  case UntrustedPart::Reason::OthersMayWrite:
    return pluginWritable(path, part.path);
  case UntrustedPart::Reason::OthersOwnIt:
    return pluginOwnedByOthers(path, part.path);
  default:
    return pluginUnexamined(path, part.path, systemReason(part.error));
  }
}
std::string configurationUntrusted(const std::string &part) {
  return text("GNUSTEP_CONFIG_FILE was ignored: another user could change \"{1}\". Unset the "
              "variable, or have it name a file that only you can change, in such a folder.")
      .with(part);
}
const Text kCodeCutShort = text("its end is missing");
std::string pluginNotLoadable(const std::string &path, const std::string &reason) {
  return text("The code of the plug-in \"{1}\" could not be loaded{2}; it may be damaged or made "
              "for another system. Install it again.")
      .with(path, because(reason));
}
std::string pluginWithoutClass(const std::string &path, const std::string &className) {
  if (className.empty())
    return text("The plug-in \"{1}\" lacks its principal class. Install it again.").with(path);
  return text("The plug-in \"{1}\" lacks its principal class \"{2}\". Install it again.")
      .with(path, className);
}
std::string pluginClassTaken(const std::string &path, const std::string &className) {
  return text("The plug-in \"{1}\" was not loaded: its class \"{2}\" is in use already, perhaps by "
              "another copy. Remove one of them.")
      .with(path, className);
}
std::string pluginWithoutOperation(const std::string &path, const std::string &operation) {
  return text("The plug-in \"{1}\" is no print-dialog extension: its principal class lacks "
              "\"{2}\". Ask its maker for another version.")
      .with(path, operation);
}
std::string pluginRefused(const std::string &path) {
  return text("The plug-in \"{1}\" could not be loaded: it reports that it cannot start. Install "
              "it again.")
      .with(path);
}
std::string pluginRaised(const std::string &path, const std::string &operation,
                         const std::string &what) {
  return text("The plug-in \"{1}\" failed in \"{2}\" ({3}) and is left out. Ask its maker for "
              "another version.")
      .with(path, operation, what);
}
std::string panelNotBuilt(const std::string &path) {
  return text("The panel of the plug-in \"{1}\" could not be loaded; a file of it is missing or "
              "damaged. Install it again.")
      .with(path);
}
std::string panelWithoutOperation(const std::string &path, const std::string &operation) {
  return text("A panel of the plug-in \"{1}\" cannot be used: it lacks \"{2}\". Ask its maker for "
              "another version.")
      .with(path, operation);
}
std::string panelWithoutView(const std::string &path) {
  return text("A panel of the plug-in \"{1}\" has no view. Install it again.").with(path);
}
std::string noPanel(const std::string &printer, const std::vector<std::string> &plugins) {
  if (plugins.empty())
    return text("No plug-in was found for \"{1}\". Name one with --plugin BUNDLE.").with(printer);
  return text("No plug-in has a panel for \"{1}\" (asked: {2}). Choose a printer that supports "
              "one, or name another plug-in with --plugin BUNDLE.")
      .with(printer, join(plugins));
}
std::string panelRefusedJob(const std::string &panel) {
  return text("\"{1}\" does not allow the job to be printed. Look at its settings.").with(panel);
}

const Text kCopyAndPaste = text("Copy and paste");
std::string pasteboardFolderOfOthers(const std::string &path) {
  return text("Copy and paste do not work: the folder \"{1}\" belongs to another user. Ask the "
              "system's administrator to remove it.")
      .with(path);
}
std::string pasteboardFolderUnusable(const std::string &path) {
  return text("Copy and paste do not work: \"{1}\" is not a folder that you may write to. Name "
              "another folder in the variable TEMP.")
      .with(path);
}
std::string pasteboardUnreachable(const std::string &reason) {
  return text("Copy and paste do not work: GNUstep's pasteboard server (gpbs) cannot be "
              "reached{1}. It is part of the package gnustep-gui-runtime; log in again once it is "
              "installed.")
      .with(because(reason));
}

std::string noSuchField(const std::string &name, const std::vector<std::string> &known) {
  if (known.empty())
    return text("No panel has an entry field \"{1}\".").with(name);
  return text("No panel has an entry field \"{1}\"; there are: {2}.").with(name, join(known));
}
std::string ambiguousField(const std::string &name, const std::vector<std::string> &matches) {
  return text("\"{1}\" may mean several entry fields: {2}. Write more of the name.")
      .with(name, join(matches));
}
std::string fieldUnavailable(const std::string &name, const std::string &reason) {
  const std::string offByPanel = text("\"{1}\" cannot be changed with the present settings of the "
                                      "job: the panel has switched it off.")
                                     .with(name);
  if (reason.empty())
    return sentences(
        {offByPanel, text("The back side may have no offsets of its own (--back on).")});
  return sentences({offByPanel, reason});
}
const Text kNoSwitch = text("No panel has exactly one checkbox for --back.");
std::string switchUnavailable(const std::string &reason) {
  return sentences({text("The checkbox cannot be changed with the present settings of the job: the "
                         "panel has switched it off."),
                    reason});
}
const Text kChooseTwoSided = text("Choose it, such as with -o Duplex=DuplexNoTumble.");
const Text kSwitchBannerPagesOff = text("Switch them off with -o MVBannerPagePrint=False.");
std::string valueAdjusted(const std::string &name, const std::string &typed,
                          const std::string &shown) {
  return text("The panel made \"{3}\" of \"{2}\" for {1}.").with(name, typed, shown);
}

std::string ticketWritten(const std::string &path, const std::string &optionPath) {
  return text("The job's settings are in {1} and {2}.").with(path, optionPath);
}
std::string jobSentUnsaid(const std::string &job) {
  return text("CUPS has the job {1}, but standard output cannot be written; do not print it again.")
      .with(job);
}
std::string outputUnwritable(const std::string &done) {
  if (done.empty())
    return text("Standard output cannot be written. Send it elsewhere, or name a file with "
                "--ticket.");
  return text("Standard output cannot be written. {1}").with(done);
}
const Text kCancelled = text("Cancelled; nothing was written.");

} // namespace imageposition::messages
