/// Phrases and formats that several rooms use.
#ifndef IMAGEPOSITION_CORE_TEXT_PHRASES_HPP
#define IMAGEPOSITION_CORE_TEXT_PHRASES_HPP

#include "Text.hpp"

#include <string>
#include <vector>

namespace imageposition::messages {

/// A library's message as a clause: some end with a full stop, in whatever language.
std::string withoutStop(std::string reason);
/// " (reason)", to follow a clause, without the reason's full stop. Empty for an empty reason.
std::string because(const std::string &reason);

/// A line of the job's summary, "title: value".
std::string summaryLine(const std::string &title, const std::string &value);

/// For a value that a panel changed.
std::string valueAdjusted(const std::string &name, const std::string &given,
                          const std::string &made);

/// Prefix of messages on standard error.
extern const char *const kProgram;
/// The user cancelled, before or while the job was sent.
extern const Text kCancelled;

/// "a", "a and b", "a, b and c".
std::string inWords(const std::vector<std::string> &parts);
/// "a, b".
std::string inOrder(const std::string &first, const std::string &second);
/// "a, b, c"; empty for none.
std::string inOrder(const std::vector<std::string> &parts);
/// "name: value", for one of several values.
std::string named(const std::string &name, const std::string &value);

/// Joins sentences, skipping empty ones.
std::string sentences(const std::vector<std::string> &parts);
/// "2.5" for "2" and "5".
std::string decimalNumber(const std::string &whole, const std::string &tenths);

/// The label of a control or value: "Paper:".
std::string asLabel(const std::string &title);

} // namespace imageposition::messages

#endif
