#include "CommandLine.hpp"

#include "Appearance.hpp"
#include "CommandTexts.hpp"
#include "Copies.hpp"
#include "ExitCode.hpp"
#include "HoldTime.hpp"
#include "JobTexts.hpp"
#include "OptionText.hpp"
#include "PageRanges.hpp"
#include "ParentWindow.hpp"
#include "PrinterTexts.hpp"
#include "Strings.hpp"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <functional>
#include <sys/stat.h>

namespace imageposition {

namespace {

struct RawArguments {
  Arguments arguments;
  std::vector<std::string> entries;
  std::string back;
};

[[noreturn]] void refuse(const std::string &message) {
  throw Failure(ExitCode::Usage, messages::usage(message));
}

/// An option that may be repeated. Calls `take` for each occurrence, in order.
template <typename Value>
CLI::Option *addRepeated(CLI::App &app, const char *names, const std::function<void(Value)> &take,
                         const char *help) {
  return app.add_option_function<Value>(names, take, help)->trigger_on_parse();
}

/// An option that may be repeated. The last one wins.
CLI::Option *addText(CLI::App &app, const char *names, std::string &value, const char *help,
                     const char *type) {
  return app.add_option(names, value, help)->take_last()->type_name(type);
}

/// Adds nothing to the help.
CLI::Validator between(int first, int last) { return CLI::Range(first, last).description(""); }

/// lp's options that restart or change a job that CUPS already has.
void addRefused(CLI::App &app) {
  addRepeated<std::string>(
      app, "-i", [](const std::string &job) { refuse(messages::jobsAreNotChanged(job)); }, "")
      ->group("");
}

int copiesIn(const std::string &typed) {
  const auto copies = readCopies(typed);
  if (!copies)
    throw Failure(ExitCode::Usage, messages::copiesNotUnderstood());
  return *copies;
}

void addPrinterOptions(CLI::App &app, Arguments &arguments) {
  addText(app, "--ppd", arguments.ppd, messages::kHelpPpd, "FILE");
  addText(app, "-d,--queue", arguments.queue, messages::kHelpQueue, "QUEUE");
  addText(app, "-h", arguments.server, messages::kHelpServer, "SERVER");
  app.add_flag("-E", arguments.isEncrypted, messages::kHelpEncryption);
  addText(app, "-U", arguments.user, messages::kHelpUser, "USER");
}

/// The flags that lp turns into job options. A later option overrides an earlier one.
void addJobOptions(CLI::App &app, Arguments &arguments) {
  const auto add = [&arguments](const char *name, const std::string &value) {
    arguments.options.push_back(writeOptionArgument(name, value));
  };
  addRepeated<std::string>(
      app, "-o,--option",
      [&arguments](const std::string &text) { arguments.options.push_back(text); },
      messages::kHelpOption)
      ->type_name("NAME=VALUE");
  addRepeated<std::string>(
      app, "-n",
      [add](const std::string &typed) { add("copies", std::to_string(copiesIn(typed))); },
      messages::kHelpCopies)
      ->type_name("COPIES");
  addRepeated<std::string>(
      app, "-P",
      [add](const std::string &pages) {
        add("page-ranges", PageRanges::parse(pages).optionValue());
      },
      messages::kHelpPages)
      ->type_name("PAGES");
  addRepeated<int>(
      app, "-q", [add](int priority) { add("job-priority", std::to_string(priority)); },
      messages::kHelpPriority)
      ->type_name("PRIORITY")
      ->check(between(1, 100));
  addRepeated<std::string>(
      app, "-H",
      [&arguments](const std::string &when) {
        for (const std::string &option : optionsForHold(when))
          arguments.options.push_back(option);
      },
      messages::kHelpHold)
      ->type_name("WHEN");
}

void addOtherOptions(CLI::App &app, RawArguments &raw) {
  Arguments &arguments = raw.arguments;
  addText(app, "-t", arguments.title, messages::kHelpTitle, "TITLE");
  app.add_flag("-m", arguments.isMailWanted, messages::kHelpMail);
  app.add_flag("-s", arguments.isSilent, messages::kHelpSilent);
  app.add_flag("-c", messages::kHelpCopy);
  app.add_flag("--list-options", arguments.isListingOptions, messages::kHelpListOptions);
  app.add_flag("--dry-run", arguments.isDryRun, messages::kHelpDryRun);
  app.add_flag("--no-shift", arguments.isUnshifted, messages::kHelpNoShift);
  addRepeated<std::string>(
      app, "--plugin", [&arguments](const std::string &path) { arguments.plugins.push_back(path); },
      messages::kHelpPlugin)
      ->type_name("BUNDLE");
  addText(app, "--ticket", arguments.ticket, messages::kHelpTicket, "FILE");
  addText(app, "--pdf", arguments.pdf, messages::kHelpPdf, "FILE");
  addText(app, "--prepare", arguments.prepare, messages::kHelpPrepare, "FILE");
  addText(app, "--prepared", arguments.prepared, messages::kHelpPrepared, "FILE");
  addText(app, "--parent", arguments.parent, messages::kHelpParent, "WINDOW");
  app.add_option("DOCUMENT", arguments.documents, messages::kHelpDocument)->type_name("");
  addText(app, "--appearance", arguments.appearance, messages::kHelpAppearance, "light|dark");
  addText(app, "--text-scale", arguments.textScale, messages::kHelpTextScale, "NUMBER");
  app.add_flag("--batch", arguments.isBatch, messages::kHelpBatch);
  addRepeated<std::string>(
      app, "--set", [&raw](const std::string &entry) { raw.entries.push_back(entry); },
      messages::kHelpSet)
      ->type_name("NAME=TEXT");
  addText(app, "--back", raw.back, messages::kHelpBack, "on|off");
  app.add_flag("--summary", arguments.batch.summary, messages::kHelpSummary);
}

void addAlignmentOptions(CLI::App &app, Arguments &arguments) {
  app.add_flag("--align", arguments.isAligning, messages::kHelpAlign);
  addRepeated<std::string>(
      app, "--reading",
      [&arguments](const std::string &reading) { arguments.readings.push_back(reading); },
      messages::kHelpReading)
      ->type_name("X1,Y1,X2,Y2");
  addText(app, "--crease", arguments.crease, messages::kHelpCrease, "X,Y");
  addText(app, "--sheet", arguments.sheetFile, messages::kHelpSheet, "FILE");
  app.add_flag("--no-alignment", arguments.isUnaligned, messages::kHelpNoAlignment);
  AlignmentFile &file = arguments.alignments;
  app.add_flag("--list-alignments", file.isListed, messages::kHelpListAlignments);
  addText(app, "--export-alignments", file.exported, messages::kHelpExportAlignments, "FILE");
  addText(app, "--import-alignments", file.imported, messages::kHelpImportAlignments, "FILE");
  addText(app, "--delete-alignments", file.deleted, messages::kHelpDeleteAlignments, "QUEUE");
}

/// A shell expands * to file names, which another user may have chosen.
void refuseFilesLikeOptions(const std::vector<std::string> &words) {
  for (const std::string &word : words) {
    if (word == "--")
      return;
    struct stat status {};
    if (word.size() > 1 && word.front() == '-' && lstat(word.c_str(), &status) == 0)
      refuse(messages::fileLikeOption(word));
  }
}

/// An empty value usually comes from an unset shell variable; ignoring it would skip the option.
void refuseEmptyValues(const CLI::App &app) {
  for (const char *name : {"--ticket", "--pdf", "--prepare", "--prepared", "--parent", "--back",
                           "--ppd", "-d", "-h", "-U", "--crease", "--sheet", "--export-alignments",
                           "--import-alignments", "--delete-alignments", "DOCUMENT"}) {
    const auto &texts = app.get_option(name)->results();
    if (std::find(texts.begin(), texts.end(), "") != texts.end())
      refuse(messages::emptyValue(name));
  }
}

void fillBatchRequest(RawArguments &raw) {
  BatchRequest &batch = raw.arguments.batch;
  for (const std::string &word : raw.entries) {
    const auto entry = readEntry(word);
    if (!entry)
      refuse(messages::badEntry(word));
    batch.entries.push_back(*entry);
  }
  if (!raw.back.empty()) {
    batch.back = readSwitch(raw.back);
    if (!batch.back)
      refuse(messages::badSwitch(raw.back));
  }
  if (batch.needsPanel() && !raw.arguments.isBatch)
    refuse(messages::kOnlyInBatch);
}

void checkPreparation(const Arguments &arguments) {
  const bool writesElsewhere =
      !arguments.ticket.empty() || !arguments.pdf.empty() || arguments.isAligning;
  if (!arguments.prepare.empty() &&
      (writesElsewhere || arguments.isDryRun || !arguments.prepared.empty() ||
       !arguments.documents.empty() || !arguments.ppd.empty()))
    refuse(messages::kPrepareAlone);
  if (!arguments.prepared.empty() &&
      (writesElsewhere || !arguments.ppd.empty() || !arguments.queue.empty()))
    refuse(messages::kPreparedHasPrinter);
  if (!arguments.parent.empty() && !readParent(arguments.parent))
    refuse(messages::badParent(arguments.parent));
}

void checkCombination(const Arguments &arguments) {
  if (!arguments.ppd.empty() && !arguments.queue.empty())
    refuse(messages::kTwoPrintersNamed);
  if (!arguments.isAligning &&
      (!arguments.readings.empty() || !arguments.crease.empty() || !arguments.sheetFile.empty()))
    refuse(messages::kOnlyWithAlign);
  if (!arguments.pdf.empty() && (!arguments.ticket.empty() || arguments.isDryRun))
    refuse(messages::kPdfAlone);
  if (arguments.isAligning &&
      (!arguments.documents.empty() || !arguments.ticket.empty() || !arguments.pdf.empty()))
    refuse(messages::kAlignPrintsSheets);
  if (endsWith(arguments.ticket, ".options"))
    refuse(messages::ticketNamesOptions(arguments.ticket));
  if (std::count(arguments.documents.begin(), arguments.documents.end(), "-") > 1)
    refuse(messages::kStandardInputRepeated);
  if (!arguments.appearance.empty() && !readAppearance(arguments.appearance))
    refuse(messages::badAppearance(arguments.appearance));
  if (!arguments.textScale.empty() && !readTextScale(arguments.textScale))
    refuse(messages::badTextScale(arguments.textScale));
}

} // namespace

std::variant<Arguments, Answer> readCommandLine(std::vector<std::string> words) {
  refuseFilesLikeOptions(words);
  CLI::App app(messages::kHelpIntroduction, "print-dialog");
  app.set_version_flag("--version", messages::kVersion, messages::kHelpVersion);
  app.set_help_flag("--help", messages::kHelpHelp);
  app.footer(messages::kHelpFooter);
  app.get_formatter()->column_width(26);
  RawArguments raw;
  addPrinterOptions(app, raw.arguments);
  addJobOptions(app, raw.arguments);
  addOtherOptions(app, raw);
  addAlignmentOptions(app, raw.arguments);
  addRefused(app);
  try {
    std::reverse(words.begin(), words.end()); // CLI11 reads them from the end
    app.parse(words);
  } catch (const CLI::CallForHelp &) {
    return Answer{app.help()};
  } catch (const CLI::CallForVersion &) {
    return Answer{std::string(messages::kVersion) + "\n"};
  } catch (const CLI::ParseError &error) {
    refuse(error.what());
  }
  refuseEmptyValues(app);
  fillBatchRequest(raw);
  checkCombination(raw.arguments);
  checkPreparation(raw.arguments);
  return raw.arguments;
}

} // namespace imageposition
