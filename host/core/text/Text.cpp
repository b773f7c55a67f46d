#include "Text.hpp"

#include "Language.hpp"
#include "VisibleText.hpp"

#include <clocale>
#include <cstring>
#include <libintl.h>

namespace imageposition {

namespace {

/// Enables translation on this thread during its lifetime. gettext does not translate in the "C"
/// locale; "C.UTF-8" is the only other locale that always exists. The rest of the program stays in
/// "C": CUPS then reads its language from the environment, and numbers in files have a decimal
/// point.
class Lookup {
public:
  Lookup() : before_(locale() != nullptr ? uselocale(locale()) : nullptr) {}
  ~Lookup() {
    if (before_ != nullptr)
      uselocale(before_);
  }
  Lookup(const Lookup &) = delete;
  Lookup &operator=(const Lookup &) = delete;

  static locale_t locale() {
    static const locale_t known =
        newlocale(LC_MESSAGES_MASK | LC_CTYPE_MASK, "C.UTF-8", static_cast<locale_t>(nullptr));
    return known;
  }

private:
  locale_t before_;
};

} // namespace

std::string fill(std::string_view pattern, const std::vector<std::string> &values) {
  std::string filled;
  for (std::size_t i = 0; i < pattern.size(); i++) {
    const std::string_view mark = pattern.substr(i, 3);
    const bool isMark =
        mark.size() == 3 && mark[0] == '{' && mark[1] >= '1' && mark[1] <= '9' && mark[2] == '}';
    const auto index = isMark ? static_cast<std::size_t>(mark[1] - '1') : values.size();
    if (index < values.size()) {
      filled += visible(values[index]);
      i += 2;
    } else {
      filled += pattern[i];
    }
  }
  return filled;
}

std::string_view Text::view() const {
  if (*english_ == '\0')
    return {}; // for which gettext would return the catalogue's header
  const Lookup lookup;
  if (context_ == nullptr)
    return dgettext(kTextDomain, english_);
  // The key of a string with a context in a catalogue.
  const std::string key = std::string(context_) + '\004' + english_;
  const char *const found = dgettext(kTextDomain, key.c_str());
  return found == key.c_str() ? english_ : found;
}

std::string counted(long number, const char *one, const char *several,
                    const std::vector<std::string> &more) {
  std::vector<std::string> values{std::to_string(number)};
  values.insert(values.end(), more.begin(), more.end());
  const Lookup lookup;
  const auto magnitude = static_cast<unsigned long>(number < 0 ? -number : number);
  return fill(dngettext(kTextDomain, one, several, magnitude), values);
}

std::string systemReason(int error) {
  const locale_t locale = Lookup::locale();
  return locale != nullptr ? strerror_l(error, locale) : std::strerror(error);
}

} // namespace imageposition
