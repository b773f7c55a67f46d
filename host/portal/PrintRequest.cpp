#include "PrintRequest.hpp"

#include "Dictionaries.hpp"
#include "ExitCode.hpp"
#include "ParentWindow.hpp"

#include <fcntl.h>
#include <iostream>
#include <sys/stat.h>
#include <utility>

namespace imageposition {

namespace {

Response responseFor(std::optional<int> status) {
  if (status == static_cast<int>(ExitCode::Done))
    return Response::Done;
  return status == static_cast<int>(ExitCode::Cancelled) ? Response::Cancelled : Response::Failed;
}

/// To the start, unless it is a pipe: applications send the descriptor with which they wrote, and a
/// failed attempt has read from it. Returns whether it is at the start.
bool rewind(const Descriptor &document) { return lseek(document.get(), 0, SEEK_SET) == 0; }

GVariant *resultsOf(const PortalJob &reply, std::uint32_t token) {
  GVariantBuilder results;
  g_variant_builder_init(&results, G_VARIANT_TYPE_VARDICT);
  g_variant_builder_add(&results, "{sv}", "settings", settingsVariant(reply.settings));
  g_variant_builder_add(&results, "{sv}", "page-setup", pageVariant(reply.page));
  g_variant_builder_add(&results, "{sv}", "token", g_variant_new_uint32(token));
  return g_variant_builder_end(&results);
}

} // namespace

void PrintRequest::close() {
  dialog_->close();
  end(Response::Failed);
}

std::vector<std::string> PrintRequest::callersWords(bool isWindowed) const {
  std::vector<std::string> words;
  if (!caller_.title.empty())
    words.push_back("-t" + caller_.title); // one word, because it may begin with a hyphen
  if (isWindowed && readParent(caller_.parent))
    words.push_back("--parent=" + caller_.parent);
  return words;
}

void PrintRequest::run(const std::vector<std::string> &words, int document, Dialog::Service service,
                       Dialog::Ended ended) {
  dialog_ = std::make_unique<Dialog>(words, document, service, std::move(ended));
}

void PrintRequest::respond(Response response, GVariant *results) {
  if (const auto respond = std::exchange(owner_.respond, nullptr))
    respond(response, results);
}

void PrintRequest::end(Response response, GVariant *results) {
  respond(response, results);
  const auto end = std::move(owner_.end);
  end();
}

void PreparationRequest::start() {
  std::vector<std::string> words = callersWords(true);
  words.push_back("--prepare=" + file_->path());
  for (std::string &word : wordsFor(job_))
    words.push_back(std::move(word));
  run(words, -1, Dialog::Service::Needed, [this](std::optional<int> status) { ended(status); });
}

void PreparationRequest::ended(std::optional<int> status) {
  if (responseFor(status) != Response::Done) {
    end(responseFor(status));
    return;
  }
  GVariant *results = nullptr;
  try {
    const auto prepared = readTicket(file_->path());
    if (!prepared)
      throw std::runtime_error("print-dialog has written no job");
    writePreparedTicket(ticketToPrint(*prepared), file_->path());
    results =
        resultsOf(replyTo(job_, *prepared), tokens_.add(caller().application, std::move(file_)));
  } catch (const std::runtime_error &failure) {
    std::cerr << "print-dialog-portal: " << failure.what() << std::endl;
  }
  end(results != nullptr ? Response::Done : Response::Failed, results);
}

void DocumentRequest::start() {
  if (job_)
    printPrepared();
  else
    showDialog();
}

void DocumentRequest::close() {
  if (isPrinting_)
    respond(Response::Failed);
  else
    PrintRequest::close();
}

void DocumentRequest::printPrepared() {
  std::vector<std::string> words = callersWords(false);
  words.insert(words.end(), {"--batch", "--prepared=" + job_->path(), "-"});
  rewind(document_);
  run(words, document_.get(), Dialog::Service::NotNeeded,
      [this](std::optional<int> status) { printingEnded(status); });
  isPrinting_ = true;
}

/// If the job could not be printed, the dialog says why and lets the user print otherwise: nothing
/// else would tell the user.
void DocumentRequest::printingEnded(std::optional<int> status) {
  isPrinting_ = false;
  const bool canBeRepeated = status && responseFor(status) == Response::Failed && rewind(document_);
  if (!canBeRepeated) {
    end(responseFor(status));
    return;
  }
  try {
    showDialog();
  } catch (const std::runtime_error &) {
    end(Response::Failed);
  }
}

void DocumentRequest::showDialog() {
  std::vector<std::string> words = callersWords(true);
  if (job_)
    words.push_back("--prepared=" + job_->path());
  words.emplace_back("-");
  rewind(document_);
  run(words, document_.get(), Dialog::Service::NotNeeded,
      [this](std::optional<int> status) { end(responseFor(status)); });
}

std::string documentProblem(const Descriptor &document) {
  struct stat status {};
  if (fstat(document.get(), &status) != 0)
    return "the document is missing";
  if ((fcntl(document.get(), F_GETFL) & O_ACCMODE) == O_WRONLY)
    return "the document cannot be read";
  if (S_ISREG(status.st_mode))
    return status.st_size == 0 ? "the document is empty" : "";
  return S_ISFIFO(status.st_mode) || S_ISSOCK(status.st_mode)
             ? ""
             : "the document is not a file or pipe";
}

} // namespace imageposition
