#include "Tokens.hpp"

#include <random>
#include <unistd.h>
#include <utility>

namespace imageposition {

PreparedFile::~PreparedFile() { unlink(path_.c_str()); }

std::function<std::uint32_t()> Tokens::defaultRandom() {
  return [] { return static_cast<std::uint32_t>(std::random_device()()); };
}

std::uint32_t Tokens::add(const std::string &application, std::unique_ptr<PreparedFile> job) {
  std::uint32_t token = 0;
  while (token == 0 || jobs_.count(token) != 0)
    token = random_();
  jobs_[token] = {application, now_() + kLifetime, std::move(job)};
  return token;
}

std::unique_ptr<PreparedFile> Tokens::take(const std::string &application, std::uint32_t token) {
  expire();
  const auto found = jobs_.find(token);
  if (found == jobs_.end() || found->second.application != application)
    return nullptr;
  auto file = std::move(found->second.file);
  jobs_.erase(found);
  return file;
}

void Tokens::expire() {
  for (auto it = jobs_.begin(); it != jobs_.end();)
    it = now_() >= it->second.end ? jobs_.erase(it) : std::next(it);
}

} // namespace imageposition
