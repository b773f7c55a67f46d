// Custom values of options: CUPS reads accepted values the same way.
#include "CustomValue.hpp"

#include "Check.hpp"
#include "MemoryFile.hpp"
#include "PrinterDescription.hpp"
#include "ValueCheck.hpp"

#include <cmath>

using imageposition::CustomEntries;
using imageposition::CustomOption;
using imageposition::CustomParameter;
using imageposition::PrinterDescription;
using imageposition::fuzz::check;
using imageposition::fuzz::checkSame;

namespace {

using Kind = CustomParameter::Kind;

/// An option for each kind of custom value.
constexpr const char kPpd[] = R"ppd(*PPD-Adobe: "4.3"
*FormatVersion: "4.3"
*FileVersion: "1.0"
*LanguageVersion: English
*LanguageEncoding: ISOLatin1
*PCFileName: "VALUES.PPD"
*Manufacturer: "Sample"
*Product: "(Values)"
*PSVersion: "(3010.000) 0"
*ModelName: "Values"
*ShortNickName: "Values"
*NickName: "Values"
*VariablePaperSize: True
*MaxMediaWidth: "700"
*MaxMediaHeight: "1200"
*HWMargins: 0 0 0 0
*CustomPageSize True: "pop"
*ParamCustomPageSize Width: 1 points 200 700
*ParamCustomPageSize Height: 2 points 300 1200
*ParamCustomPageSize WidthOffset: 3 points 0 0
*ParamCustomPageSize HeightOffset: 4 points 0 0
*ParamCustomPageSize Orientation: 5 int 0 3
*OpenUI *PageSize: PickOne
*DefaultPageSize: A4
*PageSize A4: ""
*CloseUI: *PageSize
*PaperDimension A4: "595 842"
*OpenUI *Holes: PickOne
*DefaultHoles: 2
*Holes 2: ""
*CloseUI: *Holes
*CustomHoles True: "pop"
*ParamCustomHoles Number: 1 int -99 12000
*OpenUI *Gloss: PickOne
*DefaultGloss: 2
*Gloss 2: ""
*CloseUI: *Gloss
*CustomGloss True: "pop"
*ParamCustomGloss Amount: 1 real -1 250.5
*OpenUI *Trim: PickOne
*DefaultTrim: 2
*Trim 2: ""
*CloseUI: *Trim
*CustomTrim True: "pop"
*ParamCustomTrim Width: 1 points -10 720
*OpenUI *Stamp: PickOne
*DefaultStamp: 2
*Stamp 2: ""
*CloseUI: *Stamp
*CustomStamp True: "pop"
*ParamCustomStamp Words: 1 string 0 20
*OpenUI *Secret: PickOne
*DefaultSecret: 2
*Secret 2: ""
*CloseUI: *Secret
*CustomSecret True: "pop"
*ParamCustomSecret User: 1 string 0 16
*ParamCustomSecret Count: 2 int 0 9
*ParamCustomSecret Width: 3 points 0 99
*ParamCustomSecret Password: 4 password 2 16
)ppd";

constexpr double kTolerance =
    0.04; // in points: half of a thousandth of an inch, and float rounding

double numberOf(const std::string &entry) {
  return imageposition::readNumber(entry).value_or(std::nan(""));
}

double pointsOf(const std::string &entry) {
  return toPoints(imageposition::readLength(entry).value_or(imageposition::Length{std::nan("")}))
      .count;
}

void checkSameToCups(const CustomParameter &parameter, const std::string &entry,
                     const ppd_cparam_t &known) {
  switch (parameter.kind) {
  case Kind::Integer:
    return check(known.current.custom_int == numberOf(entry), "CUPS reads the same integer");
  case Kind::Real:
    return check(std::abs(known.current.custom_real - numberOf(entry)) < kTolerance,
                 "CUPS reads the same number");
  case Kind::Length:
    return check(std::abs(known.current.custom_points - pointsOf(entry)) < kTolerance,
                 "CUPS reads the same length");
  default:
    return checkSame(known.current.custom_string, entry, "CUPS reads the same string");
  }
}

void checkSameToCups(ppd_file_t *ppd, const CustomOption &option, const std::string &value,
                     const CustomEntries &entries) {
  if (option.isPageSize) {
    const ppd_size_t *const size = ppdPageSize(ppd, value.c_str());
    check(size != nullptr && std::abs(size->width - pointsOf(entries[0])) < kTolerance &&
              std::abs(size->length - pointsOf(entries[1])) < kTolerance,
          "CUPS reads the same size");
    return;
  }
  ppdMarkOption(ppd, option.keyword.c_str(), value.c_str());
  ppd_coption_t *const source = ppdFindCustomOption(ppd, option.keyword.c_str());
  for (std::size_t i = 0; i < entries.size(); ++i)
    if (value.front() != '{' || !entries[i].empty()) // omitted parameters keep their values
      checkSameToCups(option.parameters[i], entries[i],
                      *ppdFindCustomParam(source, option.parameters[i].name.c_str()));
}

/// The entries are those of an accepted value.
void checkWritten(const CustomOption &option, const CustomEntries &entries) {
  const std::string written = writeCustomValue(option, entries);
  check(imageposition::isEnteredValue(written), "the written string is a custom value");
  const auto again = readCustomValue(option, written);
  check(again && again->size() == entries.size(), "and can be read back");
  for (std::size_t i = 0; i < entries.size(); ++i)
    if (!option.isPageSize) // writing may convert its sides to a common unit
      checkSame((*again)[i], entries[i], "each entry is unchanged");
  checkSame(writeCustomValue(option, *again), written, "and writes the same string again");
}

void checkHidden(const CustomOption &option, const std::string &value,
                 const CustomEntries &entries) {
  const std::string words = customValueText(option, value);
  for (std::size_t i = 0; i < entries.size(); ++i)
    if (option.parameters[i].isHidden())
      check(words.rfind(imageposition::kHiddenValue) != std::string::npos, "a password is hidden");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size) {
  static const PrinterDescription printer =
      PrinterDescription::fromFile(imageposition::fuzz::MemoryFile(kPpd).path());
  const std::string value(reinterpret_cast<const char *>(data), size);
  for (const char *keyword : {"PageSize", "Holes", "Gloss", "Trim", "Stamp", "Secret"}) {
    const auto option = imageposition::customOption(printer.ppd(), keyword);
    check(option.has_value(), "every option takes custom values");
    const auto entries = readCustomValue(*option, value);
    const bool isAccepted = customValueProblem(*option, value).empty();
    check(entries || !isAccepted, "a value that cannot be read is not accepted");
    if (!isAccepted)
      continue;
    check(entries->size() == option->parameters.size(), "an entry for each parameter");
    if (imageposition::isEnteredValue(value)) // CUPS marks nothing for a bare number
      checkSameToCups(printer.ppd(), *option, value, *entries);
    checkWritten(*option, *entries);
    checkHidden(*option, value, *entries);
  }
  return 0;
}
