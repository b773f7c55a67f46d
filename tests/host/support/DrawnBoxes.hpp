/// Measures what a printer gets.
#ifndef IMAGEPOSITION_TESTS_HOST_SUPPORT_DRAWNBOXES_HPP
#define IMAGEPOSITION_TESTS_HOST_SUPPORT_DRAWNBOXES_HPP

#include "ProcessRun.hpp"
#include "TemporaryFolder.hpp"

#include <array>
#include <sstream>
#include <string>
#include <vector>

namespace imageposition::test {

/// Boxes around what is drawn on pages: left, bottom, right and top in points, upwards.
using Boxes = std::vector<std::array<double, 4>>;

/// Those of a PostScript or PDF file.
inline Boxes boxesInPostScript(const std::string &content) {
  const TemporaryFolder folder;
  const auto result = runProcess({"gs", "-q", "-dBATCH", "-dNOPAUSE", "-dSAFER", "-sDEVICE=bbox",
                                  folder.write("job.ps", content)});
  Boxes boxes;
  std::istringstream lines(result.errors);
  for (std::string line; std::getline(lines, line);) {
    std::istringstream words(line);
    std::string keyword;
    std::array<double, 4> box{};
    if (words >> keyword >> box[0] >> box[1] >> box[2] >> box[3] &&
        keyword == "%%HiResBoundingBox:")
      boxes.push_back(box);
  }
  return boxes;
}

} // namespace imageposition::test

#endif
