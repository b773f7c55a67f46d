/// Phrases that several rooms build their sentences from.
#ifndef IMAGEPOSITION_HOST_PHRASES_HPP
#define IMAGEPOSITION_HOST_PHRASES_HPP

#include "Text.hpp"

#include <string>
#include <vector>

namespace imageposition::messages {

/// A library's reason, to follow a clause in parentheses: with the space before them, and without
/// its own full stop. Nothing for nothing.
std::string because(std::string reason);

// The window.
std::string summaryLine(const std::string &title, const std::string &value);

/// Of a value that a panel does not take as it is.
std::string valueAdjusted(const std::string &name, const std::string &given,
                          const std::string &made);

// Before a message that ends the program.
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

/// Sentences after each other, without the empty ones.
std::string sentences(const std::vector<std::string> &parts);
/// "2.5" of "2" and "5".
std::string decimalNumber(const std::string &whole, const std::string &tenths);

// The same in the summary.
/// A title with what it has before a control or a value: "Paper:".
std::string asLabel(const std::string &title);

} // namespace imageposition::messages

#endif
