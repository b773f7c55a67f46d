// PPDs: everything that the dialog does with one, for a job that is given in its comments:
//
//   *%job Duplex=DuplexTumble LeftRightMargin=-12
//   *%locked MediaType=Plain
#include "PpdChecks.hpp"

#include "CheckText.hpp"
#include "ExitCode.hpp"
#include "MemoryFile.hpp"
#include "OptionText.hpp"

#include <cstdlib>
#include <optional>
#include <sstream>

using imageposition::Failure;
using imageposition::PrinterDescription;
using imageposition::PrintSettingsStore;
using namespace imageposition::fuzz;

namespace {

void addSettings(const std::string &text, bool locked, PrintSettingsStore &job) {
  PrintSettingsStore settings;
  try {
    imageposition::readOptionArgument(text, settings);
  } catch (const Failure &) {
    return; // the fuzzer `options` tests these
  }
  for (int i = 0; i < settings.optionCount(); ++i)
    job.set(settings.options()[i].name, settings.options()[i].value, locked);
}

PrintSettingsStore jobIn(const std::string &ppd) {
  PrintSettingsStore job;
  std::istringstream lines(ppd);
  for (std::string line; std::getline(lines, line);)
    for (const std::string start : {"*%job ", "*%locked "})
      if (line.compare(0, start.size(), start) == 0)
        addSettings(line.substr(start.size()), start == "*%locked ", job);
  return job;
}

std::optional<PrinterDescription> read(const std::string &ppd) {
  try {
    const MemoryFile file(ppd);
    return PrinterDescription::fromFile(file.path());
  } catch (const Failure &failure) {
    check(failure.code() == imageposition::ExitCode::Printer, "the error code blames the printer");
    checkWords(failure.what(), "the error message");
    return std::nullopt;
  }
}

} // namespace

// libcups leaks a string that a PPD has twice, such as "JCLBegin".
extern "C" const char *__lsan_default_suppressions() { return "leak:_ppdOpen\n"; }

extern "C" int LLVMFuzzerInitialize(int *, char ***) {
  setenv("LANG", "de_DE.UTF-8", 1); // for PPDs with translations
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size) {
  const std::string ppd(reinterpret_cast<const char *>(data), size);
  auto printer = read(ppd);
  if (!printer)
    return 0;
  checkWords(printer->name(), "a printer's name");
  const PrintSettingsStore job = jobIn(ppd);
  checkOptions(*printer, job);
  checkConflicts(*printer, job);
  checkEntries(*printer, job);
  checkPicture(*printer, job);
  checkRequest(*printer, job);
  return 0;
}
