#include "host/PasswordQuestion.hpp"

#include <utility>

namespace imageposition {

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
                                  credentials_.has_value()};
    credentials_ = callback_ ? callback_(request) : std::nullopt;
  }
  connection_ = connection;
  if (!credentials_)
    return nullptr;
  cupsSetUser(credentials_->user.c_str()); // libcups sends this name with the password
  return credentials_->password.c_str();
}

} // namespace imageposition
