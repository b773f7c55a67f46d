#include "host/Ticket.hpp"

#include "host/ExitCode.hpp"
#include "host/Messages.hpp"
#include "host/OptionText.hpp"

#include <nlohmann/json.hpp>

#include <cerrno>
#include <filesystem>
#include <fstream>
#include <set>
#include <sstream>

namespace imageposition {

namespace {

using Json = nlohmann::ordered_json;

[[noreturn]] void refuse(const std::string &source, const std::string &reason) {
  throw Failure(ExitCode::Ticket, messages::ticketMalformed(source, reason));
}

/// What the library says, without its own number for it and without what it last read, which may
/// be a password.
std::string reasonIn(const Json::exception &error) {
  const std::string text = error.what();
  const std::size_t end = text.find("] ");
  const std::size_t start = end == std::string::npos ? 0 : end + 2;
  return text.substr(start, text.find("; last read: ", start) - start);
}

std::string textMember(const Json &object, const char *name, const std::string &source) {
  const auto member = object.find(name);
  if (member == object.end())
    return {};
  if (!member->is_string())
    refuse(source, messages::ticketMemberNotText(name));
  return member->get<std::string>();
}

std::vector<std::string> listMember(const Json &object, const char *name,
                                    const std::string &source) {
  std::vector<std::string> texts;
  const auto member = object.find(name);
  if (member == object.end())
    return texts;
  if (!member->is_array())
    refuse(source, messages::ticketMemberNotList(name));
  for (const Json &text : *member) {
    if (!text.is_string())
      refuse(source, messages::ticketMemberNotList(name));
    texts.push_back(text.get<std::string>());
  }
  return texts;
}

std::string valueText(const std::string &name, const Json &value, const std::string &source) {
  if (value.is_string())
    return value.get<std::string>();
  if (value.is_number_integer())
    return value.dump();
  refuse(source, messages::ticketValueNotText(name));
}

void readSettings(const Json &object, const std::string &source, PrintSettingsStore &settings) {
  const auto member = object.find("settings");
  if (member == object.end() || !member->is_object())
    refuse(source, messages::kTicketWithoutSettings);
  const std::vector<std::string> names = listMember(object, "locked", source);
  const std::set<std::string> locked(names.begin(), names.end());
  for (const auto &[name, value] : member->items()) {
    const auto outcome =
        settings.set(name, valueText(name, value, source), locked.count(name) != 0);
    if (outcome == PrintSettingsStore::Outcome::Locked)
      refuse(source, messages::ticketEntryRepeated(name));
    if (outcome != PrintSettingsStore::Outcome::Stored)
      refuse(source, messages::ticketEntryUnusable(name));
  }
}

} // namespace

Ticket readTicketText(const std::string &json, const std::string &source) {
  Json object;
  try {
    object = Json::parse(json);
  } catch (const Json::exception &error) {
    refuse(source, messages::ticketNotJson(reasonIn(error)));
  }
  if (!object.is_object())
    refuse(source, messages::kTicketWithoutSettings);
  Ticket ticket;
  ticket.printer = textMember(object, "printer", source);
  ticket.documents = listMember(object, "documents", source);
  const std::string document = textMember(object, "document", source);
  if (!document.empty())
    ticket.documents.insert(ticket.documents.begin(), document);
  readSettings(object, source, ticket.settings);
  return ticket;
}

std::string writeTicketText(const Ticket &ticket) {
  Json object = Json::object();
  object["printer"] = ticket.printer;
  if (ticket.documents.size() == 1)
    object["document"] = ticket.documents.front();
  if (ticket.documents.size() > 1)
    object["documents"] = ticket.documents;
  Json settings = Json::object();
  Json locked = Json::array();
  for (int i = 0; i < ticket.settings.optionCount(); i++) {
    const cups_option_t &option = ticket.settings.options()[i];
    settings[option.name] = option.value;
    if (ticket.settings.isLocked(option.name))
      locked.push_back(option.name);
  }
  if (!locked.empty())
    object["locked"] = locked;
  object["settings"] = settings;
  // A printer's or file's name may be in any encoding; the settings are always UTF-8.
  return object.dump(2, ' ', false, Json::error_handler_t::replace) + '\n';
}

std::optional<Ticket> readTicket(const std::string &path) {
  std::error_code ignored;
  const auto kind = std::filesystem::status(path, ignored).type();
  using Type = std::filesystem::file_type;
  if (kind == Type::fifo || kind == Type::socket || kind == Type::character || kind == Type::block)
    throw Failure(ExitCode::Ticket, messages::notAnOrdinaryFile(path)); // reading may never end
  errno = 0;
  std::ifstream file(path, std::ios::binary);
  if (!file) {
    if (errno == ENOENT)
      return std::nullopt;
    throw Failure(ExitCode::Ticket, messages::ticketUnreadable(path, systemReason(errno)));
  }
  std::ostringstream content;
  errno = 0;
  content << file.rdbuf();
  if (file.bad() || errno == EISDIR)
    throw Failure(ExitCode::Ticket, messages::ticketUnreadable(path, systemReason(errno)));
  return readTicketText(content.str(), path);
}

void writeTicket(const Ticket &ticket, const std::string &path, Readers readers) {
  FileReplacement json(path, writeTicketText(ticket), readers);
  FileReplacement options(optionTextPath(path), writeOptionText(ticket.settings), readers);
  options.commit();
  json.commit(); // last: it is what is read again
}

void checkTicketPlace(const std::string &path) {
  for (const std::string &name : {path, optionTextPath(path)})
    FileReplacement(name, "");
}

std::string optionTextPath(const std::string &ticketPath) {
  constexpr std::string_view kExtension = ".json";
  std::string stem = ticketPath;
  if (stem.size() > kExtension.size() &&
      stem.compare(stem.size() - kExtension.size(), kExtension.size(), kExtension) == 0)
    stem.resize(stem.size() - kExtension.size());
  return stem + ".options";
}

} // namespace imageposition
