#include "PaperName.hpp"

#include "DocumentTexts.hpp"
#include "ForeignText.hpp"

#include <cups/pwg.h>

#include <cmath>
#include <cstring>
#include <optional>

namespace imageposition {

namespace {

constexpr double kPwgUnitsPerPoint = 2540.0 / 72.0;

std::optional<PaperSize> sizeOf(const ppd_size_t *size) {
  if (size == nullptr || size->width <= 0 || size->length <= 0)
    return std::nullopt;
  return PaperSize{{size->width}, {size->length}};
}

std::string nameIn(ppd_file_t *ppd, const char *keyword) {
  ppd_option_t *const media = ppdFindOption(ppd, "PageSize");
  const ppd_choice_t *const choice = media != nullptr ? ppdFindChoice(media, keyword) : nullptr;
  return textOrKeyword(choice != nullptr ? choice->text : nullptr, keyword);
}

std::string wholeMillimetres(Point length) {
  return std::to_string(std::lround(length.count * kTenthMillimetresPerPoint / 10));
}

/// Empty if the size has no name that everyone knows.
std::string usualName(const PaperSize &size) {
  const auto units = [](Point length) {
    return static_cast<int>(std::lround(length.count * kPwgUnitsPerPoint));
  };
  for (const auto &[width, length] :
       {std::pair(size.width, size.length), std::pair(size.length, size.width)}) {
    const pwg_media_t *const media = pwgMediaForSize(units(width), units(length));
    if (media != nullptr && media->ppd != nullptr &&
        size.isSame({{media->width / kPwgUnitsPerPoint}, {media->length / kPwgUnitsPerPoint}}))
      return std::strchr(media->ppd, '.') == nullptr ? media->ppd : "";
  }
  return {};
}

} // namespace

std::string paperName(const PaperSize &size, ppd_file_t *ppd) {
  for (int i = 0; i < ppd->num_sizes; i++) {
    const auto other = sizeOf(&ppd->sizes[i]);
    if (other && other->isSame(size))
      return nameIn(ppd, ppd->sizes[i].name);
  }
  const std::string usual = usualName(size);
  return usual.empty()
             ? messages::millimetres(wholeMillimetres(size.width), wholeMillimetres(size.length))
             : usual;
}

std::string paperMismatch(const DocumentFacts &facts, ppd_file_t *ppd) {
  const ppd_size_t *const marked = ppdPageSize(ppd, nullptr);
  const auto media = sizeOf(marked);
  if (!facts.paper || !media || facts.paper->isSame(*media))
    return {};
  const bool isCustom = std::strcmp(marked->name, "Custom") == 0;
  return messages::paperOnMedia(paperName(*facts.paper, ppd),
                                isCustom ? paperName(*media, ppd) : nameIn(ppd, marked->name));
}

} // namespace imageposition
