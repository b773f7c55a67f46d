#include "Alignments.hpp"

#include "AlignmentTexts.hpp"
#include "FileContent.hpp"
#include "Phrases.hpp"
#include "QueueName.hpp"
#include "Strings.hpp"
#include "UserFile.hpp"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <cmath>
#include <ctime>

namespace imageposition {

namespace {

using Json = nlohmann::json;

constexpr const char *kLongEdge = "long-edge";
constexpr const char *kShortEdge = "short-edge";
constexpr std::size_t kDateLength = 10;
constexpr int kMostSheets = 1000;

/// Empty for a user without a home folder.
std::string file() {
  const std::string folder = configurationFolder();
  return folder.empty() ? folder : folder + "/alignments.json";
}

Json written(const Offset &offset) { return {offset.right.count, offset.down.count}; }

Json written(const AlignmentKey &key, const SideOffsets &offsets) {
  return {{"queue", key.queue},
          {"turning", key.turning == Turning::ShortEdge ? kShortEdge : kLongEdge},
          {"tray", key.tray},
          {"paper", key.paper},
          {"front", written(offsets.front)},
          {"back", written(offsets.back)}};
}

// These throw an exception of the library for values that the file cannot have.

[[noreturn]] void refuse() { throw FileTrouble(messages::kNotAlignments); }

/// From -most to most.
int readInteger(const Json &number, int most) {
  const auto value = number.get<double>(); // the library wraps integers that do not fit
  if (!number.is_number_integer() || std::abs(value) > most)
    refuse();
  return static_cast<int>(value);
}

Offset readOffset(const Json &lengths) {
  constexpr auto kMost = static_cast<int>(kLargestOffset.count);
  return {{readInteger(lengths.at(0), kMost)}, {readInteger(lengths.at(1), kMost)}};
}

AlignmentKey readKey(const Json &entry) {
  const std::string turning = entry.at("turning");
  if (turning != kLongEdge && turning != kShortEdge)
    refuse();
  return {entry.at("queue"), turning == kLongEdge ? Turning::LongEdge : Turning::ShortEdge,
          entry.at("tray"), entry.at("paper")};
}

SideOffsets readOffsets(const Json &entry) {
  return {readOffset(entry.at("front")), readOffset(entry.at("back"))};
}

MeasuredAlignment readAlignment(const Json &entry) {
  MeasuredAlignment alignment{readKey(entry), readOffsets(entry), {}, 0, entry.at("date")};
  if (alignment.date.size() != kDateLength)
    refuse();
  if (entry.contains("spread"))
    alignment.spread = readOffset(entry["spread"]);
  alignment.sheets = entry.contains("sheets") ? readInteger(entry["sheets"], kMostSheets) : 1;
  alignment.sheets = std::max(alignment.sheets, 1);
  return alignment;
}

/// Calls `take` for each entry of a list; ignores those that it cannot read.
void readEntries(const Json &file, const char *list,
                 const std::function<void(const Json &)> &take) {
  const auto entries = file.find(list);
  if (entries == file.end() || !entries->is_array())
    return;
  for (const Json &entry : *entries) {
    try {
      take(entry);
    } catch (const Json::exception &) {
    } catch (const FileTrouble &) {
    }
  }
}

/// Throws a `FileTrouble`.
Alignments alignmentsIn(const std::optional<std::string> &content) {
  if (!content)
    return {};
  auto alignments = Alignments::fromText(*content);
  if (!alignments)
    refuse();
  return *alignments;
}

bool isAlignments(std::string_view content) {
  return Alignments::fromText(std::string(content)).has_value();
}

std::string markedChoice(ppd_file_t *ppd, const char *option) {
  const ppd_choice_t *const choice = ppdFindMarkedChoice(ppd, option);
  return choice != nullptr ? choice->choice : "";
}

template <typename Entries> auto entryOf(Entries &entries, const AlignmentKey &key) {
  return std::find_if(entries.begin(), entries.end(),
                      [&](const auto &entry) { return entry.key == key; });
}

template <typename Entry>
std::size_t removeFrom(std::vector<Entry> &entries, const std::string &queue) {
  const std::size_t before = entries.size();
  entries.erase(std::remove_if(entries.begin(), entries.end(),
                               [&](const Entry &entry) { return isSame(entry.key.queue, queue); }),
                entries.end());
  return before - entries.size();
}

std::string choiceText(ppd_file_t *ppd, const char *option, const std::string &choice) {
  ppd_option_t *const found = ppd != nullptr ? ppdFindOption(ppd, option) : nullptr;
  const ppd_choice_t *const named =
      found != nullptr ? ppdFindChoice(found, choice.c_str()) : nullptr;
  return named != nullptr && named->text[0] != '\0' ? named->text : choice;
}

} // namespace

bool operator==(const AlignmentKey &a, const AlignmentKey &b) noexcept {
  return isSame(a.queue, b.queue) && a.turning == b.turning && a.tray == b.tray &&
         a.paper == b.paper;
}

AlignmentKey alignmentKeyOf(const std::string &queue, ppd_file_t *ppd) {
  const PreviewRequest job = readPreviewRequest({}, ppd);
  AlignmentKey key{QueueName::parse(queue).printer, job.turning, markedChoice(ppd, "InputSlot"),
                   markedChoice(ppd, "PageSize")};
  if (isSame(key.paper, "Custom"))
    key.paper += "." + std::to_string(std::lround(job.page.width.count)) + "x" +
                 std::to_string(std::lround(job.page.height.count));
  return key;
}

std::optional<FoundAlignment> Alignments::find(const AlignmentKey &key) const {
  if (const auto exact = entryOf(all_, key); exact != all_.end())
    return FoundAlignment{exact->offsets, exact->date, false};
  if (key.turning != Turning::ShortEdge)
    return std::nullopt;
  AlignmentKey other = key;
  other.turning = Turning::LongEdge;
  const auto found = entryOf(all_, other);
  if (found == all_.end())
    return std::nullopt;
  return FoundAlignment{forOtherTurning(found->offsets), found->date, true};
}

void Alignments::store(const MeasuredAlignment &alignment) {
  if (const auto former = entryOf(all_, alignment.key); former != all_.end())
    *former = alignment;
  else
    all_.push_back(alignment);
}

std::size_t Alignments::removeQueue(const std::string &queue) {
  removeFrom(printed_, queue);
  return removeFrom(all_, queue);
}

std::optional<SideOffsets> Alignments::printed(const AlignmentKey &key) const {
  const auto found = entryOf(printed_, key);
  return found != printed_.end() ? std::optional(found->offsets) : std::nullopt;
}

void Alignments::setPrinted(const AlignmentKey &key, const SideOffsets &offsets) {
  if (const auto former = entryOf(printed_, key); former != printed_.end())
    former->offsets = offsets;
  else
    printed_.push_back({key, offsets});
}

std::string Alignments::text() const {
  Json alignments = Json::array(), printed = Json::array();
  for (const MeasuredAlignment &alignment : all_) {
    Json entry = written(alignment.key, alignment.offsets);
    entry["spread"] = written(alignment.spread);
    entry["sheets"] = alignment.sheets;
    entry["date"] = alignment.date;
    alignments.push_back(std::move(entry));
  }
  for (const Printed &sheets : printed_)
    printed.push_back(written(sheets.key, sheets.offsets));
  const Json file{{"alignments", std::move(alignments)}, {"printed", std::move(printed)}};
  return file.dump(2, ' ', false, Json::error_handler_t::replace) + '\n';
}

std::optional<Alignments> Alignments::fromText(const std::string &text) {
  const Json file = Json::parse(text, nullptr, false);
  if (!file.is_object() || !file.contains("alignments") || !file["alignments"].is_array())
    return std::nullopt;
  Alignments alignments;
  readEntries(file, "alignments",
              [&](const Json &entry) { alignments.store(readAlignment(entry)); });
  readEntries(file, "printed", [&](const Json &entry) {
    alignments.setPrinted(readKey(entry), readOffsets(entry));
  });
  return alignments;
}

Alignments Alignments::read(std::ostream &errors) {
  const std::string path = file();
  if (path.empty())
    return {};
  try {
    return alignmentsIn(contentOfFile(path));
  } catch (const FileTrouble &trouble) {
    errors << messages::alignmentsUnreadable(path, trouble.what()) << std::endl;
    return {};
  }
}

bool changeAlignments(const std::function<void(Alignments &)> &change, std::ostream &errors) {
  const std::string path = file();
  if (path.empty()) {
    errors << messages::kNoHomeForAlignments.view() << std::endl;
    return false;
  }
  try {
    changeUserFile(
        path,
        [&](const std::optional<std::string> &content) {
          Alignments alignments = alignmentsIn(content);
          change(alignments);
          return alignments.text();
        },
        isAlignments);
    return true;
  } catch (const FileTrouble &trouble) {
    errors << messages::alignmentsUnwritable(path, trouble.what()) << std::endl;
    return false;
  }
}

std::string today() {
  const std::time_t now = std::time(nullptr);
  std::tm local{};
  localtime_r(&now, &local);
  char date[kDateLength + 1];
  return std::strftime(date, sizeof date, "%Y-%m-%d", &local) == kDateLength ? date : "";
}

std::string keyInWords(const AlignmentKey &key, ppd_file_t *ppd) {
  std::vector<std::string> parts{choiceText(ppd, "PageSize", key.paper)};
  if (!key.tray.empty())
    parts.push_back(choiceText(ppd, "InputSlot", key.tray));
  parts.push_back(messages::turningInWords(key.turning));
  return messages::inOrder(parts);
}

std::string alignmentLine(const MeasuredAlignment &alignment) {
  return messages::named(alignment.key.queue,
                         messages::alignment(keyInWords(alignment.key, nullptr),
                                             messages::offsetsInWords(alignment.offsets),
                                             alignment.date));
}

} // namespace imageposition
