#include "host/PasswordQuestion.hpp"

#include <utility>

namespace imageposition {

PasswordQuestion::PasswordQuestion(PasswordCallback callback) : callback_(std::move(callback)) {
  cupsSetPasswordCB2(answer, this);
}

PasswordQuestion::~PasswordQuestion() { cupsSetPasswordCB2(nullptr, nullptr); }

const char *PasswordQuestion::answer(const char *prompt, http_t *, const char *, const char *,
                                     void *self) {
  auto &question = *static_cast<PasswordQuestion *>(self);
  question.password_ = question.callback_ ? question.callback_(prompt) : std::nullopt;
  return question.password_ ? question.password_->c_str() : nullptr;
}

} // namespace imageposition
