#include "PrinterDescription.hpp"

#include "ChoiceList.hpp"
#include "ImageShiftText.hpp"
#include "MissingTexts.hpp"
#include "Phrases.hpp"
#include "PpdSize.hpp"
#include "PrinterConnection.hpp"
#include "PrinterFailure.hpp"
#include "PrinterTexts.hpp"
#include "QueueName.hpp"
#include "UsualTexts.hpp"
#include "VisibleText.hpp"

#include <algorithm>
#include <array>
#include <cerrno>
#include <ctime>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace imageposition {

namespace {

/// Deletes a temporary file that CUPS has created.
class TemporaryFile {
public:
  explicit TemporaryFile(std::string path) : path_(std::move(path)) {}
  ~TemporaryFile() { unlink(path_.c_str()); }
  TemporaryFile(const TemporaryFile &) = delete;
  TemporaryFile &operator=(const TemporaryFile &) = delete;

private:
  std::string path_;
};

/// The file type bits of the mode; 0 if there is no file.
mode_t kindOf(const std::string &path) {
  struct stat status {};
  return stat(path.c_str(), &status) == 0 ? status.st_mode & S_IFMT : 0;
}

std::string nameFromPpd(const ppd_file_t &ppd, const std::string &otherwise) {
  for (const char *name : {ppd.nickname, ppd.modelname})
    if (name != nullptr && *name != '\0')
      return visible(name);
  return otherwise;
}

/// Defaults that users set with lpoptions, or an administrator for all users. The list also has the
/// queue's state and location, which marking ignores because no PPD has options of those names.
PrintSettingsStore defaultsOf(http_t *http, const QueueName &queue) {
  PrintSettingsStore defaults;
  const CupsDestination destination(cupsGetNamedDest(
      http, queue.printer.c_str(), queue.instance.empty() ? nullptr : queue.instance.c_str()));
  if (!destination)
    return defaults;
  for (int i = 0; i < destination->num_options; i++)
    defaults.set(destination->options[i].name, destination->options[i].value);
  return defaults;
}

/// Empty for a pipe, which can be read only once.
std::string textOf(const std::string &path) {
  std::string text;
  if (kindOf(path) != S_IFREG)
    return text;
  const CupsFile file(cupsFileOpen(path.c_str(), "r"));
  std::array<char, 65536> part{};
  for (ssize_t count = 0; file && (count = cupsFileRead(file.get(), part.data(), part.size())) > 0;)
    text.append(part.data(), static_cast<std::size_t>(count));
  return text;
}

/// Opens it again with what the panel looks for, unless the driver moves the image itself.
void addImageShift(PpdFile &ppd, const std::string &text) {
  const auto added = withImageShift(text);
  if (!added)
    return;
  const int file = memfd_create("ppd", MFD_CLOEXEC);
  if (file < 0)
    return;
  const bool isWritten = write(file, added->data(), added->size()) == ssize_t(added->size());
  lseek(file, 0, SEEK_SET);
  PpdFile extended(ppdOpenFd(file)); // closes the file
  if (isWritten && extended)
    ppd = std::move(extended);
}

using Choices = std::map<std::string, std::string>;

void collectMarked(ppd_file_t *ppd, const ppd_group_t &group, Choices &marked) {
  for (int i = 0; i < group.num_options; i++)
    marked[group.options[i].keyword] = markedChoice(ppd, group.options[i]);
  for (int i = 0; i < group.num_subgroups; i++)
    collectMarked(ppd, group.subgroups[i], marked);
}

} // namespace

PrinterDescription::PrinterDescription(PpdFile ppd, std::string name)
    : ppd_(std::move(ppd)), name_(std::move(name)) {
  ppdMarkDefaults(ppd_.get());
  for (ppd_option_t *option = ppdFirstOption(ppd_.get()); option != nullptr;
       option = ppdNextOption(ppd_.get()))
    if (option->ui == PPD_UI_PICKMANY)
      lists_.push_back(option);
  // If the PPD has an option in several groups, CUPS marks only the one that `ppdFindOption`
  // returns. (Calling it would reset the iteration above.)
  const auto isOther = [this](const ppd_option_t *option) {
    return ppdFindOption(ppd_.get(), option->keyword) != option;
  };
  lists_.erase(std::remove_if(lists_.begin(), lists_.end(), isOther), lists_.end());
}

