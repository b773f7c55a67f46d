/// Who answers when CUPS wants a password.
#ifndef IMAGEPOSITION_HOST_PASSWORDQUESTION_HPP
#define IMAGEPOSITION_HOST_PASSWORDQUESTION_HPP

#include <cups/cups.h>

#include <functional>
#include <optional>
#include <ostream>
#include <string>

namespace imageposition {

struct PasswordRequest {
  std::string user;     ///< Whom CUPS knows the person as.
  bool isAgain = false; ///< The last answer was wrong.
  /// The server, where others could read the password on its way there; else empty.
  std::string exposedTo = {};
};

struct Credentials {
  std::string user;
  std::string password;
};

/// Asked when CUPS wants a password. None gives up.
using PasswordCallback = std::function<std::optional<Credentials>(const PasswordRequest &)>;

/// Has the callback answer for this thread while the object lives, or nobody without one: left to
/// itself libcups asks on the terminal, which a window's process may not have. Another connection
/// of the same work gets the last answer before the callback is asked again.
class PasswordQuestion {
public:
  explicit PasswordQuestion(PasswordCallback callback = {});
  ~PasswordQuestion();
  PasswordQuestion(const PasswordQuestion &) = delete;
  PasswordQuestion &operator=(const PasswordQuestion &) = delete;

private:
  static const char *answer(const char *prompt, http_t *, const char *, const char *, void *self);
  const char *answer(http_t *connection);

  PasswordCallback callback_;
  std::optional<Credentials> credentials_; ///< Of the last answer.
  http_t *connection_ = nullptr;           ///< Which had it.
};

/// While it lives, warns on `errors` before libcups asks on the terminal for a password that others
/// could read on its way. For this thread, where no `PasswordQuestion` lives.
class TerminalWarning {
public:
  explicit TerminalWarning(std::ostream &errors);
  ~TerminalWarning();
  TerminalWarning(const TerminalWarning &) = delete;
  TerminalWarning &operator=(const TerminalWarning &) = delete;

private:
  static const char *ask(const char *prompt, http_t *, const char *, const char *, void *self);

  std::ostream &errors_;
  bool isSaid_ = false;
};

} // namespace imageposition

#endif
