/// Handles password requests from CUPS.
#ifndef IMAGEPOSITION_CORE_CUPS_PASSWORDQUESTION_HPP
#define IMAGEPOSITION_CORE_CUPS_PASSWORDQUESTION_HPP

#include <cups/cups.h>

#include <functional>
#include <optional>
#include <ostream>
#include <string>

namespace imageposition {

struct PasswordRequest {
  std::string user;     ///< The name under which CUPS knows the user.
  bool isAgain = false; ///< The last password was wrong.
  /// The server, if others could read the password in transit; otherwise empty.
  std::string exposedTo = {};
};

struct Credentials {
  std::string user;
  std::string password;
};

/// Called when CUPS requires a password. Returns nullopt to give up.
using PasswordCallback = std::function<std::optional<Credentials>(const PasswordRequest &)>;

/// Handles password requests on this thread during its lifetime: calls the callback, or gives up
/// without one. By default libcups asks on the terminal, which a graphical program may not have. A
/// new connection tries the last credentials before the callback is called again.
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
  std::optional<Credentials> credentials_; ///< The last ones that the callback returned.
  http_t *connection_ = nullptr;           ///< Where they were last used.
};

/// During its lifetime, warns on `errors` before libcups asks on the terminal for a password that
/// others could read in transit. Applies to this thread. Not to be combined with
/// `PasswordQuestion`.
class TerminalWarning {
public:
  explicit TerminalWarning(std::ostream &errors);
  ~TerminalWarning();
  TerminalWarning(const TerminalWarning &) = delete;
  TerminalWarning &operator=(const TerminalWarning &) = delete;

private:
  static const char *ask(const char *prompt, http_t *, const char *, const char *, void *self);

  std::ostream &errors_;
  bool hasWarned_ = false;
};

} // namespace imageposition

#endif
