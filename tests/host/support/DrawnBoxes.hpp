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

/// The boxes around what is drawn on the pages of a PostScript or PDF file: left, bottom, right and
/// top in points, upwards.
inline std::vector<std::array<double, 4>> boxesInPostScript(const std::string &content) {
  const TemporaryFolder folder;
  const auto result = runProcess({"gs", "-q", "-dBATCH", "-dNOPAUSE", "-dSAFER", "-sDEVICE=bbox",
                                  folder.write("job.ps", content)});
  std::vector<std::array<double, 4>> boxes;
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
