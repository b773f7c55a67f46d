#include "CommandTexts.hpp"

#include "Strings.hpp"

namespace imageposition::messages {

const char *const kVersion = "print-dialog " IMAGEPOSITION_VERSION "\n"
                             "Built with " IMAGEPOSITION_LIBRARIES ".";
const char *const kHelpIntroduction = "Prints documents, using the panels of printer plug-ins.\n"
                                      "Opens a window; --batch does the same without one.";
const char *const kHelpPpd = "The printer's PPD file";
const char *const kHelpQueue = "The printer's CUPS queue: NAME or NAME/INSTANCE;\n"
                               "without this and --ppd, the default queue";
const char *const kHelpOption = "A setting of the job, as for lp: NAME=VALUE, NAME\n"
                                "or noNAME; may be repeated";
const char *const kHelpServer = "The CUPS server: HOST, HOST:PORT or a socket's path";
const char *const kHelpEncryption = "Encrypt the connection to the CUPS server";
const char *const kHelpUser = "Print as this user";
const char *const kHelpCopies = "The number of copies";
const char *const kHelpPages = "The pages to print, such as 1-3,7";
const char *const kHelpTitle = "The job's title; the default is the first document's name";
const char *const kHelpPriority = "The job's priority, from 1 to 100; the default is 50";
const char *const kHelpHold = "When to print: hold (once the job is released),\n"
                              "immediate (before other jobs), a UTC time (HH:MM), or\n"
                              "day-time, evening, night, weekend, second-shift,\n"
                              "third-shift, indefinite, no-hold";
const char *const kHelpMail = "Have CUPS send a mail when the job is done; implies -s";
const char *const kHelpSilent = "Print no message when CUPS has accepted the job";
const char *const kHelpCopy = "Accepted for compatibility with lp: CUPS always copies the\n"
                              "document";
const char *const kHelpListOptions = "Print nothing: list the printer's options with their\n"
                                     "choices, and a star before the job's choices;\n"
                                     "conflicts are reported on standard error";
const char *const kHelpDryRun = "Print nothing: write the request that CUPS would receive";
const char *const kHelpNoShift = "Print the job without moving its image, whatever the offsets";
const char *const kHelpAlign = "Print three alignment sheets, with the paper, tray and\n"
                               "turning that -o gives, and describe the next step; with\n"
                               "--reading, save the offsets that they show";
const char *const kHelpReading = "The readings of one alignment sheet, in mm: across and\n"
                                 "down at corner A, then at corner B, such as\n"
                                 "1.7,-0.3,1.6,-0.2; once for each sheet";
const char *const kHelpCrease = "Where the creases cross the rulers of an alignment\n"
                                "sheet, in mm: across and down, such as -0.5,1";
const char *const kHelpSheet = "Write the alignment sheets to FILE (PDF), and print nothing";
const char *const kHelpNoAlignment = "Ignore the offsets measured with --align";
const char *const kHelpListAlignments = "Print nothing: list the measurements";
const char *const kHelpExportAlignments = "Print nothing: write the measurements to FILE (JSON)";
const char *const kHelpImportAlignments =
    "Print nothing: add the measurements in such a file, which\n"
    "replace those for the same settings";
const char *const kHelpDeleteAlignments = "Print nothing: delete the measurements for QUEUE";
const char *const kHelpPlugin = "Use only this plug-in; may be repeated. The default is\n"
                                "the plug-ins that the printer's PPD names\n"
                                "(APDialogExtension), or else all: those beside this\n"
                                "program, or in\n" IMAGEPOSITION_PLUGIN_FOLDER ".\n"
                                "A plug-in that other users could modify is not loaded";
const char *const kHelpTicket = "The job's settings, as JSON: read if FILE exists,\n"
                                "written by Print. The same settings are written beside\n"
                                "it as NAME=VALUE lines (job.options for job.json)";
const char *const kHelpPdf = "Print nothing: write the pages to FILE (PDF), laid out\n"
                             "and moved as they would be printed";
const char *const kHelpPrepare = "Print nothing: write the printer and the settings of a\n"
                                 "document that does not exist yet to FILE, for --prepared.\n"
                                 "If the printer of -d is missing, another one is offered;\n"
                                 "settings that the printer does not accept are left out";
const char *const kHelpPrepared = "Print with the printer and the settings in FILE";
const char *const kHelpParent = "The application's window, above which the dialog opens:\n"
                                "x11:HEX, or wayland:HANDLE, which adds the job's title to\n"
                                "the dialog's";
const char *const kHelpDocument = "The documents to print, as one job; \"-\" is standard\n"
                                  "input. If no document is named, standard input is read\n"
                                  "if it is a file or a pipe.\n"
                                  "After \"--\" a name may begin with a dash";
const char *const kHelpAppearance = "The window's appearance; the default is the desktop's";
const char *const kHelpTextScale = "The factor for the size of text, such as 1.25";
const char *const kHelpBatch = "Show no window: set the panel, then write the job's\n"
                               "settings to the ticket, or print the documents.\n"
                               "If there is no display, Xvfb is started";
const char *const kHelpSet = "Batch: type TEXT into the panel's entry field of that\n"
                             "name (or whose name begins with it) and press Return;\n"
                             "may be repeated";
const char *const kHelpBack = "Batch: set the panel's checkbox for separate back\n"
                              "offsets, before anything is typed";
const char *const kHelpSummary = "Batch: print the panels' summary";
const char *const kHelpVersion = "Print the version";
const char *const kHelpHelp = "Print this text";
const char *const kHelpFooter =
    "Examples:\n"
    "  print-dialog report.pdf\n"
    "      Opens the window with the default printer.\n"
    "  print-dialog --ppd samples/duplex-shift.ppd --ticket job.json\n"
    "      Opens the window; Print writes job.json and job.options.\n"
    "  print-dialog -d office -o Duplex=DuplexNoTumble --ticket job.json report.pdf\n"
    "      The same for a CUPS queue, with two-sided printing.\n"
    "  print-dialog --batch --ppd samples/duplex-shift.ppd --set FrontLRM=-3 --back on --summary\n"
    "      No window: sets the panel, prints the job's settings and the summary.\n"
    "  print-dialog --align -d office -o Duplex=DuplexNoTumble\n"
    "      Prints sheets that show how far apart the two sides of a sheet are.\n"
    "  lp -d office -o \"$(cat job.options)\" report.pdf\n"
    "      Prints with these settings.\n"
    "\n"
    "Exit status:\n"
    "  0  done\n"
    "  1  cancelled, or a panel refused the job\n"
    "  2  the command line is invalid, or a document cannot be read\n"
    "  3  no usable printer description\n"
    "  4  a plug-in or its panel cannot be used\n"
    "  5  batch: no panel for this printer, but an option requires one\n"
    "  6  the ticket or the output cannot be read or written\n"
    "  7  no display, and none could be started\n"
    "  8  batch: a value cannot be set on the panel\n"
    "  9  CUPS did not accept the job\n"
    "  10 memory ran out, a file is missing, or there is a bug\n"
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
