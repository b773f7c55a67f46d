/// Printer descriptions that are far larger than real ones.
#ifndef IMAGEPOSITION_TESTS_HOST_SUPPORT_LARGEPPD_HPP
#define IMAGEPOSITION_TESTS_HOST_SUPPORT_LARGEPPD_HPP

#include "PrinterDescription.hpp"
#include "TemporaryFolder.hpp"

#include <string>

namespace imageposition::test {

inline const std::string kPpdBeginning = R"ppd(*PPD-Adobe: "4.3"
*FormatVersion: "4.3"
*FileVersion: "1.0"
*LanguageVersion: English
*LanguageEncoding: ISOLatin1
*PCFileName: "LARGE.PPD"
*Manufacturer: "Sample"
*Product: "(Large)"
*PSVersion: "(3010.000) 0"
*ModelName: "Large"
*ShortNickName: "Large"
*NickName: "Sample Large"
*ColorDevice: True
*DefaultColorSpace: RGB
)ppd";

/// An option with two choices, "Bad", which is the default, and "Good".
inline std::string goodOrBad(int number) {
  const std::string keyword = "O" + std::to_string(number);
  return "*OpenUI *" + keyword + ": PickOne\n*Default" + keyword + ": Bad\n*" + keyword +
         " Bad: \"\"\n*" + keyword + " Good: \"\"\n*CloseUI: *" + keyword + "\n";
}

/// Options "O0", "O1", ... without constraints.
inline std::string manyOptions(int count) {
  std::string text = kPpdBeginning;
  for (int i = 0; i < count; i++)
    text += goodOrBad(i);
  return text;
}

/// That many constraints, each between two options and violated by the defaults.
inline std::string violatedPairs(int constraints) {
  std::string pairs;
  int options = 1;
  for (int written = 0; written < constraints; options++)
    for (int other = 0; other < options && written < constraints; other++, written++)
      pairs += "*UIConstraints: *O" + std::to_string(options) + " Bad *O" + std::to_string(other) +
               " Bad\n";
  return manyOptions(options) + pairs;
}

/// One option, "Several", that accepts any of its choices "C0", "C1", ...
inline std::string manyChoices(int count) {
  std::string text = kPpdBeginning + "*OpenUI *Several: PickMany\n*DefaultSeveral: C0\n";
  for (int i = 0; i < count; i++)
    text += "*Several C" + std::to_string(i) + ": \"\"\n";
  return text + "*CloseUI: *Several\n";
}

inline std::string allChoices(int count) {
  std::string list;
  for (int i = 0; i < count; i++)
    list += (i == 0 ? "C" : ",C") + std::to_string(i);
  return list;
}

/// The printer with such a description. Deletes the file after reading it.
inline PrinterDescription largePrinter(const std::string &text) {
  const TemporaryFolder folder;
  return PrinterDescription::fromFile(folder.write("large.ppd", text));
}

} // namespace imageposition::test

#endif
