// Destination files: unchanged parts stay byte for byte, and other destinations stay.
#include "DestinationFile.hpp"

#include "Check.hpp"

#include <algorithm>
#include <fuzzer/FuzzedDataProvider.h>
#include <strings.h>

using imageposition::DestinationFile;
using imageposition::fuzz::check;
using imageposition::fuzz::checkSame;

namespace {

using Entries = std::vector<DestinationFile::Entry>;

bool isOf(const DestinationFile::Entry &entry, const std::string &printer,
          const std::string &instance) {
  return strcasecmp(entry.printer.c_str(), printer.c_str()) == 0 &&
         strcasecmp(entry.instance.c_str(), instance.c_str()) == 0;
}

std::string described(const DestinationFile::Entry &entry) {
  return entry.printer + "/" + entry.instance + (entry.isDefault ? " (default) " : " ") +
         entry.options;
}

Entries without(const Entries &entries, const std::string &printer, const std::string &instance) {
  Entries rest;
  for (const DestinationFile::Entry &entry : entries)
    if (!isOf(entry, printer, instance))
      rest.push_back(entry);
  return rest;
}

void checkSameEntries(const Entries &actual, const Entries &expected) {
  check(actual.size() == expected.size(), "as many other destinations");
  for (std::size_t i = 0; i < expected.size(); ++i)
    checkSame(described(actual[i]), described(expected[i]), "another destination");
}

// All lines but those of that destination, in their order.
std::string otherLines(const std::string &text, const std::string &printer,
                       const std::string &instance) {
  std::string result;
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t end = std::min(text.find('\n', at), text.size());
    const std::string line = text.substr(at, end - at);
    const Entries entries = DestinationFile(line).entries();
    if (entries.empty() || !isOf(entries[0], printer, instance))
      result += line + '\n';
    at = end + 1;
  }
  return result;
}

std::string drawName(FuzzedDataProvider &input) {
  static const char *const kNames[] = {"office", "OFFICE", "lab", "a", "", "photo", "Photo"};
  return input.PickValueInArray(kNames);
}

void checkSet(DestinationFile file, const std::string &printer, const std::string &instance,
              const std::string &options) {
  const std::string before = file.text();
  const Entries entries = file.entries();
  if (!file.set(printer, instance, options))
    return checkSame(file.text(), before, "an entry that is too long changes nothing");
  check(file.has(printer, instance), "an entry that was set is there");
  checkSame(otherLines(file.text(), printer, instance), otherLines(before, printer, instance),
            "other lines stay as they are");
  checkSameEntries(without(file.entries(), printer, instance), without(entries, printer, instance));
  checkSame(DestinationFile(file.text()).text(), file.text(),
            "the file reads back as it was written");
}

void checkRemoved(DestinationFile file, const std::string &printer, const std::string &instance) {
  const std::string before = file.text();
  file.remove(printer, instance);
  check(instance.empty() || !file.has(printer, instance), "a removed destination is gone");
  if (!DestinationFile(before).has(printer, instance))
    checkSame(file.text(), before, "removing a missing destination changes nothing");
}

void checkRenamed(DestinationFile file, const std::string &printer, const std::string &instance,
                  const std::string &newInstance) {
  const Entries before = file.entries();
  file.rename(printer, instance, newInstance);
  const Entries after = file.entries();
  check(after.size() == before.size(), "as many destinations after renaming");
  for (std::size_t i = 0; i < before.size(); ++i) {
    DestinationFile::Entry expected = before[i];
    if (isOf(before[i], printer, instance))
      expected.instance = newInstance;
    checkSame(described(after[i]), described(expected), "only the name changes");
  }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size) {
  FuzzedDataProvider input(data, size);
  const std::string printer = drawName(input).substr(0, 6);
  const std::string instance = drawName(input);
  const std::string newInstance = "new";
  static const char *const kOptions[] = {"", "a=1", "a=1 b=\"x y\" noc", "media=A4"};
  const std::string options = input.PickValueInArray(kOptions);
  const std::string text = input.ConsumeRemainingBytesAsString();

  const DestinationFile file(text);
  const std::string ended = text.empty() || text.back() == '\n' ? text : text + '\n';
  checkSame(file.text(), ended, "an unchanged file is the same, byte for byte");
  if (printer.empty())
    return 0;
  checkSet(file, printer, instance, options);
  checkRemoved(file, printer, instance);
  if (!instance.empty())
    checkRenamed(file, printer, instance, newInstance);
  return 0;
}
