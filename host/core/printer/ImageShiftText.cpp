#include "ImageShiftText.hpp"

#include "SharedKeys.h"
#include "Strings.hpp"

#include <algorithm>
#include <array>

namespace imageposition {

namespace {

constexpr const char *kMark = "printDialogImageShift";

struct ShiftOption {
  const char *keyword;
  const char *name;
};

constexpr std::array<ShiftOption, 4> kOptions{{
    {IPA_KEY_FRONT_LEFT_RIGHT, "Front Left-Right"},
    {IPA_KEY_FRONT_TOP_BOTTOM, "Front Top-Bottom"},
    {IPA_KEY_BACK_LEFT_RIGHT, "Back Left-Right"},
    {IPA_KEY_BACK_TOP_BOTTOM, "Back Top-Bottom"},
}};

/// The keyword after the asterisk at the start of `text`, which is cut off; empty if there is none.
std::string_view takeKeyword(std::string_view &text) {
  constexpr std::string_view kEnds = " \t:/\r";
  text.remove_prefix(std::min(text.find_first_not_of(" \t"), text.size()));
  if (!startsWith(text, "*"))
    return {};
  const std::size_t end = std::min(text.find_first_of(kEnds), text.size());
  const std::string_view keyword = text.substr(1, end - 1);
  text.remove_prefix(end);
  return keyword;
}

bool isOptionOfShift(std::string_view keyword) {
  return std::any_of(kOptions.begin(), kOptions.end(),
                     [=](const ShiftOption &option) { return isSame(option.keyword, keyword); });
}

enum class Line {
  Other,
  Refusal, ///< Says that the driver does not apply the offsets.
  InTheWay ///< Says that it does, or uses the name of one of the options.
};

Line kindOf(std::string_view line) {
  const std::string_view keyword = takeKeyword(line);
  if (keyword == IPA_ATTRIBUTE_SUPPORT)
    return trimmed(line, ": \t\"") == "true" ? Line::InTheWay : Line::Refusal;
  if (keyword == "OpenUI" || keyword == "JCLOpenUI")
    return isOptionOfShift(takeKeyword(line)) ? Line::InTheWay : Line::Other;
  return keyword == kMark ? Line::InTheWay : Line::Other;
}

/// As a driver that applies the offsets declares them.
std::string declaration(const ShiftOption &option) {
  const std::string key = option.keyword;
  return "*OpenUI *" + key + "/" + option.name + ": PickOne\n*Default" + key + ": 0\n*" + key +
         " 0/None: \"\"\n*CloseUI: *" + key + "\n*Custom" + key + " True: \"pop\"\n*ParamCustom" +
         key + " Offset/Offset (0.1 mm): 1 int -100 100\n";
}

} // namespace

std::optional<std::string> withImageShift(std::string_view ppd) {
  constexpr std::string_view kComment = "*%";
  std::string text;
  for (std::string_view rest = ppd; !rest.empty();) {
    const std::size_t end = std::min(rest.find_first_of("\r\n"), rest.size() - 1) + 1;
    const std::string_view line = rest.substr(0, end);
    const Line kind = kindOf(trimmed(line, "\r\n"));
    if (kind == Line::InTheWay)
      return std::nullopt;
    if (kind == Line::Refusal)
      text += kComment;
    text += line;
    rest.remove_prefix(end);
  }
  text += "\n*" IPA_ATTRIBUTE_SUPPORT ": \"true\"\n*" + std::string(kMark) +
          ": \"true\"\n*OpenGroup: ImagePosition/Image Position\n";
  for (const ShiftOption &option : kOptions)
    text += declaration(option);
  return text + "*CloseGroup: ImagePosition\n";
}

bool isImageShiftAdded(ppd_file_t *ppd) {
  return ppd != nullptr && ppdFindAttr(ppd, kMark, nullptr) != nullptr;
}

} // namespace imageposition
