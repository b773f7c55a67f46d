#include "GivenSettings.hpp"

#include "ExitCode.hpp"
#include "OptionText.hpp"
#include "PanelValues.hpp"
#include "PreparedJob.hpp"
#include "SharedKeys.h"
#include "ValueCheck.hpp"

#include <cups/cups.h>

#include <cstring>

namespace imageposition {

namespace {

/// Where lp has CUPS send notifications about a job.
std::string mailAddress() {
  char host[HTTP_MAX_HOST];
  return std::string(cupsUser()) + "@" + httpGetHostname(nullptr, host, sizeof host);
}

void applyLpOptions(const Arguments &arguments, PrintSettingsStore &settings) {
  for (const std::string &option : arguments.options)
    readOptionArgument(option, settings);
  if (arguments.isMailWanted)
    readOptionArgument("notify-recipient-uri=mailto:" + mailAddress(), settings);
}

bool isPreparing(const Arguments &arguments) { return !arguments.prepare.empty(); }

} // namespace

PrintSettingsStore givenSettings(const Arguments &arguments, ppd_file_t *ppd) {
  PrintSettingsStore settings;
  applyLpOptions(arguments, settings);
  return isPreparing(arguments) ? acceptable(settings, ppd) : settings;
}

Ticket givenTicket(const Arguments &arguments, ppd_file_t *ppd, const PrintSettingsStore &preset) {
  Ticket ticket;
  ticket.settings = preset;
  if (!arguments.prepared.empty())
    ticket.settings = readPrepared(arguments.prepared).settings;
  else if (!arguments.ticket.empty())
    if (auto stored = readTicket(arguments.ticket))
      ticket = *stored;
  if (!arguments.documents.empty())
    ticket.documents = arguments.documents;
  if (!isPreparing(arguments)) {
    applyLpOptions(arguments, ticket.settings);
    return ticket;
  }
  const PrintSettingsStore proposals = givenSettings(arguments, ppd);
  for (int i = 0; i < proposals.optionCount(); i++)
    ticket.settings.set(proposals.options()[i].name, proposals.options()[i].value);
  return ticket;
}

void requireNumbers(const Arguments &arguments, ppd_file_t *ppd,
                    const std::vector<std::string> &keywords) {
  const PrintSettingsStore given = givenSettings(arguments, ppd);
  for (const std::string &keyword : keywords) {
    const char *const value = given.get(keyword);
    const std::string problem = value != nullptr ? wholeNumberProblem(ppd, keyword, value) : "";
    if (!problem.empty())
      throw Failure(ExitCode::Value, problem);
  }
}

bool isBackIgnored(const Arguments &arguments, ppd_file_t *ppd,
                   const PrintSettingsStore &settings) {
  const PrintSettingsStore given = givenSettings(arguments, ppd);
  const char *const flag = settings.get(IPA_KEY_ENABLE);
  if (flag != nullptr && readBoolean(flag).value_or(false))
    return false;
  const char *const right = given.get(IPA_KEY_BACK_LEFT_RIGHT);
  const char *const down = given.get(IPA_KEY_BACK_TOP_BOTTOM);
  return (right != nullptr && !isOff(right)) || (down != nullptr && !isOff(down));
}

bool isOff(const char *value) {
  return std::strcmp(value, "0") == 0 || std::strcmp(value, "False") == 0;
}

} // namespace imageposition
