#include "UsualTexts.hpp"

#include "Text.hpp"
#include "Utf.hpp"

#include <cstddef>
#include <string_view>

namespace imageposition {

namespace {

/// Each with the context "printer option", because a word such as "None" has several translations.
const Text kUsualTexts[] = {
    // Translators: names of options of printers, and of their choices, as in other print dialogs.
    textIn("printer option", "Off"),
    textIn("printer option", "On"),
    textIn("printer option", "None"),
    textIn("printer option", "Yes"),
    textIn("printer option", "No"),
    textIn("printer option", "Two-Sided"),
    textIn("printer option", "2-Sided Printing"),
    textIn("printer option", "Off (1-Sided)"),
    textIn("printer option", "Long Edge"),
    textIn("printer option", "Short Edge"),
    textIn("printer option", "Long-Edge (Portrait)"),
    textIn("printer option", "Short-Edge (Landscape)"),
    textIn("printer option", "Media Size"),
    textIn("printer option", "Page Size"),
    textIn("printer option", "Media Type"),
    textIn("printer option", "Media Source"),
    textIn("printer option", "Plain Paper"),
    textIn("printer option", "Automatic"),
};

template <std::size_t kSize> void translate(char (&place)[kSize]) {
  for (const Text &usual : kUsualTexts) {
    if (usual.english() != std::string_view(place))
      continue;
    const std::string translation = usual;
    const std::string_view part = utf8Prefix(translation, kSize - 1);
    part.copy(place, part.size());
    place[part.size()] = '\0';
    return;
  }
}

void translate(ppd_group_t &group) {
  for (int i = 0; i < group.num_options; i++) {
    ppd_option_t &option = group.options[i];
    translate(option.text);
    for (int k = 0; k < option.num_choices; k++)
      translate(option.choices[k].text);
  }
  for (int i = 0; i < group.num_subgroups; i++)
    translate(group.subgroups[i]);
}

} // namespace

void translateUsualTexts(ppd_file_t &ppd) {
  for (int i = 0; i < ppd.num_groups; i++)
    translate(ppd.groups[i]);
}

} // namespace imageposition
