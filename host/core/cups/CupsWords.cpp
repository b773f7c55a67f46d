#include "CupsWords.hpp"

#include "BackgroundCall.hpp"
#include "CupsConnection.hpp"
#include "CupsHandles.hpp"
#include "PasswordQuestion.hpp"

#include <algorithm>
#include <iterator>
#include <system_error>
#include <utility>

namespace imageposition {

namespace {

using Clock = std::chrono::steady_clock;

/// What libcups needs to translate a term.
struct Queue {
  http_t *http;
  cups_dest_t *destination;
  cups_dinfo_t *info;
};

/// libcups returns the term if it has no translation.
std::string unlessSame(const char *word, const std::string &term) {
  return word != nullptr && word != term ? word : "";
}

std::string wordFor(const Queue &queue, Term term) {
  const auto &[http, destination, info] = queue;
  if (term.size) {
    const char *const word = cupsLocalizeDestMedia(http, destination, info, 0, &*term.size);
    return word != nullptr ? word : "";
  }
  // libcups's catalogue has its own messages as well as IPP names.
  const std::string &name = term.message.empty() ? term.attribute : term.message;
  if (name.empty())
    return {};
  if (term.value.empty())
    return unlessSame(cupsLocalizeDestOption(http, destination, info, name.c_str()), name);
  return unlessSame(
      cupsLocalizeDestValue(http, destination, info, name.c_str(), term.value.c_str()), term.value);
}

std::vector<std::string> ask(const std::string &queue, const std::vector<Term> &terms,
                             std::chrono::milliseconds timeout) {
  const Clock::time_point deadline = Clock::now() + timeout;
  const PasswordQuestion noPassword;
  const auto connection = CupsConnection::open(timeout, [=] { return Clock::now() < deadline; });
  if (!connection)
    return {};
  http_t *const http = connection->http();
  const CupsDestination destination(cupsGetNamedDest(http, queue.c_str(), nullptr));
  if (!destination)
    return {};
  const CupsDestinationInfo info(cupsCopyDestInfo(http, destination.get()));
  if (!info)
    return {};
  std::vector<std::string> words;
  std::transform(terms.begin(), terms.end(), std::back_inserter(words), [&](const Term &term) {
    return wordFor({http, destination.get(), info.get()}, term);
  });
  return words;
}

} // namespace

std::vector<std::string> wordsOfCups(const std::string &queue, const std::vector<Term> &terms,
                                     std::chrono::milliseconds timeout) {
  std::vector<std::string> words;
  try {
    // libcups may fetch a printer's translations over another connection, without our timeout.
    BackgroundCall<std::vector<std::string>> call([=] { return ask(queue, terms, timeout); },
                                                  timeout);
    if (call.waitFor(timeout))
      words = call.take();
  } catch (const std::system_error &) { // too many processes
  }
  words.resize(terms.size());
  return words;
}

} // namespace imageposition
