/// CUPS's translations of printer options.
#ifndef IMAGEPOSITION_CORE_CUPS_CUPSWORDS_HPP
#define IMAGEPOSITION_CORE_CUPS_CUPSWORDS_HPP

#include <cups/cups.h>

#include <chrono>
#include <optional>
#include <string>
#include <vector>

namespace imageposition {

/// A term that CUPS may translate: a paper size, a message of CUPS, an IPP attribute, or one of its
/// values. Of `size`, `message` and `attribute`, only the first that is set is used.
struct Term {
  std::optional<cups_size_t> size;
  std::string message;   ///< In English, as in CUPS's catalogue: "Print Quality".
  std::string attribute; ///< "output-bin".
  std::string value;     ///< Of that attribute, "face-up"; empty for the attribute itself.
};

/// Returns one translation for each term, which is empty if CUPS has none. A size without a name is
/// described by its dimensions.
///
/// Asks CUPS about the queue, because a printer can provide translations. Waits for at most
/// `timeout`, then returns empty strings. Never throws. Can be called on any thread.
std::vector<std::string> wordsOfCups(const std::string &queue, const std::vector<Term> &terms,
                                     std::chrono::milliseconds timeout = std::chrono::seconds(2));

} // namespace imageposition

#endif
