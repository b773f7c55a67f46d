#include "Ticket.hpp"

#include "ExitCode.hpp"
#include "JobTexts.hpp"
#include "OptionText.hpp"
#include "Strings.hpp"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <set>
#include <utility>

namespace imageposition {

namespace {

using Json = nlohmann::json;
using OrderedJson = nlohmann::ordered_json; // searches an object from the start for each name

[[noreturn]] void refuse(const std::string &source, const std::string &reason) {
  throw Failure(ExitCode::Ticket, messages::ticketMalformed(source, reason));
}

/// The library's message without its error number, and without the string that it last read, which
/// may be a password.
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

using Member = std::pair<std::string, const Json *>;

/// Sorts members as CUPS sorts its list, so each new entry is appended: inserting one moves all
/// that follow it.
std::vector<Member> inOrderOfCups(const Json &object) {
  std::vector<Member> members;
  for (const auto &[name, value] : object.items())
    members.emplace_back(name, &value);
  std::stable_sort(members.begin(), members.end(), [](const Member &left, const Member &right) {
    return IgnoringCase()(left.first, right.first);
  });
  return members;
}

void readSettings(const Json &object, const std::string &source, PrintSettingsStore &settings) {
  const auto member = object.find("settings");
  if (member == object.end() || !member->is_object())
    refuse(source, messages::kTicketWithoutSettings);
  const std::vector<std::string> names = listMember(object, "locked", source);
  const std::set<std::string> locked(names.begin(), names.end());
  for (const auto &[name, value] : inOrderOfCups(*member)) {
    const int before = settings.optionCount();
    const auto outcome =
        settings.set(name, valueText(name, *value, source), locked.count(name) != 0);
    const bool isStored = outcome == PrintSettingsStore::Outcome::Stored;
    if (outcome == PrintSettingsStore::Outcome::Locked ||
        (isStored && settings.optionCount() == before))
      refuse(source, messages::ticketNameRepeated(name));
    if (!isStored)
      refuse(source, messages::ticketEntryUnusable(name));
  }
}

/// The unit of the numbers is in the name, because JSON has none.
constexpr const char *kPaperMember = "paper", *kPointsMember = "points";

std::vector<double> pointsIn(const Json &paper) {
  std::vector<double> points;
  const auto member = paper.find(kPointsMember);
  if (member != paper.end() && member->is_array())
    for (const Json &number : *member)
      if (number.is_number())
        points.push_back(number.get<double>());
  return points;
}

/// None if the member is missing or not as this program writes it.
std::optional<TicketPaper> readPaper(const Json &object, const std::string &source) {
  const auto paper = object.find(kPaperMember);
  if (paper == object.end() || !paper->is_object())
    return std::nullopt;
  const std::vector<double> points = pointsIn(*paper);
  if (points.size() != 6)
    return std::nullopt;
  return TicketPaper{textMember(*paper, "keyword", source),
                     textMember(*paper, "text", source),
                     points[0],
                     points[1],
                     points[2],
                     points[3],
                     points[4],
                     points[5]};
}

OrderedJson jsonOf(const TicketPaper &paper) {
  return {{"keyword", paper.keyword},
          {"text", paper.text},
          {kPointsMember,
           {paper.width, paper.length, paper.left, paper.bottom, paper.right, paper.top}}};
}

/// Refuses objects with a duplicate name, of which the library would silently use the last.
class NameCheck {
public:
  explicit NameCheck(const std::string &source) : source_(source) {}

