/// The settings of a print job, in CUPS's format.
#ifndef IMAGEPOSITION_PLATFORM_PRINTSETTINGSSTORE_HPP
#define IMAGEPOSITION_PLATFORM_PRINTSETTINGSSTORE_HPP

#include <cups/cups.h>

#include <set>
#include <string>
#include <string_view>

namespace imageposition {

/// Named strings in a CUPS option list, which CUPS takes as it is.
///
/// Names are compared without regard to the case of ASCII letters, as everywhere in CUPS. The list
/// is sorted by name. One thread only.
class __attribute__((visibility("default"))) PrintSettingsStore {
public:
  /// IPP's limits, in bytes: an attribute with a longer name or value cannot be sent.
  static constexpr std::size_t kLongestName = 255;
  static constexpr std::size_t kLongestValue = 32767 - 8;

  enum class Outcome { Stored, Locked, BadName, BadValue };

  PrintSettingsStore() = default;
  PrintSettingsStore(const PrintSettingsStore &other);
  /// Copies entries and locks, and overwrites locked entries too.
  PrintSettingsStore &operator=(const PrintSettingsStore &other);
  ~PrintSettingsStore();

  /// Changes nothing unless it returns `Stored`. `locked` keeps later calls from changing or
  /// removing the entry; there is no way to unlock it.
  Outcome set(std::string_view name, std::string_view value, bool locked = false);

  /// Null if there is no such entry; otherwise valid until the entry changes or the store is
  /// destroyed.
  const char *get(std::string_view name) const;

  /// False if there is no such entry, or it is locked.
  bool remove(std::string_view name);

  bool isLocked(std::string_view name) const;

  /// Called after every change, whoever made it; must not change entries itself.
  class Observer {
  public:
    virtual void settingsChanged() = 0;

  protected:
    ~Observer() = default;
  };

  /// The observer is borrowed and not copied with the entries. Null removes it.
  void setObserver(Observer *observer) noexcept { observer_ = observer; }

  /// For calls of CUPS. The store owns the options; the pointer is valid until the next change.
  const cups_option_t *options() const noexcept { return options_; }
  int optionCount() const noexcept { return count_; }

  /// Whether the name is printable ASCII, not empty, not too long, and without characters that have
  /// a meaning in CUPS's option strings ("=", quotes, braces, backslash, comma) or in a shell: an
  /// option string cannot quote a name. The names of IPP attributes and of PPD options are usable.
  static bool isUsableName(std::string_view name) noexcept;
  /// Whether the value is well-formed UTF-8 without NUL, where CUPS would cut it, and not too long.
  /// An empty value is usable.
  static bool isUsableValue(std::string_view value) noexcept;

private:
  struct IgnoringCase {
    bool operator()(const std::string &left, const std::string &right) const noexcept;
  };

  void clear();
  void copyFrom(const PrintSettingsStore &other);
  void removeEntry(const std::string &name);
  void notifyObserver() const;

  cups_option_t *options_ = nullptr; // freed with cupsFreeOptions
  int count_ = 0;
  std::set<std::string, IgnoringCase> locked_;
  Observer *observer_ = nullptr;
};

} // namespace imageposition

#endif
