/// The message that the window shows.
#ifndef IMAGEPOSITION_GUI_WINDOW_SHOWNMESSAGE_HPP
#define IMAGEPOSITION_GUI_WINDOW_SHOWNMESSAGE_HPP

#include <string>

namespace imageposition {

/// A message, which may say where the job's offsets come from.
class ShownMessage {
public:
  /// `origin`: the sentence that says where the job's offsets come from; may be empty.
  void set(const std::string &text, const std::string &origin);

  const std::string &text() const noexcept { return text_; }
  /// The sentence that says where the offsets come from, if the message has it; otherwise empty.
  const std::string &origin() const noexcept { return origin_; }
  /// What is before that sentence; everything if there is none.
  std::string textBeforeOrigin() const;

private:
  std::string text_;
  std::string origin_;
};

} // namespace imageposition

#endif
