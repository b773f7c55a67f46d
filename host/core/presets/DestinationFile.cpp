#include "DestinationFile.hpp"

#include "Strings.hpp"

#include <algorithm>
#include <optional>

namespace imageposition {

namespace {

/// A number sign begins a comment unless it follows a backslash.
std::string withoutComment(const std::string &line) {
  std::string text;
  for (const char c : line) {
    if (c == '#' && (text.empty() || text.back() != '\\'))
      break;
    if (c == '#')
      text.pop_back();
    text += c;
  }
  return text;
}

std::string takeWord(std::string &text) {
  constexpr const char *kBlanks = " \t\r\f\v";
  text.erase(0, std::min(text.find_first_not_of(kBlanks), text.size()));
  const std::size_t end = std::min(text.find_first_of(kBlanks), text.size());
  std::string word = text.substr(0, end);
  text.erase(0, end);
  text.erase(0, std::min(text.find_first_not_of(kBlanks), text.size()));
  return word;
}

std::optional<DestinationFile::Entry> entryOf(const std::string &line) {
  std::string rest = withoutComment(line);
  const std::string directive = takeWord(rest);
  DestinationFile::Entry entry;
  entry.isDefault = isSame(directive, "Default");
  if (!entry.isDefault && !isSame(directive, "Dest"))
    return std::nullopt;
  const std::string name = takeWord(rest);
  if (name.empty())
    return std::nullopt;
  entry.queue = QueueName::parse(name);
  entry.options = rest;
  return entry;
}

std::string lineOf(const DestinationFile::Entry &entry) {
  const std::string line = (entry.isDefault ? "Default " : "Dest ") + entry.queue.text();
  return entry.options.empty() ? line : line + ' ' + entry.options;
}

bool isOf(const std::optional<DestinationFile::Entry> &entry, const QueueName &queue) {
  return entry && entry->queue == queue;
}

} // namespace

DestinationFile::DestinationFile(std::string_view text) {
  while (!text.empty()) {
    const std::size_t end = std::min(text.find('\n'), text.size());
    lines_.emplace_back(text.substr(0, end));
    text.remove_prefix(std::min(end + 1, text.size()));
  }
}

std::vector<DestinationFile::Entry> DestinationFile::entries() const {
  std::vector<Entry> entries;
  for (const std::string &line : lines_)
    if (auto entry = entryOf(line))
      entries.push_back(std::move(*entry));
  return entries;
}

bool DestinationFile::has(const QueueName &queue) const {
  return std::any_of(lines_.begin(), lines_.end(),
                     [&](const std::string &line) { return isOf(entryOf(line), queue); });
}

bool DestinationFile::set(const QueueName &queue, const std::string &options) {
  Entry entry{queue, options, false};
  std::vector<std::string> lines;
  std::size_t place = lines_.size();
  for (const std::string &line : lines_) {
    const auto known = entryOf(line);
    if (!isOf(known, queue)) {
      lines.push_back(line);
      continue;
    }
    entry.isDefault = entry.isDefault || known->isDefault;
    place = std::min(place, lines.size());
  }
  const std::string line = lineOf(entry);
  if (line.size() > kLongestLine)
    return false;
  lines.insert(lines.begin() + static_cast<std::ptrdiff_t>(std::min(place, lines.size())), line);
  lines_ = std::move(lines);
  return true;
}

void DestinationFile::remove(const QueueName &queue) {
  std::vector<std::string> lines;
  for (const std::string &line : lines_) {
    const auto entry = entryOf(line);
    if (!isOf(entry, queue))
      lines.push_back(line);
    else if (entry->isDefault)
      lines.push_back(lineOf({{entry->queue.printer, {}}, {}, true}));
  }
  lines_ = std::move(lines);
}

void DestinationFile::rename(const QueueName &queue, const std::string &newInstance) {
  for (std::string &line : lines_) {
    const auto entry = entryOf(line);
    if (!isOf(entry, queue))
      continue;
    // Keep the formatting after the name.
    const std::string &printer = entry->queue.printer;
    const std::size_t at = line.find(printer + '/');
    line.replace(at + printer.size() + 1, entry->queue.instance.size(), newInstance);
  }
}

std::string DestinationFile::text() const {
  std::string text;
  for (const std::string &line : lines_)
    text += line + '\n';
  return text;
}

} // namespace imageposition