  void check(Json::parse_event_t event, const Json &value) {
    if (event == Json::parse_event_t::object_start)
      objects_.emplace_back();
    else if (event == Json::parse_event_t::object_end)
      objects_.pop_back();
    else if (event == Json::parse_event_t::key &&
             !objects_.back().insert(value.get<std::string>()).second)
      refuse(source_, messages::ticketNameRepeated(value.get<std::string>()));
  }

private:
  const std::string &source_;
  std::vector<std::set<std::string>> objects_; // the names in each open object
};

Json parsed(const std::string &json, const std::string &source) try {
  NameCheck names(source);
  return Json::parse(json, [&](int, Json::parse_event_t event, Json &value) {
    names.check(event, value);
    return true;
  });
} catch (const Json::exception &error) {
  refuse(source, messages::ticketNotJson(reasonIn(error)));
}

/// Returns the result of `act`. Converts a `FileTrouble` to a `Failure`.
template <typename Act> auto writing(const std::string &path, Act &&act) {
  try {
    return act();
  } catch (const FileTrouble &trouble) {
    throw Failure(ExitCode::Ticket, messages::fileUnwritable(path, trouble.what()));
  }
}

FileReplacement ticketFile(const std::string &path, const std::string &text, Readers readers) {
  return writing(path, [&] { return FileReplacement(path, text, readers); });
}

/// The user did not name this file, so it must not replace any of the user's own.
FileReplacement optionFile(const std::string &ticketPath, const std::string &text,
                           Readers readers) {
  const std::string path = optionTextPath(ticketPath);
  return writing(path, [&] { return FileReplacement(path, text, readers, isOptionText); });
}

} // namespace

Ticket readTicketText(const std::string &json, const std::string &source) {
  const Json object = parsed(json, source);
  if (!object.is_object())
    refuse(source, messages::kTicketWithoutSettings);
  Ticket ticket;
  ticket.printer = textMember(object, "printer", source);
  ticket.documents = listMember(object, "documents", source);
  const std::string document = textMember(object, "document", source);
  if (!document.empty())
    ticket.documents.insert(ticket.documents.begin(), document);
  readSettings(object, source, ticket.settings);
  ticket.paper = readPaper(object, source);
  return ticket;
}

std::string writeTicketText(const Ticket &ticket) {
  OrderedJson object = OrderedJson::object();
  object["printer"] = ticket.printer;
  if (ticket.documents.size() == 1)
    object["document"] = ticket.documents.front();
  if (ticket.documents.size() > 1)
    object["documents"] = ticket.documents;
  OrderedJson::object_t settings;
  OrderedJson locked = OrderedJson::array();
  for (int i = 0; i < ticket.settings.optionCount(); i++) {
    const cups_option_t &option = ticket.settings.options()[i];
    settings.emplace_back(option.name, option.value);
    if (ticket.settings.isLocked(option.name))
      locked.push_back(option.name);
  }
  if (!locked.empty())
    object["locked"] = locked;
  if (ticket.paper)
    object[kPaperMember] = jsonOf(*ticket.paper);
  object["settings"] = std::move(settings);
  // Names of printers and files may have any encoding; the settings are always UTF-8.
  return object.dump(2, ' ', false, OrderedJson::error_handler_t::replace) + '\n';
}

std::optional<Ticket> readTicket(const std::string &path) {
  std::optional<std::string> content;
  try {
    content = contentOfFile(path);
  } catch (const FileTrouble &trouble) {
    throw Failure(ExitCode::Ticket, messages::ticketUnreadable(path, trouble.what()));
  }
  if (!content)
    return std::nullopt;
  return readTicketText(*content, path);
}

void writeTicket(const Ticket &ticket, const std::string &path, Readers readers) {
  FileReplacement json = ticketFile(path, writeTicketText(ticket), readers);
  FileReplacement options = optionFile(path, writeOptionText(ticket.settings), readers);
  options.keepFormer();
  writing(optionTextPath(path), [&] { options.commit(); });
  try {
    json.commit(); // last, because this is the file that is read again
  } catch (const FileTrouble &trouble) {
    std::string message = messages::fileUnwritable(path, trouble.what());
    if (!options.revert())
      message += " " + messages::fileWrittenAlready(optionTextPath(path));
    throw Failure(ExitCode::Ticket, message);
  }
}

void writePreparedTicket(const Ticket &ticket, const std::string &path) {
  writing(path,
          [&] { FileReplacement(path, writeTicketText(ticket), Readers::OwnerAlone).commit(); });
}

void checkTicketPlace(const std::string &path) {
  ticketFile(path, "", Readers::Same);
  optionFile(path, "", Readers::Same);
}

std::string optionTextPath(const std::string &ticketPath) {
  constexpr std::string_view kExtension = ".json";
  std::string stem = ticketPath;
  if (stem.size() > kExtension.size() && endsWith(stem, kExtension))
    stem.resize(stem.size() - kExtension.size());
  return stem + ".options";
}

} // namespace imageposition
