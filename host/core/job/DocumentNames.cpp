#include "DocumentNames.hpp"

#include "JobTexts.hpp"
#include "Utf.hpp"
#include "VisibleText.hpp"

namespace imageposition {

std::string documentName(const std::string &path) {
  if (path == "-")
    return "(stdin)";
  return wellFormedUtf8(path.substr(path.rfind('/') + 1)); // npos + 1 is 0
}

std::string documentsInWords(const std::vector<std::string> &paths) {
  if (paths.empty())
    return {};
  const std::string first = paths.front() == "-" ? messages::kStandardInput : paths.front();
  return paths.size() == 1 ? visible(first) : messages::andMore(first, paths.size() - 1);
}

} // namespace imageposition
