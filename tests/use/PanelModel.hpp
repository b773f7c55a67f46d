/// A second, simple implementation of a panel with four offsets, with which long uses of the real
/// one are compared. It shares no code with the plug-in.
#ifndef IMAGEPOSITION_TESTS_USE_PANELMODEL_HPP
#define IMAGEPOSITION_TESTS_USE_PANELMODEL_HPP

#include <array>
#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace imageposition::test {

/// What a panel reads from a PPD.
struct PrinterFacts {
  std::map<std::string, std::string> attributes;
  std::optional<std::string> duplex; ///< The marked choices.
  std::optional<std::string> banner;
};

/// An entry of the print settings.
struct StoredValue {
  enum class Kind { Text, Number, Foreign };

  std::string text; ///< Its description, for a number as well.
  Kind kind = Kind::Text;
};

/// The strings of a rule, as far as it has them.
struct PanelRule {
  using Part = std::optional<std::string>;
  Part conditionObj, conditionType, conditionPattern, conditionValue;
  Part actionObj, actionPattern, actionValue;
};

class PanelModel {
public:
  enum Name { FrontLRM, FrontTBM, BackLRM, BackTBM };

  struct Offset {
    // The definition, including what rules change in it.
    std::string name;
    std::string ticketKey;
    std::string summaryName;
    std::int32_t value = 0;
    std::int32_t min = -20;
    std::int32_t max = 20;
    std::int32_t defaultValue = 0;
    std::string minMark = "{min}";
    std::string maxMark = "{max}";
    std::string rangeTemplate;
    // The controls.
    std::int32_t fieldMin = 0;
    std::int32_t fieldMax = 0;
    std::string shown;
    std::int32_t steps = 0;
    bool enabled = true;
    bool fieldIsGray = false;
    std::string nameText;
    std::string rangeText;
  };

  struct Summary {
    std::map<std::string, std::string> values;
    std::vector<std::string> order;
  };

  PanelModel();

  // The bundle.
  std::array<Offset, 4> offsets;
  std::vector<Name> definitionOrder = {FrontLRM, FrontTBM, BackLRM, BackTBM};
  std::vector<PanelRule> rules;
  std::map<std::string, std::string> strings;

  // The printer when the panel was created; never null.
  std::shared_ptr<PrinterFacts> printer = std::make_shared<PrinterFacts>();

  // The view, once it is loaded.
  bool hasView = false;
  bool isColoured = false; ///< Whether availability has set the labels' colours.
  bool checked = false;
  bool checkEnabled = true;
  bool buttonEnabled = true;
  std::string checkTitle;
  std::string buttonTitle;

  // The host's print settings.
  bool settingsThere = true;
  std::map<std::string, StoredValue> store;
  std::set<std::string> unreadable;
  std::set<std::string> unwritable;
  std::set<std::string> locked;
  /// The number (from 1) of the next read, write or request for the settings that fails, once.
  int failRead = 0;
  int failWrite = 0;
  int failRequest = 0;

  std::vector<std::string> log;

  // The user's actions.
  void type(Offset &offset, const std::u16string &text);
  void action();
  void clickCheckbox();
  void restoreDefaults();

  // Calls to the panel.
  void loadView(); ///< The interface file defines the controls' initial state.
  void willShow();
  void shouldPrint();
  void saveValues();
  void restoreValues();
  Summary summary();

  // Calls to the controller.
  void prepareForShow();
  void notifyUI();
  bool getTicket();
  bool saveTicket();
  void checkSettingsValue();
  void grayUI();
  bool isAllowed();

private:
  std::string localized(const std::string &key) const;
  bool settingsAnswer();
  const StoredValue *read(bool there, const std::string &key);
  bool write(bool there, const std::string &key, const std::string &value);
  void clamp(Offset &offset);
  void show(Offset &offset);
  void set(Offset &offset, std::int32_t value);
  void setAvailable(Offset &offset, bool available);
  void getTicket(Offset &offset, bool there);
  void setTicket(Offset &offset, bool there);
  void checkUI(Offset &offset, bool there);
  void applyRules(Offset &offset);
  bool holds(const PanelRule &rule) const;
  void act(Offset &offset, const PanelRule &rule);

  bool wasShown_ = false;
};

} // namespace imageposition::test

#endif
