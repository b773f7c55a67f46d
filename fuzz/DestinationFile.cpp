// Destination files: unchanged parts stay byte for byte, and other destinations stay.
#include "DestinationFile.hpp"

#include "Check.hpp"

#include <algorithm>
#include <fuzzer/FuzzedDataProvider.h>

using imageposition::DestinationFile;
using imageposition::QueueName;
using imageposition::fuzz::check;
using imageposition::fuzz::checkSame;

namespace {

using Entries = std::vector<DestinationFile::Entry>;

std::string described(const DestinationFile::Entry &entry) {
  return entry.queue.text() + (entry.isDefault ? " (default) " : " ") + entry.options;
}

Entries without(const Entries &entries, const QueueName &queue) {
  Entries rest;
  for (const DestinationFile::Entry &entry : entries)
    if (entry.queue != queue)
      rest.push_back(entry);
  return rest;
}

void checkSameEntries(const Entries &actual, const Entries &expected) {
  check(actual.size() == expected.size(), "as many other destinations");
  for (std::size_t i = 0; i < expected.size(); ++i)
    checkSame(described(actual[i]), described(expected[i]), "another destination");
}

// All lines but those of that destination, in their order.
std::string otherLines(const std::string &text, const QueueName &queue) {
  std::string result;
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t end = std::min(text.find('\n', at), text.size());
    const std::string line = text.substr(at, end - at);
    const Entries entries = DestinationFile(line).entries();
    if (entries.empty() || entries[0].queue != queue)
      result += line + '\n';
    at = end + 1;
  }
  return result;
}

std::string drawName(FuzzedDataProvider &input) {
  static const char *const kNames[] = {"office", "OFFICE", "lab", "a", "", "photo", "Photo"};
  return input.PickValueInArray(kNames);
}

void checkSet(DestinationFile file, const QueueName &queue, const std::string &options) {
  const std::string before = file.text();
  const Entries entries = file.entries();
  if (!file.set(queue, options))
    return checkSame(file.text(), before, "an entry that is too long changes nothing");
  check(file.has(queue), "an entry that was set is there");
  checkSame(otherLines(file.text(), queue), otherLines(before, queue),
            "other lines stay as they are");
  checkSameEntries(without(file.entries(), queue), without(entries, queue));
  checkSame(DestinationFile(file.text()).text(), file.text(),
            "the file reads back as it was written");
}

void checkRemoved(DestinationFile file, const QueueName &queue) {
  const std::string before = file.text();
  file.remove(queue);
  check(queue.instance.empty() || !file.has(queue), "a removed destination is gone");
  if (!DestinationFile(before).has(queue))
    checkSame(file.text(), before, "removing a missing destination changes nothing");
}

void checkRenamed(DestinationFile file, const QueueName &queue, const std::string &newInstance) {
  const Entries before = file.entries();
  file.rename(queue, newInstance);
  const Entries after = file.entries();
  check(after.size() == before.size(), "as many destinations after renaming");
  for (std::size_t i = 0; i < before.size(); ++i) {
    DestinationFile::Entry expected = before[i];
    if (before[i].queue == queue)
      expected.queue.instance = newInstance;
    checkSame(described(after[i]), described(expected), "only the name changes");
  }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size) {
  FuzzedDataProvider input(data, size);
  QueueName queue;
  queue.printer = drawName(input).substr(0, 6);
  queue.instance = drawName(input);
  const std::string newInstance = "new";
  static const char *const kOptions[] = {"", "a=1", "a=1 b=\"x y\" noc", "media=A4"};
  const std::string options = input.PickValueInArray(kOptions);
  const std::string text = input.ConsumeRemainingBytesAsString();

  const DestinationFile file(text);
  const std::string ended = text.empty() || text.back() == '\n' ? text : text + '\n';
  checkSame(file.text(), ended, "an unchanged file is the same, byte for byte");
  if (queue.printer.empty())
    return 0;
  checkSet(file, queue, options);
  checkRemoved(file, queue);
  if (!queue.instance.empty())
    checkRenamed(file, queue, newInstance);
  return 0;
}
