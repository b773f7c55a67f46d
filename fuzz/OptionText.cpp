// Option strings: parsed as CUPS parses them, written so that CUPS reads them back.
#include "OptionText.hpp"

#include "Check.hpp"
#include "ExitCode.hpp"

#include <vector>

using imageposition::PrintSettingsStore;
using imageposition::fuzz::check;
using imageposition::fuzz::checkSame;

namespace {

/// The options that CUPS parses from a string.
class CupsOptions {
public:
  explicit CupsOptions(const std::string &text)
      : count_(cupsParseOptions(text.c_str(), 0, &options_)) {}
  ~CupsOptions() { cupsFreeOptions(count_, options_); }
  CupsOptions(const CupsOptions &) = delete;
  CupsOptions &operator=(const CupsOptions &) = delete;

  int count() const { return count_; }
  const cups_option_t &operator[](int i) const { return options_[i]; }

private:
  cups_option_t *options_ = nullptr;
  int count_;
};

bool isUsable(const CupsOptions &options) {
  for (int i = 0; i < options.count(); ++i)
    if (!PrintSettingsStore::isUsableName(options[i].name) ||
        !PrintSettingsStore::isUsableValue(options[i].value))
      return false;
  return options.count() > 0;
}

void checkSameOptions(const PrintSettingsStore &store, const CupsOptions &options) {
  check(store.optionCount() == options.count(), "the number of options that CUPS reads");
  for (int i = 0; i < options.count(); ++i) {
    checkSame(store.options()[i].name, options[i].name, "the name that CUPS reads");
    checkSame(store.options()[i].value, options[i].value, "the value that CUPS reads");
  }
}

// A name and a value of any bytes, stored directly without parsing.
void checkAnyEntry(const std::string &text) {
  const std::size_t equals = text.find('=');
  if (equals == std::string::npos)
    return;
  PrintSettingsStore store;
  const std::string name = text.substr(0, equals);
  const std::string value = text.substr(equals + 1);
  const auto outcome = store.set(name, value);
  check((outcome == PrintSettingsStore::Outcome::Stored) ==
            (PrintSettingsStore::isUsableName(name) && PrintSettingsStore::isUsableValue(value)),
        "exactly the usable entries are stored");
  if (outcome != PrintSettingsStore::Outcome::Stored)
    return check(store.optionCount() == 0, "a rejected entry stores nothing");
  checkSame(store.get(name), value, "a stored entry is found");
  checkSameOptions(store, CupsOptions(imageposition::writeOptionText(store)));
  check(imageposition::isOptionText(imageposition::writeOptionText(store)), "known again");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size) {
  const std::string text(reinterpret_cast<const char *>(data), size);
  checkAnyEntry(text);
  const CupsOptions options(text);
  PrintSettingsStore store;
  try {
    imageposition::readOptionArgument(text, store);
    check(isUsable(options), "options that CUPS cannot send are rejected");
    checkSameOptions(store, options);
    checkSameOptions(store, CupsOptions(imageposition::writeOptionText(store)));
  } catch (const imageposition::Failure &failure) {
    check(!isUsable(options), "options that CUPS can send are accepted");
    check(*failure.what() != '\0', "a bad option gets an error message");
  }
  return 0;
}
