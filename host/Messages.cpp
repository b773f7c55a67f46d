#include "host/Messages.hpp"

namespace imageposition::messages {

namespace {

std::string join(const std::vector<std::string> &words) {
  std::string text;
  for (const std::string &word : words)
    text += (text.empty() ? "" : ", ") + word;
  return text;
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
const char *const kHelpDryRun = "Print nothing: write what CUPS would be sent";
const char *const kHelpPlugin =
    "Use this plug-in and no other; may be repeated.\n"
    "Without it: those that the printer's description names\n"
    "(APDialogExtension), or else those in\n" IMAGEPOSITION_PLUGIN_FOLDER "\n"
    "or beside this program";
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
    "In batch, nothing is written unless the status is 0.";

const Text kWindowTitle = text("Print");
const Text kPrinterLabel = text("Printer:");
const Text kDocumentLabel = text("Document:");
const Text kPaneLabel = text("Settings:");
const Text kSummaryPane = text("Summary");
const Text kPrintButton = text("Print");
const Text kCancelButton = text("Cancel");
const Text kNothingToSummarize = text("Not available with the present settings.");
std::string summaryLine(const std::string &title, const std::string &value) {
  return text("{1}: {2}").with(title, value);
}
const Text kNoPanelHere = text("No plug-in has a panel for this printer.");

const char *const kProgram = "print-dialog: ";

std::string usage(const std::string &mistake) {
  return mistake + (mistake.empty() || mistake.back() == '.' ? "" : ".") +
         " See print-dialog --help.";
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
  return "The argument \"" + argument +
         "\" is not UTF-8 text. Give the file another name, or name it by a link.";
}
std::string emptyText(const std::string &option) { return option + " was given an empty text."; }
std::string badEntry(const std::string &argument) {
  return "--set takes NAME=TEXT, for example --set FrontLRM=-3, and not \"" + argument + "\".";
}
std::string badSwitch(const std::string &argument) {
  return "--back takes \"on\" or \"off\", and not \"" + argument + "\".";
}
std::string badOption(const std::string &argument) {
  return "\"" + argument + "\" is no job option; write it as NAME=VALUE.";
}
std::string optionLocked(const std::string &name) {
  return "The ticket locks \"" + name + "\". Leave out -o " + name + ", or use another ticket.";
}
std::string ticketNamesOptions(const std::string &path) {
  return "--ticket takes the JSON file; \"" + path +
         "\" is named like the file that is written beside it. Give it the ending .json.";
}
std::string documentUnreadable(const std::string &path, const std::string &reason) {
  return "The document \"" + path + "\" cannot be read: " + reason +
         ". Check the name and its rights.";
}

std::string ppdUnreadable(const std::string &path, const std::string &reason) {
  return "The printer description \"" + path + "\" cannot be read: " + reason +
         ". Check the name and its rights.";
}
std::string ppdMalformed(const std::string &path, int line, const std::string &reason) {
  return "\"" + path + "\" is not a usable printer description: line " + std::to_string(line) +
         ": " + reason + ". Name a PPD file; cupstestppd tells more about one.";
}
std::string ppdOfQueue(const std::string &queue) { return "PPD of queue " + queue; }
const Text kNoDefaultPrinter = text("There is no default printer. Name one with -d QUEUE (lpstat "
                                    "-e lists the queues) or --ppd FILE.");
std::string cupsUnreachable(const std::string &server, const std::string &queue) {
  return "CUPS, which knows the queue \"" + queue + "\", cannot be reached at \"" + server +
         "\". Start it, or set CUPS_SERVER; --ppd names a description file instead.";
}
std::string queueWithoutPpd(const std::string &queue, const std::string &reason) {
  return "CUPS has no printer description for the queue \"" + queue + "\": " + withoutStop(reason) +
         ". lpstat -e lists the queues; --ppd names a description file instead.";
}

std::string ticketUnreadable(const std::string &path, const std::string &reason) {
  return "The ticket \"" + path + "\" cannot be read: " + reason +
         ". Check the name and its rights.";
}
std::string ticketMalformed(const std::string &source, const std::string &reason) {
  return "\"" + source + "\" is not a usable ticket: " + reason +
         ". Correct it, or remove it to start from the printer's defaults.";
}
std::string ticketNotJson(const std::string &reason) { return "it is not JSON (" + reason + ")"; }
std::string ticketMemberNotText(const std::string &name) {
  return "\"" + name + "\" is not a text";
}
std::string ticketValueNotText(const std::string &name) {
  return "the setting \"" + name + "\" is neither a text nor a whole number";
}
std::string ticketEntryUnusable(const std::string &name) {
  return "the setting \"" + name + "\" has a name or value that no print job can carry";
}
std::string ticketEntryRepeated(const std::string &name) {
  return "the setting \"" + name + "\" is locked and there twice";
}
std::string ticketMemberNotList(const std::string &name) {
  return text("\"{1}\" is not a list of names").with(name);
}
const Text kTicketWithoutSettings = text("it has no object \"settings\"");
std::string notAnOrdinaryFile(const std::string &path) {
  return "\"" + path +
         "\" is not an ordinary file, so that no ticket can stand there. Choose another name.";
}
std::string fileUnwritable(const std::string &path, const std::string &reason) {
  return "\"" + path + "\" cannot be written: " + reason + ". Choose another place.";
}

const Text kNoDisplay = text("There is no display, and no Xvfb could be started for the panel's "
                             "view. Set DISPLAY, or install "
                             "Xvfb (Debian: xvfb).");
std::string displayUnreachable(const std::string &name) {
  return name.empty()
             ? "There is no display to show the window on. Set DISPLAY, or use --batch."
             : "The display \"" + name +
                   "\" cannot be reached. Set DISPLAY to one that can, or use --batch with "
                   "DISPLAY unset.";
}

std::string pluginMissing(const std::string &path) {
  return "The plug-in \"" + path + "\" does not exist. Check the path.";
}
std::string pluginNotBundle(const std::string &path) {
  return "\"" + path +
         "\" is not a plug-in: it is no bundle with code in it. Check the path, or install it "
         "again.";
}
const Text kCodeCutShort = text("its end is missing");
std::string pluginNotLoadable(const std::string &path, const std::string &reason) {
  return "The code of the plug-in \"" + path + "\" could not be loaded" +
         (reason.empty() ? std::string() : " (" + reason + ")") +
         "; it may be damaged or made for another system. Install it again.";
}
std::string pluginWithoutClass(const std::string &path, const std::string &className) {
  return "The plug-in \"" + path + "\" lacks its principal class" +
         (className.empty() ? std::string() : " \"" + className + "\"") + ". Install it again.";
}
std::string pluginClassTaken(const std::string &path, const std::string &className) {
  return "The plug-in \"" + path + "\" was not loaded: its class \"" + className +
         "\" is in use already, perhaps by another copy. Remove one of them.";
}
std::string pluginWithoutOperation(const std::string &path, const std::string &operation) {
  return "The plug-in \"" + path + "\" is no print-dialog extension: its principal class lacks \"" +
         operation + "\". Ask its maker for another version.";
}
std::string pluginRefused(const std::string &path) {
  return "The plug-in \"" + path +
         "\" could not be loaded: it reports that it cannot start. Install "
         "it again.";
}
std::string pluginRaised(const std::string &path, const std::string &operation,
                         const std::string &what) {
  return "The plug-in \"" + path + "\" failed in \"" + operation + "\" (" + what +
         ") and is left out. Ask its maker for another version.";
}
std::string panelNotBuilt(const std::string &path) {
  return "The panel of the plug-in \"" + path +
         "\" could not be loaded; a file of it is missing or damaged. Install it again.";
}
std::string panelWithoutOperation(const std::string &path, const std::string &operation) {
  return "A panel of the plug-in \"" + path + "\" cannot be used: it lacks \"" + operation +
         "\". Ask its maker for another version.";
}
std::string panelWithoutView(const std::string &path) {
  return "A panel of the plug-in \"" + path + "\" has no view. Install it again.";
}
std::string noPanel(const std::string &printer, const std::vector<std::string> &plugins) {
  if (plugins.empty())
    return "No plug-in was found for \"" + printer + "\". Name one with --plugin BUNDLE.";
  return "No plug-in has a panel for \"" + printer + "\" (asked: " + join(plugins) +
         "). Choose a printer that supports one, or name another plug-in with --plugin BUNDLE.";
}
std::string panelRefusedJob(const std::string &panel) {
  return "\"" + panel + "\" does not allow the job to be printed. Look at its settings.";
}

std::string noSuchField(const std::string &name, const std::vector<std::string> &known) {
  return "No panel has an entry field \"" + name + "\"" +
         (known.empty() ? std::string(".") : "; there are: " + join(known) + ".");
}
std::string ambiguousField(const std::string &name, const std::vector<std::string> &matches) {
  return "\"" + name + "\" may mean several entry fields: " + join(matches) +
         ". Write more of the name.";
}
std::string fieldUnavailable(const std::string &name, const std::string &reason) {
  return text("\"{1}\" cannot be changed with the present settings of the job: the panel has "
              "switched it off.")
             .with(name) +
         " " +
         (reason.empty() ? text("The back side may have no offsets of its own (--back on).").str()
                         : reason);
}
const Text kNoSwitch = text("No panel has exactly one checkbox for --back.");
std::string switchUnavailable(const std::string &reason) {
  return text("The checkbox cannot be changed with the present settings of the job: the panel has "
              "switched it off.")
             .str() +
         (reason.empty() ? reason : " " + reason);
}
const Text kChooseTwoSided = text("Choose it, such as with -o Duplex=DuplexNoTumble.");
const Text kSwitchBannerPagesOff = text("Switch them off with -o MVBannerPagePrint=False.");
std::string valueAdjusted(const std::string &name, const std::string &typed,
                          const std::string &shown) {
  return "The panel made \"" + shown + "\" of \"" + typed + "\" for " + name + ".";
}

std::string ticketWritten(const std::string &path, const std::string &optionPath) {
  return "The job's settings are in " + path + " and " + optionPath + ".";
}
const Text kOutputUnwritable = text("Standard output cannot be written. Send it elsewhere, or name "
                                    "a file with --ticket.");
const Text kCancelled = text("Cancelled; nothing was written.");

} // namespace imageposition::messages
