/// CUPS's words for what printers offer, in the user's language.
#ifndef IMAGEPOSITION_HOST_CUPSWORDS_HPP
#define IMAGEPOSITION_HOST_CUPSWORDS_HPP

#include <cups/cups.h>

#include <chrono>
#include <optional>
#include <string>
#include <vector>

namespace imageposition {

/// What CUPS may have a word for: a message of its own, an attribute of IPP, a value of one, or a
/// paper size. The first of these that is given counts; nothing has a word where none is.
struct Term {
  std::optional<cups_size_t> size;
  std::string message;   ///< In CUPS's English: "Print Quality".
  std::string attribute; ///< "output-bin".
  std::string value;     ///< Of that attribute, "face-up"; empty for the attribute itself.
};

/// One word for each term; empty where CUPS has none. A size that has no name is given by its
/// measures.
///
/// CUPS is asked about the queue, since a printer can bring words of its own. Waits for at most
/// `patience`, and has no words then. Never throws. On any thread.
std::vector<std::string> wordsOfCups(const std::string &queue, const std::vector<Term> &terms,
                                     std::chrono::milliseconds patience = std::chrono::seconds(2));

} // namespace imageposition

#endif
