#include "Phrases.hpp"

#include "Strings.hpp"

namespace imageposition::messages {

std::string withoutStop(std::string reason) {
  for (;;) {
    const std::size_t size = reason.size();
    for (const std::string_view ending : {".", " ", "。"})
      if (endsWith(reason, ending))
        reason.resize(reason.size() - ending.size());
    if (reason.size() == size)
      return reason;
  }
}
std::string because(const std::string &reason) {
  const std::string clause = withoutStop(reason);
  return clause.empty() ? clause : text(" ({1})").with(clause);
}
std::string summaryLine(const std::string &title, const std::string &value) {
  return text("{1}: {2}").with(title, value);
}
std::string valueAdjusted(const std::string &name, const std::string &given,
                          const std::string &made) {
  return text("The panel changed {1} from \"{2}\" to \"{3}\".").with(name, given, made);
}
const Text kCancelled = text("Cancelled. Nothing was printed.");
const char *const kProgram = "print-dialog: ";
std::string inWords(const std::vector<std::string> &parts) {
  if (parts.size() < 2)
    return inOrder(parts);
  return text("{1} and {2}").with(inOrder({parts.begin(), parts.end() - 1}), parts.back());
}
std::string inOrder(const std::string &first, const std::string &second) {
  return text("{1}, {2}").with(first, second);
}

std::string inOrder(const std::vector<std::string> &parts) {
  if (parts.size() < 2)
    return parts.empty() ? "" : parts.front();
  // Joining halves avoids quadratic copying.
  const auto middle = parts.begin() + static_cast<std::ptrdiff_t>(parts.size() / 2);
  return inOrder(inOrder({parts.begin(), middle}), inOrder({middle, parts.end()}));
}
std::string named(const std::string &name, const std::string &value) {
  return text("{1}: {2}").with(name, value);
}
std::string sentences(const std::vector<std::string> &parts) {
  std::string whole;
  for (const std::string &part : parts) {
    if (whole.empty())
      whole = part;
    else if (!part.empty()) // Translators: two sentences after each other
      whole = text("{1} {2}").with(whole, part);
  }
  return whole;
}
std::string decimalNumber(const std::string &whole, const std::string &tenths) {
  // Translators: a number, such as 2.5, with the sign that separates its tenths.
  return text("{1}.{2}").with(whole, tenths);
}
std::string asLabel(const std::string &title) { return text("{1}:").with(title); }

} // namespace imageposition::messages
