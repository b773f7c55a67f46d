// preset_writer PRINTER NAME KEYWORD=VALUE: saves a preset as the dialog does, while a test
// disturbs it.
#include "ExitCode.hpp"
#include "OptionText.hpp"
#include "Presets.hpp"

#include <iostream>

int main(int, char **words) {
  const std::string option = words[3];
  const std::size_t equals = option.find('=');
  imageposition::PrintSettingsStore settings;
  settings.set(option.substr(0, equals), option.substr(equals + 1));
  try {
    imageposition::Presets(words[1]).save(words[2], settings);
  } catch (const imageposition::Failure &failure) {
    std::cerr << failure.what() << '\n';
    return static_cast<int>(failure.code());
  }
  return 0;
}
