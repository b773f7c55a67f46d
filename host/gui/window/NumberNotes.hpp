/// Messages about the numbers that the user enters in the panels.
#ifndef IMAGEPOSITION_GUI_WINDOW_NUMBERNOTES_HPP
#define IMAGEPOSITION_GUI_WINDOW_NUMBERNOTES_HPP

#include <optional>
#include <string>

namespace imageposition {

/// Says what a field made of a number. The message disappears with the next edit, unless another
/// has replaced it.
class NumberNotes {
public:
  /// Returns what the window shows after an edit, or its end; none if `message`, which it shows
  /// now, stays. `typed` is what the user entered, `shown` what the field made of it. `isOffset` if
  /// it is in tenths of a millimetre.
  std::optional<std::string> edited(const std::string &typed, const std::string &shown, bool isEnd,
                                    bool isOffset, const std::string &message);

  /// Whether an edit has ended since `forgetChange` and the last one to end changed its number.
  bool isChanged() const noexcept { return isChanged_; }
  void forgetChange() noexcept { isChanged_ = false; }

private:
  std::string last_; // may be empty
  bool isChanged_ = false;
};

} // namespace imageposition

#endif
