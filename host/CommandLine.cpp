#include "host/CommandLine.hpp"

#include "host/ExitCode.hpp"
#include "host/Messages.hpp"

#include <CLI/CLI.hpp>

namespace imageposition {

namespace {

struct RawArguments {
  Arguments arguments;
  std::vector<std::string> entries;
  std::string back;
};

void addOptions(CLI::App &app, RawArguments &raw) {
  Arguments &arguments = raw.arguments;
  app.add_option("--ppd", arguments.ppd, messages::kHelpPpd)->type_name("FILE");
  app.add_option("-d,--queue", arguments.queue, messages::kHelpQueue)->type_name("QUEUE");
  app.add_option("-o,--option", arguments.options, messages::kHelpOption)
      ->type_name("NAME=VALUE")
      ->allow_extra_args(false);
  app.add_option("-h", arguments.server, messages::kHelpServer)->type_name("SERVER");
  app.add_option("-n", arguments.copies, messages::kHelpCopies)
      ->type_name("COPIES")
      ->check(CLI::Range(1, 9999));
  app.add_option("-P", arguments.pages, messages::kHelpPages)->type_name("PAGES");
  app.add_option("-t", arguments.title, messages::kHelpTitle)->type_name("TITLE");
  app.add_option("-q", arguments.priority, messages::kHelpPriority)
      ->type_name("PRIORITY")
      ->check(CLI::Range(1, 100));
  app.add_flag("--dry-run", arguments.isDryRun, messages::kHelpDryRun);
  app.add_option("--plugin", arguments.plugins, messages::kHelpPlugin)
      ->type_name("BUNDLE")
      ->allow_extra_args(false);
  app.add_option("--ticket", arguments.ticket, messages::kHelpTicket)->type_name("FILE");
  app.add_option("DOCUMENT", arguments.document, messages::kHelpDocument)->type_name("");
  app.add_flag("--batch", arguments.isBatch, messages::kHelpBatch);
  app.add_option("--set", raw.entries, messages::kHelpSet)
      ->type_name("NAME=TEXT")
      ->allow_extra_args(false);
  app.add_option("--back", raw.back, messages::kHelpBack)->type_name("on|off");
  app.add_flag("--summary", arguments.batch.summary, messages::kHelpSummary);
}

[[noreturn]] void refuse(const std::string &message) {
  throw Failure(ExitCode::Usage, messages::usage(message));
}

bool endsWith(const std::string &text, const std::string &end) {
  return text.size() >= end.size() && text.compare(text.size() - end.size(), end.size(), end) == 0;
}

/// An empty text comes from a variable that was never set; what it was meant for would be skipped.
void refuseEmptyTexts(const CLI::App &app) {
  for (const char *name : {"--ticket", "--back", "DOCUMENT"}) {
    const CLI::Option *const option = app.get_option(name);
    if (option->count() > 0 && option->as<std::string>().empty())
      refuse(messages::emptyText(name));
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
  const bool asksForMore = !batch.entries.empty() || batch.back || batch.summary;
  if (asksForMore && !raw.arguments.isBatch)
    refuse(messages::kOnlyInBatch);
}

void checkCombination(const Arguments &arguments) {
  if (!arguments.ppd.empty() && !arguments.queue.empty())
    refuse(messages::kTwoPrintersNamed);
  if (endsWith(arguments.ticket, ".options"))
    refuse(messages::ticketNamesOptions(arguments.ticket));
}

} // namespace

std::variant<Arguments, Answer> readCommandLine(std::vector<std::string> words) {
  CLI::App app(messages::kHelpIntroduction, "print-dialog");
  app.set_version_flag("--version", messages::kVersion, messages::kHelpVersion);
  app.set_help_flag("--help", messages::kHelpHelp);
  app.footer(messages::kHelpFooter);
  app.get_formatter()->column_width(26);
  RawArguments raw;
  addOptions(app, raw);
  try {
    std::reverse(words.begin(), words.end()); // CLI11 takes them from the back
    app.parse(words);
  } catch (const CLI::CallForHelp &) {
    return Answer{app.help()};
  } catch (const CLI::CallForVersion &) {
    return Answer{std::string(messages::kVersion) + "\n"};
  } catch (const CLI::ParseError &error) {
    refuse(error.what());
  }
  refuseEmptyTexts(app);
  fillBatchRequest(raw);
  checkCombination(raw.arguments);
  return raw.arguments;
}

std::vector<std::string> withoutPlatformDefaults(const std::vector<std::string> &words) {
  std::vector<std::string> rest;
  for (std::size_t i = 0; i < words.size(); i++) {
    const std::string start = words[i].substr(0, 3);
    if (start == "-NS" || start == "-GS")
      i++; // and its value
    else
      rest.push_back(words[i]);
  }
  return rest;
}

} // namespace imageposition
