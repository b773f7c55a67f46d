#include "PreparedJob.hpp"

#include "ExitCode.hpp"
#include "JobTexts.hpp"
#include "PrinterOptions.hpp"
#include "Strings.hpp"
#include "ValueCheck.hpp"

#include <cups/pwg.h>

#include <algorithm>
#include <cerrno>
#include <cmath>
#include <cstring>

namespace imageposition {

namespace {

/// Whether the printer has the paper, which is a name of the PPD or of a standard.
bool hasPaper(ppd_file_t *ppd, const char *name) {
  constexpr double kTolerance = 5; // points; as CUPS has it
  const pwg_media_t *const paper = pwgMediaForPWG(name);
  const auto isIt = [&](const ppd_size_t &size) {
    return imageposition::isSame(size.name, name) ||
           (paper != nullptr && std::abs(size.width - paper->width * 72 / 2540.0) <= kTolerance &&
            std::abs(size.length - paper->length * 72 / 2540.0) <= kTolerance);
  };
  return std::any_of(ppd->sizes, ppd->sizes + ppd->num_sizes, isIt);
}

} // namespace

Ticket readPrepared(const std::string &path) {
  auto ticket = readTicket(path);
  if (!ticket)
    throw Failure(ExitCode::Ticket, messages::ticketUnreadable(path, systemReason(ENOENT)));
  return *ticket;
}

std::optional<TicketPaper> paperOf(PrinterDescription &printer, PrintSettingsStore &settings) {
  const auto option = PrinterOptions(printer, settings).find("PageSize"); // marks the choices
  const ppd_size_t *const size = ppdPageSize(printer.ppd(), nullptr);
  if (!option || size == nullptr)
    return std::nullopt;
  return TicketPaper{option->chosen,
                     option->textOf(option->chosen),
                     size->width,
                     size->length,
                     size->left,
                     size->bottom,
                     size->width - size->right,
                     size->length - size->top};
}

PrintSettingsStore acceptable(const PrintSettingsStore &proposed, ppd_file_t *ppd) {
  PrintSettingsStore accepted;
  for (int i = 0; i < proposed.optionCount(); i++) {
    const cups_option_t &option = proposed.options()[i];
    const auto value = fitSetting(ppd, option.name, option.value, false).value;
    if (value && (std::strcmp(option.name, "media") != 0 || hasPaper(ppd, option.value)))
      accepted.set(option.name, *value);
  }
  return accepted;
}

} // namespace imageposition
