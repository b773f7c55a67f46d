#include "CommandTexts.hpp"

#include "Strings.hpp"

namespace imageposition::messages {

const char *const kVersion = "print-dialog " IMAGEPOSITION_VERSION "\n"
                             "Built with " IMAGEPOSITION_LIBRARIES ".";
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
const char *const kHelpNoShift = "Print the job without moving its image, whatever the offsets";
const char *const kHelpAlign = "Print three alignment sheets, with the paper, tray and\n"
                               "turning that -o gives, and say how to go on; with\n"
                               "--reading, keep what they show";
const char *const kHelpReading = "What one alignment sheet reads, in mm: across and down at\n"
                                 "corner A, then at corner B, such as 1.7,-0.3,1.6,-0.2;\n"
                                 "once for each sheet";
const char *const kHelpCrease = "Where the creases cross the rulers of an alignment\n"
                                "sheet, in mm: across and down, such as -0.5,1";
const char *const kHelpSheet = "Write the alignment sheets to FILE (PDF), and print nothing";
const char *const kHelpNoAlignment = "Leave out what --align has measured";
const char *const kHelpListAlignments = "Print nothing: list what was measured";
const char *const kHelpExportAlignments = "Print nothing: write what was measured to FILE (JSON)";
const char *const kHelpImportAlignments =
    "Print nothing: add what such a file has, which replaces\n"
    "what was measured here for the same";
const char *const kHelpDeleteAlignments = "Print nothing: delete what was measured for QUEUE";
const char *const kHelpPlugin = "Use this plug-in and no other; may be repeated.\n"
                                "Without it: those with the file names that the printer's\n"
                                "description has (APDialogExtension), or else all; beside\n"
                                "this program, or in\n" IMAGEPOSITION_PLUGIN_FOLDER ".\n"
                                "What other users may change is not loaded";
const char *const kHelpTicket = "The job's settings, as JSON: read when FILE exists,\n"
                                "written by Print. The same as NAME=VALUE lines goes\n"
                                "beside it (job.options for job.json)";
const char *const kHelpPdf = "Print nothing: write the pages to FILE (PDF), laid out\n"
                             "and moved as they would be printed";
const char *const kHelpPrepare = "Print nothing: write the printer and the settings of a\n"
                                 "document that does not exist yet to FILE, for --prepared.\n"
                                 "Another printer is offered if that of -d is missing, and\n"
                                 "settings that it does not accept are left out";
const char *const kHelpPrepared = "Print with the printer and the settings in FILE";
const char *const kHelpParent = "The application's window, above which the dialog opens:\n"
                                "x11:HEX, or wayland:HANDLE, which adds the job's title to\n"
                                "the dialog's";
const char *const kHelpDocument = "What to print, several as one job; \"-\" is standard input,\n"
                                  "which is also read when no document is named and the\n"
                                  "window prints, or batch has a file or a pipe there.\n"
                                  "After \"--\" a name may begin with a dash";
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
    "  print-dialog --align -d office -o Duplex=DuplexNoTumble\n"
    "      Prints sheets that show how far the two sides of a sheet are apart.\n"
    "  lp -d office -o \"$(cat job.options)\" report.pdf\n"
    "      Prints with the settings.\n"
    "\n"
    "Exit status:\n"
    "  0  done\n"
    "  1  cancelled, or a panel refused the job\n"
    "  2  the command line cannot be understood, or its document not be read\n"
    "  3  no usable printer description\n"
    "  4  a plug-in or its panel cannot be used\n"
    "  5  batch: no panel for this printer, but an option requires one\n"
    "  6  the ticket or the output cannot be read or written\n"
    "  7  no display, and none could be started\n"
    "  8  batch: a value cannot be set on the panel\n"
    "  9  CUPS did not take the job\n"
    "  10 memory ran out, or there is a fault in print-dialog\n"
    "In batch, nothing is written unless the status is 0.";
const Text kTwoPrintersNamed =
    text("Specify one printer, either with --ppd FILE or with -d QUEUE.");
const Text kOnlyInBatch = text("--set, --back and --summary require --batch.");
const Text kOnlyWithAlign = text("--reading, --crease and --sheet require --align.");
const Text kAlignPrintsSheets =
    text("--align prints alignment sheets. Leave out documents and --ticket.");
const Text kPdfAlone = text("--pdf writes the pages. Leave out --ticket and --dry-run.");
const Text kPrepareAlone = text("--prepare writes settings for a document that does not exist yet. "
                                "Leave out documents, --ppd, --ticket, --pdf and the like.");
const Text kPreparedHasPrinter = text("--prepared prints on the printer that its file names. Leave "
                                      "out -d, --ppd, --ticket, --pdf and the like.");
const Text kStandardInputRepeated =
    text("Standard input can be printed only once. Use \"-\" once.");
std::string jobsAreNotChanged(const std::string &job) {
  return text("print-dialog does not change jobs that CUPS already has. Change this job with lp -i "
              "{1}, or cancel it with cancel {1} and print again.")
      .with(shellWord(job));
}
const Text kJobsAreNotRestarted =
    text("print-dialog does not restart jobs that CUPS already has. Use lp -i JOB -H restart.");
std::string badHoldTime(const std::string &when) {
  return text("-H does not accept \"{1}\". Use hold, immediate, a UTC time such as 18:30, or a "
              "name such as night.")
      .with(when);
}
std::string badAppearance(const std::string &appearance) {
  return text("--appearance must be \"light\" or \"dark\", not \"{1}\".").with(appearance);
}
std::string badParent(const std::string &parent) {
  return text("--parent must be x11: and a window's hexadecimal number, or wayland: and a handle, "
              "not \"{1}\".")
      .with(parent);
}
std::string badTextScale(const std::string &scale) {
  return text("--text-scale must be a number greater than 0, such as 1.25, not \"{1}\".")
      .with(scale);
}
std::string argumentNotUtf8(const std::string &argument) {
  return text("The argument \"{1}\" is not valid UTF-8. Rename the file, or use a symbolic link to "
              "it.")
      .with(argument);
}
std::string fileLikeOption(const std::string &argument) {
  return text("\"{1}\" is both an option and the name of a file here. Put \"--\" before the "
              "documents.")
      .with(argument);
}
std::string emptyValue(const std::string &option) {
  return text("{1} has an empty value.").with(option);
}
std::string badEntry(const std::string &argument) {
  return text("--set requires NAME=VALUE, for example --set FrontLRM=-3, not \"{1}\".")
      .with(argument);
}
std::string badSwitch(const std::string &argument) {
  return text("--back must be \"on\" or \"off\", not \"{1}\".").with(argument);
}
std::string ticketNamesOptions(const std::string &path) {
  return text("--ticket must name the JSON file. \"{1}\" is the name of the file written beside "
              "it. Use the extension .json.")
      .with(path);
}

} // namespace imageposition::messages
