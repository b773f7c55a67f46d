#include "NumberNotes.hpp"

#include "WindowTexts.hpp"

#include <utility>

namespace imageposition {

std::optional<std::string> NumberNotes::edited(const std::string &typed, const std::string &shown,
                                               bool isEnd, bool isOffset,
                                               const std::string &message) {
  const std::string note = messages::numberChange(typed, shown, isEnd, isOffset);
  const std::string last = std::exchange(last_, note);
  isChanged_ = isEnd && !note.empty();
  if (!note.empty() || (!last.empty() && message == last))
    return note;
  return std::nullopt;
}

} // namespace imageposition
