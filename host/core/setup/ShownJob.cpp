#include "ShownJob.hpp"

#include "DocumentNames.hpp"
#include "FileVersion.hpp"
#include "ShiftedJob.hpp"
#include "Strings.hpp"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstring>

namespace imageposition {

namespace {

/// The numbers of pages per side that cups-filters knows.
constexpr std::array<int, 10> kNumbersUp{1, 2, 4, 6, 8, 9, 10, 12, 15, 16};

/// Which pages are on which side is known only for these; 0 for others.
int numberUpOf(const PrintSettingsStore &options) {
  const char *const text = options.get("number-up");
  int number = 1;
  if (text != nullptr)
    std::from_chars(text, text + std::strlen(text), number);
  return std::find(kNumbersUp.begin(), kNumbersUp.end(), number) != kNumbersUp.end() ? number : 0;
}

/// Options whose result depends on all pages of the document.
bool needsWholeDocument(const PrintSettingsStore &options) {
  const char *const booklet = options.get("booklet");
  return options.get("page-label") != nullptr ||
         (booklet != nullptr && !isSame(booklet, "false") && !isSame(booklet, "off"));
}

void remove(JobRequest &request, const char *name) {
  request.settings.remove(name);
  request.defaults.remove(name);
}

std::string text(const DocumentPages &pages) {
  std::string text = std::to_string(pages.pages) + " " + std::to_string(pages.numberUp) + " " +
                     std::to_string(static_cast<int>(pages.choice.set));
  return pages.choice.ranges ? text + " " + pages.choice.ranges->optionValue() : text;
}

std::string text(const SideOrder &order) {
  return std::to_string(static_cast<int>(order.sides)) + (order.isReversed ? " reversed" : "");
}

} // namespace

std::optional<ShownDocument> documentToShow(const PrintJob &job,
                                            const DestinationList &destinations, int pages) try {
  const bool isNamed = !job.documents().empty() && job.documents().front() != "-";
  const std::string version = isNamed ? fileVersion(job.documents().front()) : "";
  if (version.empty())
    return std::nullopt;
  ShownDocument shown;
  shown.path = job.documents().front();
  if (job.documents().size() > 1)
    shown.name = documentName(shown.path);
  JobRequest request = job.request(destinations);
  removeOffsets(request);
  const PrintSettingsStore options = optionsToSend(request);
  ppd_file_t *const ppd = job.printer().ppd();
  shown.order = sideOrder(options, ppd);
  if (pages > 0 && numberUpOf(options) > 0 && !needsWholeDocument(options)) {
    shown.pages = DocumentPages{pages, numberUpOf(options), readPageChoice(options)};
    remove(request, "page-ranges");
    remove(request, "page-set");
  }
  const char *const device = job.printer().queueDefaults().get("device-uri");
  shown.job = std::make_shared<const ShiftedJob>(request, ShiftPlan{}, ppd, job.printer().text(),
                                                 device != nullptr ? device : "");
  for (const std::string &part :
       {shown.path, shown.name, version, job.queue(), job.printer().name(), shown.job->layout(),
        text(shown.order), shown.pages ? text(*shown.pages) : ""})
    shown.identity += part + '\n';
  return shown;
} catch (const Failure &) { // printing says what is wrong
  return std::nullopt;
}

} // namespace imageposition
