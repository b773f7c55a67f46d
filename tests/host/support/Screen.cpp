#include "Screen.hpp"

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <sstream>

namespace imageposition::test {

namespace {

Control readControl(const std::string &line) {
  Control control;
  std::istringstream words(line);
  words >> control.kind >> control.x >> control.y >> control.width >> control.height >>
      control.isEnabled >> control.isOn;
  words.get(); // the tab
  std::getline(words, control.text);
  return control;
}

} // namespace

Screen Screen::read(const std::string &file) {
  Screen screen;
  std::ifstream lines(file, std::ios::binary);
  std::string line;
  if (!std::getline(lines, line))
    return screen;
  std::istringstream words(line);
  std::string mode;
  int width, height;
  words >> mode >> screen.x >> screen.y >> width >> height;
  words.get(); // the tab
  std::getline(words, screen.keyWindow);
  screen.isTracking = mode == "NSEventTrackingRunLoopMode";
  while (std::getline(lines, line))
    screen.controls.push_back(readControl(line));
  return screen;
}

const Control *Screen::find(const std::string &kind, const std::string &text) const {
  for (const Control &control : controls)
    if (control.kind == kind && control.text == text)
      return &control;
  return nullptr;
}

const Control *Screen::beside(const std::string &label, const std::string &kind) const {
  const Control *const title = find("label", label);
  const Control *nearest = nullptr;
  for (const Control &control : controls)
    if (title != nullptr && control.kind == kind && control.x >= title->x + title->width &&
        std::abs(control.middleY() - title->middleY()) < title->height &&
        (nearest == nullptr || control.x < nearest->x))
      nearest = &control;
  return nearest;
}

bool Screen::isListOpen() const {
  return std::any_of(controls.begin(), controls.end(),
                     [](const Control &control) { return control.kind == "item"; });
}

bool Screen::says(const std::string &text) const {
  for (const Control &control : controls)
    if (control.kind == "label" && control.text.find(text) != std::string::npos)
      return true;
  return false;
}

} // namespace imageposition::test
