// Command lines: any number of words of any bytes gives a request, output or an error message.
#include "CommandLine.hpp"

#include "Check.hpp"
#include "ExitCode.hpp"

#include <algorithm>

using imageposition::Arguments;
using imageposition::fuzz::check;
using imageposition::fuzz::checkSame;

namespace {

std::vector<std::string> wordsIn(const std::string &text) {
  std::vector<std::string> words(1);
  for (const char c : text) {
    if (c == '\n')
      words.emplace_back();
    else if (c != '\0') // which would end the argument
      words.back() += c;
  }
  return words;
}

void checkArguments(const Arguments &arguments) {
  check(arguments.ppd.empty() || arguments.queue.empty(), "at most one printer is named");
  check(std::count(arguments.documents.begin(), arguments.documents.end(), "-") <= 1,
        "standard input is printed at most once");
  check(arguments.appearance.empty() || arguments.appearance == "light" ||
            arguments.appearance == "dark",
        "the window is light or dark");
  check(arguments.isBatch || arguments.batch.entries.empty(), "only batch mode takes entry values");
  for (const imageposition::Entry &entry : arguments.batch.entries)
    check(!entry.name.empty(), "an entry has a name");
}

void checkEntry(const std::string &word) {
  const auto entry = imageposition::readEntry(word);
  const std::size_t equals = word.find('=');
  check(entry.has_value() == (equals != std::string::npos && equals > 0), "NAME=TEXT is an entry");
  if (entry)
    checkSame(entry->name + "=" + entry->text, word, "an entry keeps every character");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size) {
  const auto words = wordsIn(std::string(reinterpret_cast<const char *>(data), size));
  checkEntry(words.front());
  try {
    const auto result = imageposition::readCommandLine(words);
    if (const auto *arguments = std::get_if<Arguments>(&result))
      checkArguments(*arguments);
    else
      check(!std::get<imageposition::Answer>(result).text.empty(), "the output is not empty");
  } catch (const imageposition::Failure &failure) {
    check(failure.code() == imageposition::ExitCode::Usage && *failure.what() != '\0',
          "a bad command line gets an error message");
  }
  return 0;
}
