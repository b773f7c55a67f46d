#include "Collation.hpp"

#include "PrinterOptions.hpp"
#include "Strings.hpp"

namespace imageposition {

namespace {

constexpr const char *kOption = "Collate";
constexpr const char *kHandling = "multiple-document-handling";
constexpr const char *kCollatedCopies = "separate-documents-collated-copies";

} // namespace

bool isCollated(PrinterDescription &printer, PrintSettingsStore &job) {
  if (const char *const handling = job.get(kHandling))
    return isSame(handling, kCollatedCopies);
  if (const auto option = PrinterOptions(printer, job).find(kOption))
    return isTrue(option->chosen);
  const char *const stored = job.get(kOption);
  return stored != nullptr && isTrue(stored);
}

void setCollated(bool collated, PrinterDescription &printer, PrintSettingsStore &job) {
  job.remove(kHandling);
  PrinterOptions options(printer, job);
  if (const auto option = options.find(kOption)) {
    for (const OptionChoice &choice : option->choices)
      if (isTrue(choice.keyword) == collated) {
        options.choose(kOption, choice.keyword);
        return;
      }
  }
  job.remove(kOption);
  if (collated)
    job.set(kHandling, kCollatedCopies);
}

} // namespace imageposition
