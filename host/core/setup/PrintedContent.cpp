#include "PrintedContent.hpp"

#include "CustomValue.hpp"
#include "JobSettings.hpp"
#include "QueueName.hpp"
#include "ShiftedJob.hpp"

#include <utility>

namespace imageposition {

JobRequest requestFor(const PrintedContent &content, const OpenedPrinter &printer,
                      const Destination *destination) {
  ppd_file_t *const ppd = printer.printer->ppd();
  JobRequest request;
  request.printer = QueueName::parse(printer.queue).printer;
  request.settings = content.settings;
  request.title = content.title;
  if (const char *const title = content.settings.get(kTitleSetting);
      title != nullptr && *title != '\0')
    request.title = title;
  request.settings.remove(kTitleSetting);
  request.compounds = compoundOptions(ppd);
  for (const PrintSettingsStore *settings : {&printer.printer->queueDefaults(), &content.settings})
    for (std::string &name : hiddenSettings(ppd, *settings))
      request.secrets.push_back(std::move(name));
  if (destination != nullptr) {
    request.defaults = destination->defaults;
    request.printerUri = destination->uri;
  }
  return request;
}

ShiftDecision shiftOf(const JobRequest &request, const PrintSettingsStore &settings,
                      PrinterDescription &printer) {
  printer.mark(settings);
  return decideShift(optionsToSend(request), printer.ppd());
}

std::unique_ptr<ShiftedJob> shiftedJob(const JobRequest &request, const ShiftPlan &plan,
                                       const PrinterDescription &printer) {
  const char *const device = printer.queueDefaults().get("device-uri");
  return std::make_unique<ShiftedJob>(request, plan, printer.ppd(), printer.text(),
                                      device != nullptr ? device : "");
}

} // namespace imageposition
