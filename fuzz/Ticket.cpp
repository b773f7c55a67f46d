// Tickets: every ticket that can be read stays the same after writing and reading it back.
#include "Ticket.hpp"

#include "Check.hpp"
#include "ExitCode.hpp"

using imageposition::PrintSettingsStore;
using imageposition::readTicketText;
using imageposition::Ticket;
using imageposition::writeTicketText;
using imageposition::fuzz::check;
using imageposition::fuzz::checkSame;

namespace {

void checkSameSettings(const PrintSettingsStore &actual, const PrintSettingsStore &expected) {
  check(actual.optionCount() == expected.optionCount(), "the same number of settings");
  for (int i = 0; i < expected.optionCount(); ++i) {
    const cups_option_t &option = expected.options()[i];
    checkSame(actual.options()[i].name, option.name, "the same name");
    checkSame(actual.options()[i].value, option.value, "the same value");
    check(actual.isLocked(option.name) == expected.isLocked(option.name), "locked as before");
    check(PrintSettingsStore::isUsableName(option.name) &&
              PrintSettingsStore::isUsableValue(option.value),
          "the entries that were read can be sent to CUPS");
  }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size) {
  const std::string text(reinterpret_cast<const char *>(data), size);
  Ticket ticket;
  try {
    ticket = readTicketText(text, "a ticket");
  } catch (const imageposition::Failure &failure) {
    check(failure.code() == imageposition::ExitCode::Ticket && *failure.what() != '\0',
          "a bad ticket gets an error message");
    return 0;
  }
  const std::string written = writeTicketText(ticket);
  const Ticket again = readTicketText(written, "its own text");
  checkSame(again.printer, ticket.printer, "the same printer");
  check(again.documents == ticket.documents, "the same documents");
  checkSameSettings(again.settings, ticket.settings);
  checkSame(writeTicketText(again), written, "written the same again");
  return 0;
}
