#include "PasswordQuestion.hpp"

#include "CupsConnection.hpp"
#include "CupsTexts.hpp"
#include "Phrases.hpp"

#include <strings.h>
#include <utility>

namespace imageposition {

namespace {

/// The server, if the password would reach another machine as plain text; otherwise empty. With
/// digest authentication only a hash is sent.
std::string serverThatExposes(http_t *connection) {
  const bool isDigest =
      strncasecmp(httpGetField(connection, HTTP_FIELD_WWW_AUTHENTICATE), "Digest", 6) == 0;
  const bool isSafe = isDigest || httpIsEncrypted(connection) != 0 ||
                      httpAddrLocalhost(httpGetAddress(connection)) != 0; // includes local sockets
  return isSafe ? "" : cupsServerName();
}

} // namespace

PasswordQuestion::PasswordQuestion(PasswordCallback callback) : callback_(std::move(callback)) {
  cupsSetPasswordCB2(answer, this);
}

PasswordQuestion::~PasswordQuestion() { cupsSetPasswordCB2(nullptr, nullptr); }

const char *PasswordQuestion::answer(const char *, http_t *connection, const char *, const char *,
                                     void *self) {
  return static_cast<PasswordQuestion *>(self)->answer(connection);
}

const char *PasswordQuestion::answer(http_t *connection) {
  const bool isKnown = credentials_ && connection != connection_;
  if (!isKnown) {
    const PasswordRequest request{credentials_ ? credentials_->user : cupsUser(),
                                  credentials_.has_value(), serverThatExposes(connection)};
    credentials_ = callback_ ? callback_(request) : std::nullopt;
  }
  connection_ = connection;
  if (!credentials_)
    return nullptr;
  cupsSetUser(credentials_->user.c_str()); // libcups sends this name with the password
  return credentials_->password.c_str();
}

TerminalWarning::TerminalWarning(std::ostream &errors) : errors_(errors) {
  cupsSetPasswordCB2(ask, this);
}

TerminalWarning::~TerminalWarning() { cupsSetPasswordCB2(nullptr, nullptr); }

const char *TerminalWarning::ask(const char *prompt, http_t *connection, const char *method,
                                 const char *resource, void *self) {
  auto &warning = *static_cast<TerminalWarning *>(self);
  const std::string server = serverThatExposes(connection);
  if (!server.empty() && !std::exchange(warning.hasWarned_, true))
    warning.errors_ << messages::kProgram << messages::passwordExposed(server) << std::endl;
  cupsSetPasswordCB2(nullptr, nullptr); // restores libcups's default prompt
  const char *const password = cupsGetPassword2(prompt, connection, method, resource);
  cupsSetPasswordCB2(ask, self);
  return password;
}

} // namespace imageposition