PpdFile PrinterDescription::open(const std::string &path, const std::string &shownPath) {
  const mode_t kind = kindOf(path);
  if (kind == S_IFDIR)
    throw Failure(ExitCode::Printer, messages::ppdUnreadable(shownPath, systemReason(EISDIR)));
  if (kind == S_IFREG && !canBeReadQuickly(path)) // a pipe can be read only once
    throw Failure(ExitCode::Printer, messages::ppdTooLarge(shownPath));
  errno = 0;
  PpdFile ppd(ppdOpenFile(path.c_str()));
  const int reason = errno;
  if (ppd && !canBeMarkedQuickly(*ppd))
    throw Failure(ExitCode::Printer, messages::ppdTooLarge(shownPath));
  if (ppd)
    return ppd;
  int line = 0;
  const ppd_status_t status = ppdLastError(&line);
  if (status == PPD_FILE_OPEN_ERROR)
    throw Failure(ExitCode::Printer, messages::ppdUnreadable(shownPath, systemReason(reason)));
  throw Failure(ExitCode::Printer, messages::ppdMalformed(shownPath, line, ppdErrorString(status)));
}

PrinterDescription PrinterDescription::fromFile(const std::string &path) {
  auto ppd = open(path, path);
  const std::string name = nameFromPpd(*ppd, path);
  PrinterDescription printer(std::move(ppd), name);
  printer.text_ = textOf(path);
  printer.localize(path, {});
  return printer;
}

PrinterDescription PrinterDescription::ofQueue(const std::string &queue, MissingShift shift) {
  const QueueName name = QueueName::parse(queue);
  SilenceLimit silence;
  const auto connection = connectForPrinter(silence);
  char file[1024] = "";
  time_t changed = 0;
  const int status = // an int, because CUPS can send any number
      cupsGetPPD3(connection->http(), name.printer.c_str(), &changed, file, sizeof file);
  if (status != HTTP_STATUS_OK) {
    if (*file != '\0')
      unlink(file);
    if (silence.isExceeded())
      failForSilence();
    throw PrinterFailure(messages::queueWithoutPpd(queue, visible(cupsLastErrorString())),
                         messages::kNamePrinter);
  }
  const TemporaryFile owner(file);
  PpdFile ppd = open(file, messages::ppdOfQueue(queue));
  std::string text = textOf(file);
  if (shift == MissingShift::Add)
    addImageShift(ppd, text);
  PrinterDescription printer(std::move(ppd), queue);
  printer.text_ = std::move(text);
  printer.queueDefaults_ = defaultsOf(connection->http(), name);
  if (!name.instance.empty())
    printer.printerDefaults_ = defaultsOf(connection->http(), {name.printer, {}});
  printer.localize(file, name.printer);
  return printer;
}

void PrinterDescription::leaveInstance() {
  const QueueName name = QueueName::parse(name_);
  if (name.instance.empty())
    return;
  name_ = name.printer;
  queueDefaults_ = printerDefaults_;
  defaultChoices_.reset();
}

void PrinterDescription::mark(const PrintSettingsStore &job) {
  ppdMarkDefaults(ppd());
  for (const PrintSettingsStore *settings : {&std::as_const(queueDefaults_), &job})
    cupsMarkOptions(ppd(), settings->optionCount(),
                    const_cast<cups_option_t *>(settings->options())); // not modified
  markLists(job);
}

const std::map<std::string, std::string> &PrinterDescription::defaultChoices() {
  if (!defaultChoices_) {
    mark(PrintSettingsStore());
    defaultChoices_.emplace();
    for (int i = 0; i < ppd()->num_groups; i++)
      collectMarked(ppd(), ppd()->groups[i], *defaultChoices_);
  }
  return *defaultChoices_;
}

const std::vector<OptionConstraint> &PrinterDescription::constraints() {
  if (!constraints_)
    constraints_ = constraintsOf(ppd());
  return *constraints_;
}

void PrinterDescription::localize(const std::string &path, const std::string &queue) {
  ppdLocalize(ppd());
  const bool isReadAgain = kindOf(path) == S_IFREG; // a pipe can be read only once
  if (isMissingTexts(*ppd()))
    fillMissingTexts(*ppd(), isReadAgain ? readTranslations(path) : Translations(), queue);
  translateUsualTexts(*ppd());
}

void PrinterDescription::markLists(const PrintSettingsStore &job) {
  for (ppd_option_t *const option : lists_) {
    bool isMarked = false;
    for (const PrintSettingsStore *settings : {&job, &std::as_const(queueDefaults_)})
      if (const char *const value = settings->get(option->keyword); value != nullptr && !isMarked)
        isMarked = markChoices(ppd(), *option, splitChoices(value));
    if (!isMarked)
      markChoices(ppd(), *option, splitChoices(option->defchoice));
  }
}

std::vector<std::string> PrinterDescription::attributeValues(const std::string &keyword) const {
  std::vector<std::string> values;
  for (ppd_attr_t *attribute = ppdFindAttr(ppd(), keyword.c_str(), nullptr); attribute != nullptr;
       attribute = ppdFindNextAttr(ppd(), keyword.c_str(), nullptr))
    if (attribute->value != nullptr && *attribute->value != '\0')
      values.emplace_back(attribute->value);
  return values;
}

} // namespace imageposition
