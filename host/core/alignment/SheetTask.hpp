/// What the program that draws alignment sheets is told.
#ifndef IMAGEPOSITION_CORE_ALIGNMENT_SHEETTASK_HPP
#define IMAGEPOSITION_CORE_ALIGNMENT_SHEETTASK_HPP

#include "SheetLayout.hpp"

#include <optional>
#include <string>
#include <vector>

namespace imageposition {

/// The words of one side, translated.
struct SideWords {
  std::string name;                ///< "Front, this edge up", in large type.
  std::string sheet;               ///< "Sheet 1 of 3".
  std::vector<std::string> facts;  ///< One line each.
  std::vector<std::string> advice; ///< One paragraph each.
};

struct SheetWords {
  SideWords front;
  SideWords back;
};

struct SheetTask {
  PageShape page;
  Turning turning = Turning::LongEdge;
  std::vector<SheetWords> sheets; ///< Two pages each.
  std::string title;              ///< Of the document.
  std::string example;            ///< Below the example on the back.
};

/// JSON. `readSheetTask` returns none for anything else.
std::string textOf(const SheetTask &task);
std::optional<SheetTask> readSheetTask(const std::string &text);

} // namespace imageposition

#endif
