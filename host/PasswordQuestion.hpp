/// Who answers when CUPS wants a password.
#ifndef IMAGEPOSITION_HOST_PASSWORDQUESTION_HPP
#define IMAGEPOSITION_HOST_PASSWORDQUESTION_HPP

#include <cups/cups.h>

#include <functional>
#include <optional>
#include <string>

namespace imageposition {

/// Asked when CUPS wants one; the argument is CUPS's question. None gives up.
using PasswordCallback = std::function<std::optional<std::string>(const std::string &prompt)>;

/// Has the callback answer for this thread while the object lives, or nobody without one: left to
/// itself libcups asks on the terminal, which a window's process may not have.
class PasswordQuestion {
public:
  explicit PasswordQuestion(PasswordCallback callback = {});
  ~PasswordQuestion();
  PasswordQuestion(const PasswordQuestion &) = delete;
  PasswordQuestion &operator=(const PasswordQuestion &) = delete;

private:
  static const char *answer(const char *prompt, http_t *, const char *, const char *, void *self);

  PasswordCallback callback_;
  std::optional<std::string> password_;
};

} // namespace imageposition

#endif
