/// The settings of a print job, as CUPS keeps them.
#ifndef IMAGEPOSITION_PLATFORM_PRINTSETTINGSSTORE_HPP
#define IMAGEPOSITION_PLATFORM_PRINTSETTINGSSTORE_HPP

#include <cups/cups.h>

#include <set>
#include <string>
#include <string_view>

namespace imageposition {

/// Text values under names, held in CUPS's own option list, so that they go to CUPS as they are.
///
/// Names match without regard to the case of ASCII letters, as they do everywhere in CUPS. The list
/// is sorted by name. One thread only.
class __attribute__((visibility("default"))) PrintSettingsStore {
public:
  /// IPP's limits: an attribute with a longer name or value cannot be sent.
  static constexpr std::size_t kLongestName = 255;
  static constexpr std::size_t kLongestValue = 32767 - 8;

  enum class Outcome { Stored, Locked, BadName, BadValue };

  PrintSettingsStore() = default;
  PrintSettingsStore(const PrintSettingsStore &other);
  /// Takes over entries and locks, whatever was locked here.
  PrintSettingsStore &operator=(const PrintSettingsStore &other);
  ~PrintSettingsStore();

  /// Anything but `Stored` leaves the store as it was. `locked` keeps later calls from changing or
  /// removing the entry; a locked entry does not open again.
  Outcome set(std::string_view name, std::string_view value, bool locked = false);

  /// Null when there is no such entry; else valid until the entry changes or the store goes.
  const char *get(std::string_view name) const;

  /// False when there is no such entry, or it is locked.
  bool remove(std::string_view name);

  bool isLocked(std::string_view name) const;

  /// Is told after each change of an entry, by whomever; must not change entries itself.
  class Observer {
  public:
    virtual void settingsChanged() = 0;

  protected:
    ~Observer() = default;
  };

  /// Borrowed, and with this object only: it is not copied with the entries. Null for none.
  void setObserver(Observer *observer) noexcept { observer_ = observer; }

  /// For CUPS; the store's, and valid until the next change.
  const cups_option_t *options() const noexcept { return options_; }
  int optionCount() const noexcept { return count_; }

  /// Printable ASCII without what CUPS's text form of options gives a meaning ("=", quotes, braces,
  /// backslash, comma) or a shell does, since the text form has no quotes for a name; not empty,
  /// not too long. The names of IPP's attributes and of printer descriptions' options are usable.
  static bool isUsableName(std::string_view name) noexcept;
  /// Well-formed UTF-8 without NUL, at which CUPS would cut it, and not too long. Empty is usable.
  static bool isUsableValue(std::string_view value) noexcept;

private:
  struct IgnoringCase {
    bool operator()(const std::string &left, const std::string &right) const noexcept;
  };

  void clear();
  void copyFrom(const PrintSettingsStore &other);
  void take(const std::string &name);
  void tell() const;

  cups_option_t *options_ = nullptr; // freed with cupsFreeOptions
  int count_ = 0;
  std::set<std::string, IgnoringCase> locked_;
  Observer *observer_ = nullptr;
};

} // namespace imageposition

#endif
